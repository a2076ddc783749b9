// SPDX-License-Identifier: MIT
// The screen's size as the toolkit knows it, and places on it.
#pragma once

#include <QPoint>
#include <QRect>

class QWidget;

// The screen's area in the toolkit's pixels, empty while there is no screen.
QRect screenArea();

// Serves events, but none of the user's, until the toolkit has heard that the screen has that size
// in pixels, upright or turned by a right angle, for half a second at most: what another program
// does to the screen it hears of late.
void waitForScreen(const QSize &size);

// Where the top-left corner of a window has to be for the window, at rect including its frame, to
// lie on the screen's area, moved as little as possible. A window larger than the area starts at
// the area's own corner. All in the toolkit's pixels.
QPoint placeOnScreen(const QRect &rect, const QRect &area);

// Moves a window that has its size, and is about to be shown, into the middle of the screen.
void centreOnScreen(QWidget *window);
