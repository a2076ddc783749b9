// SPDX-License-Identifier: MIT
#include "app/applybutton.h"

#include <QEvent>

ApplyButton::ApplyButton(QWidget *parent)
    : QPushButton(parent)
{
}

bool ApplyButton::event(QEvent *event)
{
    if (event->type() != QEvent::ContextMenu)
        return QPushButton::event(event);
    // The window is asked next.
    event->ignore();
    return false;
}
