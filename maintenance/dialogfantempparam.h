// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class DialogFanTempParam;
}

// Asks for the two temperature thresholds of the box's fan, in whole degrees: the lower one
// from 1 to 90, the upper one from 1 to 100. The two are not compared with each other.
class DialogFanTempParam : public QDialog
{
    Q_OBJECT

public:
    // Lets the user edit the thresholds in the fan control's file. True after OK, also when the
    // file could not be saved; false after Cancel, or when there is no such file, which shows no
    // dialog.
    static bool Run(QWidget *parent);

    explicit DialogFanTempParam(QWidget *parent);
    ~DialogFanTempParam() override;

    // Shows the thresholds, each brought into its range.
    void SetThresholds(int lower, int upper);

    // The thresholds as shown now.
    void GetThresholds(int &lower, int &upper) const;

private:
    std::unique_ptr<Ui::DialogFanTempParam> ui;
};
