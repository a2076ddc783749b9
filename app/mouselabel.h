// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

// A label that reports the left button's double clicks and turns blue while the pointer is over it.
// With the focus, the space bar does the same as a double click.
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
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};
