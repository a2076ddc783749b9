// SPDX-License-Identifier: MIT
#include "app/shortenedmessage.h"

#include <algorithm>

namespace {

constexpr int CHARACTERS_PER_LINE = 100;
constexpr int MOST_LOGGED_CHARACTERS = 65536;
constexpr QChar LINE_END = u'\n';
constexpr int ELLIPSIS_LINE_SIZE = 3;

QString ellipsisLine()
{
    return QStringLiteral("\n\u2026\n");
}

// Whether the toolkit starts a line behind that character, as a carriage return of a progress
// display.
bool endsLine(QChar character)
{
    return QStringLiteral("\r\v\f\u2028\u2029").contains(character);
}

bool fits(const QString &text, int mostLines)
{
    const int lines = text.count(LINE_END) + (text.endsWith(LINE_END) ? 0 : 1);
    return lines <= mostLines && text.size() <= mostLines * CHARACTERS_PER_LINE;
}

} // namespace

QString shortenedMessage(const QString &message, int mostLines)
{
    QString lines = message;
    lines.replace(QLatin1String("\r\n"), QString(LINE_END));
    std::replace_if(lines.begin(), lines.end(), endsLine, LINE_END);
    if (fits(lines, mostLines))
        return message;
    lines = lines.trimmed();
    if (fits(lines, mostLines))
        return lines;

    const int firstLines = mostLines / 2;
    const int lastLines = mostLines - firstLines - 1;
    const int characters = (mostLines * CHARACTERS_PER_LINE - ELLIPSIS_LINE_SIZE) / 2;
    // Cut before they are split into lines, of which there can be millions.
    return lines.left(characters).section(LINE_END, 0, firstLines - 1) + ellipsisLine() +
           lines.right(characters).section(LINE_END, -lastLines);
}

QString breakableMessage(const QString &message, int wordLength)
{
    constexpr QChar ZERO_WIDTH_SPACE = u'\u200B';
    QString broken;
    int length = 0;
    for (const QChar character : message) {
        length = character.isSpace() ? 0 : length + 1;
        if (length > wordLength && !character.isLowSurrogate()) {
            broken += ZERO_WIDTH_SPACE;
            length = 1;
        }
        broken += character;
    }
    return broken;
}

QString loggableMessage(const QString &message)
{
    if (message.size() <= MOST_LOGGED_CHARACTERS)
        return message;
    return message.left(MOST_LOGGED_CHARACTERS / 2) + ellipsisLine() +
           message.right(MOST_LOGGED_CHARACTERS / 2);
}
