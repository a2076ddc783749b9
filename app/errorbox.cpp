// SPDX-License-Identifier: MIT
#include "app/errorbox.h"

#include "app/shortenedmessage.h"
#include "display/screenarea.h"

ErrorBox::ErrorBox(QWidget &parent, const QString &title, const QString &text)
    : QMessageBox(&parent)
{
    setIcon(QMessageBox::Critical);
    setWindowTitle(title);
    // The text can be another program's.
    setTextFormat(Qt::PlainText);
    setText(shortenedMessage(text));
    setStandardButtons(QMessageBox::Ok);
}

void ErrorBox::showEvent(QShowEvent *event)
{
    // The box has its size after this and is not on the screen yet.
    QMessageBox::showEvent(event);
    if (!parentWidget()->isVisible())
        centreOnScreen(this);
}
