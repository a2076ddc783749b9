// SPDX-License-Identifier: MIT
#include "app/shortenedmessage.h"

#include <QStringView>

namespace {

constexpr int MOST_LINES = 10;
constexpr int MOST_CHARACTERS = 1000;

} // namespace

QString shortenedMessage(const QString &message)
{
    // Cut before it is split into lines: another program's text can be of any size.
    QString shown = message.left(MOST_CHARACTERS).section(QLatin1Char('\n'), 0, MOST_LINES - 1);
    const bool isWhole = QStringView(message).mid(shown.size()).trimmed().isEmpty();
    while (!shown.isEmpty() && shown.back().isSpace())
        shown.chop(1);
    return isWhole ? shown : shown + QChar(0x2026);
}
