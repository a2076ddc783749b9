// SPDX-License-Identifier: MIT
#include "app/guards/answeredguard.h"

#include <QInputEvent>
#include <QWindow>

bool AnsweredGuard::eventFilter(QObject *watched, QEvent *event)
{
    // All input reaches the window first, and its widgets from there.
    if (!watched->isWindowType() || static_cast<QWindow *>(watched)->isVisible() ||
        !dynamic_cast<QInputEvent *>(event))
        return QObject::eventFilter(watched, event);
    // A shortcut is set off unless its announcement has been accepted.
    event->accept();
    return true;
}
