// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

// A label that reports double clicks and turns blue while the pointer is over it.
class MouseLabel : public QLabel
{
    Q_OBJECT

public:
    explicit MouseLabel(QWidget *parent);

signals:
    void mouseDoubleClicked();

protected:
    bool event(QEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
};
