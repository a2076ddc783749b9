// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// As much of a message as a box on the smallest screen can show: ten lines and a thousand
// characters at most, no blanks or line ends behind it, and an ellipsis where something was left
// out.
QString shortenedMessage(const QString &message);
