// SPDX-License-Identifier: MIT
#include "display/screenkeeper.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScreen>
#include <QThread>
#include <QWidget>

namespace {

// Time for the window manager to move what a smaller screen has left outside.
constexpr int SETTLE_MS = 300;

constexpr int SCREEN_WAIT_MS = 500;
constexpr int POLL_MS = 5;

} // namespace

QPoint placeOnScreen(const QRect &rect, const QRect &area)
{
    const int right = area.right() - rect.width() + 1;
    const int bottom = area.bottom() - rect.height() + 1;
    return {qMax(area.left(), qMin(rect.left(), right)),
            qMax(area.top(), qMin(rect.top(), bottom))};
}

QRect screenArea()
{
    const QScreen *const screen = QGuiApplication::primaryScreen();
    return screen ? screen->geometry() : QRect();
}

void waitForScreen(const QSize &size)
{
    QElapsedTimer waiting;
    waiting.start();
    for (;;) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        const QSize known = screenArea().size() * qGuiApp->devicePixelRatio();
        if (known == size || waiting.hasExpired(SCREEN_WAIT_MS))
            return;
        QThread::msleep(POLL_MS);
    }
}

void centreOnScreen(QWidget *window)
{
    QRect place(QPoint(), window->size());
    place.moveCenter(screenArea().center());
    window->setGeometry(place);
}

ScreenKeeper::ScreenKeeper(QWidget *window)
    : QObject(window)
    , m_window(window)
{
    m_settling.setSingleShot(true);
    m_settling.setInterval(SETTLE_MS);
    connect(&m_settling, &QTimer::timeout, this, &ScreenKeeper::settle);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &ScreenKeeper::watch);
    watch(QGuiApplication::primaryScreen());
}

void ScreenKeeper::watch(QScreen *screen)
{
    if (screen)
        connect(screen, &QScreen::geometryChanged, this, &ScreenKeeper::followScreen,
                Qt::UniqueConnection);
}

void ScreenKeeper::followScreen()
{
    if (!m_window->isVisible())
        return;
    // What moves the window while it settles is not the user.
    if (!m_settling.isActive() && m_window->pos() != m_settled)
        m_home = m_window->pos();
    goHome(screenArea());
    m_settling.start();
}

bool ScreenKeeper::goHome(const QRect &area)
{
    if (!area.contains(QRect(m_home, m_window->frameGeometry().size())))
        return false;
    if (m_window->pos() != m_home)
        m_window->move(m_home);
    return true;
}

void ScreenKeeper::settle()
{
    const QScreen *const screen = QGuiApplication::primaryScreen();
    const QRect area = screen ? screen->availableGeometry() : QRect();
    const QRect frame = m_window->frameGeometry();
    if (!goHome(area) && !area.contains(frame) && !area.isEmpty())
        m_window->move(placeOnScreen(frame, area));
    m_settled = m_window->pos();
}
