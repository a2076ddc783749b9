// SPDX-License-Identifier: MIT
#include "app/guards/inputguard.h"

#include <QKeyEvent>
#include <QWindow>

namespace {

bool acts(int key)
{
    return key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter ||
           (key >= Qt::Key_F1 && key <= Qt::Key_F35);
}

std::pair<int, quint64> keyAndTime(const QEvent *event)
{
    const auto *keyEvent = static_cast<const QKeyEvent *>(event);
    return {keyEvent->key(), keyEvent->timestamp()};
}

} // namespace

bool InputGuard::eventFilter(QObject *watched, QEvent *event)
{
    // Everything reaches the window first, and its widgets from there.
    auto *const window = qobject_cast<QWindow *>(watched);
    if (!window)
        return false;
    bool isDropped = !window->isVisible() && dynamic_cast<QInputEvent *>(event);
    switch (event->type()) {
    case QEvent::Show: // comes before the window manager is told
        if (window->isModal())
            window->setTransientParent(nullptr);
        break;
    case QEvent::KeyRelease:
        m_released = keyAndTime(event);
        break;
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride: // announces a press
        // A held key is let go and pressed again by the server at one time. The toolkit marks that
        // only if the press has reached it by the time that it looks at the release.
        isDropped |= keyAndTime(event) == m_released && acts(m_released.first);
        break;
    default:
        break;
    }
    // A shortcut is set off unless its announcement has been accepted.
    if (isDropped)
        event->accept();
    return isDropped;
}
