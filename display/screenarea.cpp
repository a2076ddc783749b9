// SPDX-License-Identifier: MIT
#include "display/screenarea.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScreen>
#include <QThread>
#include <QWidget>

namespace {

constexpr int SCREEN_WAIT_MS = 500;
constexpr int POLL_MS = 5;

} // namespace

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
        if (known == size || known == size.transposed() || waiting.hasExpired(SCREEN_WAIT_MS))
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
