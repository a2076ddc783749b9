// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

// The main window's choice of language, a combo box that leaves key presses with Ctrl to its
// window: the toolkit's own takes them for the start of an item's name, and the window's Ctrl+E
// would be lost while the box has the focus.
class LanguageBox : public QComboBox
{
    Q_OBJECT

public:
    explicit LanguageBox(QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
