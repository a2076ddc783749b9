// SPDX-License-Identifier: MIT
// The screen's size as the toolkit knows it, and places on it.
#pragma once

#include <QRect>

class QWidget;

// The screen's area in the toolkit's pixels, empty while there is no screen.
QRect screenArea();

// Serves events, but none of the user's, until the toolkit has heard that the screen has that size
// in pixels, upright or turned by a right angle, for half a second at most: what another program
// does to the screen it hears of late.
void waitForScreen(const QSize &size);

// Moves a window that has its size, and is about to be shown, into the middle of the screen.
void centreOnScreen(QWidget *window);
