// SPDX-License-Identifier: MIT
#include "app/languagebox.h"

#include <QKeyEvent>
#include <QWheelEvent>

LanguageBox::LanguageBox(QWidget *parent)
    : QComboBox(parent)
{
    // The toolkit's own takes the focus from the wheel as well, before it hears of it.
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::NoContextMenu);
}

void LanguageBox::keyPressEvent(QKeyEvent *event)
{
    if (event->modifiers().testFlag(Qt::ControlModifier))
        event->ignore();
    else
        QComboBox::keyPressEvent(event);
}

void LanguageBox::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
