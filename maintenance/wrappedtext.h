// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QFont;

// The text in lines no wider than that many pixels in the font, but for blanks at a line's end,
// broken between words where that is possible, and at each line feed. When it needs more than
// mostLines of them, the last one takes the rest and ends with an ellipsis where that does not fit.
// Other control characters become blanks.
QString wrappedText(const QString &text, const QFont &font, int width, int mostLines);
