// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

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
    std::unique_ptr<Ui::DialogAbout> ui;
};
