// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class QAbstractButton;

namespace Ui {
class DialogGamma;
}

// Asks for the display's gamma.
class DialogGamma : public QDialog
{
    Q_OBJECT

public:
    explicit DialogGamma(QWidget *parent);
    ~DialogGamma() override;

    // Proposes a gamma, shown with one decimal.
    void SetGamma(float gamma);

    // The gamma proposed last or, after OK, the one entered: any float, without a check of its
    // range, and 0 for an entry that is no number.
    float GetGamma() const;

private slots:
    void buttonBox_clicked(QAbstractButton *button);

private:
    std::unique_ptr<Ui::DialogGamma> ui;
    float m_gamma = 1.0F;
};
