// SPDX-License-Identifier: MIT
#include "app/mouselabel.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

MouseLabel::MouseLabel(QWidget *parent)
    : QLabel(parent)
{
}

bool MouseLabel::event(QEvent *event)
{
    // Only the second sheet ends in a semicolon: see docs/compatibility.md.
    switch (event->type()) {
    case QEvent::Enter:
        setStyleSheet(QStringLiteral("color: blue"));
        return true;
    case QEvent::Leave:
        setStyleSheet(QStringLiteral("color: black;"));
        return true;
    default:
        return QLabel::event(event);
    }
}

void MouseLabel::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        emit mouseDoubleClicked();
}

void MouseLabel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space)
        emit mouseDoubleClicked();
    else
        QLabel::keyPressEvent(event);
}

void MouseLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    QStylePainter(this).drawPrimitive(QStyle::PE_FrameFocusRect, option);
}
