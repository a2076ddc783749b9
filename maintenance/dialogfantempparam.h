// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class DialogFanTempParam;
}

// Asks for the two temperature thresholds of the box's fan, in whole degrees: the lower one
// from 1 to 90, the upper one from 1 to 100. Which of them is higher is the user's affair.
class DialogFanTempParam : public QDialog
{
    Q_OBJECT

public:
    explicit DialogFanTempParam(QWidget *parent);
    ~DialogFanTempParam() override;

    // Shows the thresholds, each brought into its range.
    void SetThresholds(int lower, int upper);

    // The thresholds as shown now.
    void GetThresholds(int &lower, int &upper) const;

private:
    std::unique_ptr<Ui::DialogFanTempParam> ui;
};
