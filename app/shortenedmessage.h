// SPDX-License-Identifier: MIT
// Other programs' texts, of any size, made to fit where they are told.
#pragma once

#include <QString>

// The most lines of a message that are shown, each of a hundred characters on the average.
constexpr int MOST_MESSAGE_LINES = 10;

// The message as it is when it has no more than mostLines lines, 3 at least, and a hundred times as
// many characters. Otherwise it goes without the blanks and line ends around it, and if it is still
// too long, only its first and its last lines are left, with a line of an ellipsis between.
QString shortenedMessage(const QString &message, int mostLines = MOST_MESSAGE_LINES);

// The message with invisible places to break a line in words of more than wordLength characters.
QString breakableMessage(const QString &message, int wordLength);

// The message as it is up to 65536 characters, of a longer one its beginning and its end, as many
// together, with a line of an ellipsis between.
QString loggableMessage(const QString &message);
