// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPoint>
#include <QTimer>

class QScreen;
class QWidget;

// Keeps a top-level window wholly on the screen each time the screen changes its size. Whoever
// switches the screen can have the window back in its place once the screen is switched back.
class ScreenKeeper : public QObject
{
    Q_OBJECT

public:
    // The keeper belongs to the window and lives as long.
    explicit ScreenKeeper(QWidget *window);

    // Before a switch: remembers where the window is.
    void rememberPlace();

    // After the switch back: moves the window to that place, and looks again until it stays there,
    // for some seconds at most. The window manager may still be moving it. What the user has moved
    // meanwhile goes back as well.
    void returnToPlace();

private:
    void watch(QScreen *screen);
    void look();
    bool isReturning() const { return m_looksLeft > 0; }

    QWidget *const m_window;
    QTimer m_nextLook;
    // The window's own top-left corner, without its frame, which the toolkit hears of late.
    QPoint m_place;
    int m_looksLeft = 0;
    int m_looksInPlace = 0;
};
