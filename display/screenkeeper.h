// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPoint>
#include <QRect>
#include <QTimer>

class QScreen;
class QWidget;

// Where the top-left corner of a window has to be for the window, at rect including its frame, to
// lie on the screen's area, moved as little as possible. A window larger than the area starts at
// the area's own corner. All in the toolkit's pixels.
QPoint placeOnScreen(const QRect &rect, const QRect &area);

// The screen's area in the toolkit's pixels, empty while there is no screen.
QRect screenArea();

// Serves events, but none of the user's, until the toolkit has heard that the screen has that size
// in pixels, for half a second at most: what another program does to the screen it hears of late.
void waitForScreen(const QSize &size);

// Moves a window that has its size, and is about to be shown, into the middle of the screen.
void centreOnScreen(QWidget *window);

// Keeps a top-level window wholly on the screen each time the screen changes its size. What a
// smaller screen makes of the window's place, by the window manager's hand or the keeper's, ends
// with it: the window goes back as soon as it fits where it was, unless the user has moved it
// since.
class ScreenKeeper : public QObject
{
    Q_OBJECT

public:
    // The keeper belongs to the window and lives as long.
    explicit ScreenKeeper(QWidget *window);

private:
    void watch(QScreen *screen);
    void followScreen();
    bool goHome(const QRect &area);
    void settle();

    QWidget *const m_window;
    QTimer m_settling;
    // Top-left corners of the window's frame: where the user or the window manager has put it, and
    // where it has been since the screen's last change.
    QPoint m_home;
    QPoint m_settled;
};
