// SPDX-License-Identifier: MIT
#include "app/languagebox.h"

#include <QKeyEvent>

LanguageBox::LanguageBox(QWidget *parent)
    : QComboBox(parent)
{
}

void LanguageBox::keyPressEvent(QKeyEvent *event)
{
    if (event->modifiers().testFlag(Qt::ControlModifier))
        event->ignore();
    else
        QComboBox::keyPressEvent(event);
}
