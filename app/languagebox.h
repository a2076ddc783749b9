// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

// The main window's choice of language, a combo box that leaves to its window what is meant for it:
// key presses with Ctrl, which the toolkit's own takes for the start of an item's name, so that the
// window's Ctrl+E would be lost; the right click, which it would swallow; and the wheel as long as
// another widget has the focus.
class LanguageBox : public QComboBox
{
    Q_OBJECT

public:
    explicit LanguageBox(QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
};
