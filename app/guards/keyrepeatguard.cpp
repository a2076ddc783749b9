// SPDX-License-Identifier: MIT
#include "app/guards/keyrepeatguard.h"

#include <QKeyEvent>

namespace {

bool movesOrTypes(const QKeyEvent &press)
{
    if (press.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    switch (press.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        return true;
    default:
        return !press.text().isEmpty() && press.text().at(0).isPrint();
    }
}

} // namespace

bool KeyRepeatGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyRelease) {
        const auto *release = static_cast<QKeyEvent *>(event);
        m_releasedKey = release->key();
        m_releasedAt = release->timestamp();
    }
    // Each press is announced as the override of a shortcut, which could be set off instead.
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
        return QObject::eventFilter(watched, event);
    const auto *press = static_cast<QKeyEvent *>(event);
    if (!isRepeat(*press) || movesOrTypes(*press))
        return false;
    event->accept();
    return true;
}

bool KeyRepeatGuard::isRepeat(const QKeyEvent &press) const
{
    // A held key is let go and pressed again by the server at one time. The toolkit says so only if
    // the press has reached it by the time that it looks at the release.
    return press.isAutoRepeat() ||
           (press.key() == m_releasedKey && m_releasedAt != 0 && press.timestamp() == m_releasedAt);
}
