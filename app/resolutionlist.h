// SPDX-License-Identifier: MIT
#pragma once

#include <QListWidget>

// The main window's list of modes, whose current row is only ever set by the user or the program.
// The toolkit's own list makes its first row current as soon as it gets the focus, and OK, pressed
// for the language alone, would then switch the screen to a mode that nobody chose.
class ResolutionList : public QListWidget
{
    Q_OBJECT

public:
    explicit ResolutionList(QWidget *parent = nullptr);

    // Room for all ten standard modes, whatever the screen's density.
    QSize sizeHint() const override;

protected:
    void focusInEvent(QFocusEvent *event) override;
};
