// SPDX-License-Identifier: MIT
#include "app/languagebox.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

LanguageBox::LanguageBox(QWidget *parent)
    : QComboBox(parent)
{
    // The toolkit's own takes the focus from the wheel as well, before it hears of it.
    setFocusPolicy(Qt::StrongFocus);
}

void LanguageBox::contextMenuEvent(QContextMenuEvent *event)
{
    event->ignore();
}

void LanguageBox::keyPressEvent(QKeyEvent *event)
{
    if (event->modifiers().testFlag(Qt::ControlModifier))
        event->ignore();
    else
        QComboBox::keyPressEvent(event);
}

void LanguageBox::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        QComboBox::mousePressEvent(event);
    else
        event->ignore();
}

void LanguageBox::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
