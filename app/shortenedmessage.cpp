// SPDX-License-Identifier: MIT
#include "app/shortenedmessage.h"

namespace {

constexpr int MOST_LINES = 10;
constexpr int MOST_CHARACTERS = 1000;

} // namespace

QString shortenedMessage(const QString &message)
{
    const QString shown =
        message.section(QLatin1Char('\n'), 0, MOST_LINES - 1).left(MOST_CHARACTERS);
    return shown.trimmed() == message.trimmed() ? message : shown + QChar(0x2026);
}
