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

QPoint placeOnScreen(const QRect &rect, const QRect &area)
{
    const int right = area.right() - rect.width() + 1;
    const int bottom = area.bottom() - rect.height() + 1;
    return {qMax(area.left(), qMin(rect.left(), right)),
            qMax(area.top(), qMin(rect.top(), bottom))};
}

void centreOnScreen(QWidget *window)
{
    QRect place(QPoint(), window->size());
    place.moveCenter(screenArea().center());
    window->setGeometry(place);
}
