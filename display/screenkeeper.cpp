// SPDX-License-Identifier: MIT
#include "display/screenkeeper.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

QPoint placeOnScreen(const QRect &rect, const QRect &area)
{
    const int right = area.right() - rect.width() + 1;
    const int bottom = area.bottom() - rect.height() + 1;
    return {qMax(area.left(), qMin(rect.left(), right)),
            qMax(area.top(), qMin(rect.top(), bottom))};
}

ScreenKeeper::ScreenKeeper(QWidget *window)
    : QObject(window)
    , m_window(window)
{
    window->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &ScreenKeeper::watch);
    watch(QGuiApplication::primaryScreen());
}

void ScreenKeeper::watch(QScreen *screen)
{
    if (screen)
        connect(screen, &QScreen::availableGeometryChanged, this, &ScreenKeeper::moveOntoScreen);
}

bool ScreenKeeper::eventFilter(QObject *watched, QEvent *event)
{
    // The window manager has had its say about the place by then.
    if (event->type() == QEvent::WindowActivate)
        moveOntoScreen();
    return QObject::eventFilter(watched, event);
}

void ScreenKeeper::moveOntoScreen()
{
    const QScreen *const screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QRect frame = m_window->frameGeometry();
    const QPoint place = placeOnScreen(frame, screen->availableGeometry());
    if (place != frame.topLeft())
        m_window->move(place);
}
