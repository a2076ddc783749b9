// SPDX-License-Identifier: MIT
#pragma once

#include <QListWidget>

// The main window's list of modes, whose current row is only ever set by the user or the program.
// The toolkit's own list makes its first row current as soon as it gets the focus, and OK, pressed
// for the language alone, would then switch the screen to a mode that nobody chose. For the same
// reason only the left button chooses: the right one is for the window's menu. A frame shows that
// the list has the keyboard, since its rows look alike with the focus and without.
class ResolutionList : public QListWidget
{
    Q_OBJECT

public:
    using QListWidget::QListWidget;

    // Room for all ten standard modes, whatever the screen's density.
    QSize sizeHint() const override;

    void reset() override;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
};
