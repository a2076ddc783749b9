// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

// The main window's choice of language, a combo box that leaves to its window what is meant for it:
// key presses with Ctrl, which the toolkit's own takes for the start of an item's name, so that the
// window's Ctrl+E would be lost; the right button, with which it would open its list in place of
// the window's menu; and the wheel as long as another widget has the focus.
class LanguageBox : public QComboBox
{
    Q_OBJECT

public:
    explicit LanguageBox(QWidget *parent = nullptr);

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
};
