// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QStringList>

#include <memory>

class QAbstractButton;

namespace Ui {
class DialogPreference;
}

// Lets the user choose which of the two test applications starts with the desktop, makes the choice
// effective on OK, and remembers it in the program's settings file. It closes after OK and Cancel
// alike, whatever came of it, so its result says nothing.
class DialogPreference : public QDialog
{
    Q_OBJECT

public:
    explicit DialogPreference(QWidget *parent);
    ~DialogPreference() override;

private slots:
    void buttonBox_clicked(QAbstractButton *button);

private:
    // The chosen application's first: the script links the first and unlinks the rest.
    QStringList desktopFiles() const;
    void LoadPreference();
    void SavePreference();

    std::unique_ptr<Ui::DialogPreference> ui;
};
