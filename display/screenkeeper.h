// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QRect>

class QScreen;
class QWidget;

// Where the top-left corner of a window has to be for the window, at rect including its frame, to
// lie on the screen's area, moved as little as possible. A window larger than the area starts at
// the area's own corner. All in pixels.
QPoint placeOnScreen(const QRect &rect, const QRect &area);

// Keeps a top-level window wholly on the screen when it becomes active and each time the screen
// changes its size, which the toolkit hears of only some time after xrandr has returned.
class ScreenKeeper : public QObject
{
    Q_OBJECT

public:
    // The keeper belongs to the window and lives as long.
    explicit ScreenKeeper(QWidget *window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watch(QScreen *screen);
    void moveOntoScreen();

    QWidget *const m_window;
};
