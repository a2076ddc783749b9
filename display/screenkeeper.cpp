// SPDX-License-Identifier: MIT
#include "display/screenkeeper.h"

#include "display/screenarea.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace {

// Time for the window manager to move what a smaller screen has left outside.
constexpr int LOOK_MS = 300;

// A window counts as back when this many looks in a row have found it in its place. One that a
// window manager puts elsewhere again and again is let go at last.
constexpr int ENOUGH_LOOKS = 4;
constexpr int MOST_LOOKS = 20;

} // namespace

ScreenKeeper::ScreenKeeper(QWidget *window)
    : QObject(window)
    , m_window(window)
{
    m_nextLook.setSingleShot(true);
    m_nextLook.setInterval(LOOK_MS);
    connect(&m_nextLook, &QTimer::timeout, this, &ScreenKeeper::look);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &ScreenKeeper::watch);
    watch(QGuiApplication::primaryScreen());
}

void ScreenKeeper::watch(QScreen *screen)
{
    if (screen)
        connect(screen, &QScreen::geometryChanged, &m_nextLook, qOverload<>(&QTimer::start),
                Qt::UniqueConnection);
}

void ScreenKeeper::rememberPlace()
{
    // While the window is on its way back, that is where it belongs.
    if (!isReturning())
        m_place = m_window->geometry().topLeft();
    m_looksLeft = 0;
}

void ScreenKeeper::returnToPlace()
{
    m_looksLeft = MOST_LOOKS;
    m_looksInPlace = 0;
    look();
}

void ScreenKeeper::look()
{
    if (!m_window->isVisible())
        return;
    if (isReturning()) {
        const QRect geometry = m_window->geometry();
        m_looksInPlace = geometry.topLeft() == m_place ? m_looksInPlace + 1 : 0;
        m_looksLeft = m_looksInPlace < ENOUGH_LOOKS ? m_looksLeft - 1 : 0;
        m_window->setGeometry(QRect(m_place, geometry.size()));
        if (isReturning())
            m_nextLook.start();
        return;
    }
    const QScreen *const screen = QGuiApplication::primaryScreen();
    const QRect area = screen ? screen->availableGeometry() : QRect();
    const QRect frame = m_window->frameGeometry();
    if (!area.contains(frame) && !area.isEmpty())
        m_window->move(placeOnScreen(frame, area));
}
