// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class QLabel;

namespace Ui {
class DialogAbout;
}

// Shows the program's version, its maker, and what box it runs on. The root file system's version
// and patch level are read anew each time it is made, and hidden where the box does not tell them.
class DialogAbout : public QDialog
{
    Q_OBJECT

public:
    explicit DialogAbout(QWidget *parent);
    ~DialogAbout() override;

private:
    // Shows what a file holds, in lines that the screen takes; what is too long for them is cut and
    // stands whole in the tool tip.
    void showIf(bool isKnown, QLabel *label, const QString &text);

    std::unique_ptr<Ui::DialogAbout> ui;
};
