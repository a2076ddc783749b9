// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QTimer>

#include <memory>

namespace Ui {
class DialogConfirm;
}

// Asks whether a newly switched mode can be seen, and answers no by itself after 30 seconds: a
// user in front of a black screen gets the old mode back without touching anything. The result is
// Accepted when the mode is to be kept, Rejected otherwise.
class DialogConfirm : public QDialog
{
    Q_OBJECT

public:
    explicit DialogConfirm(QWidget *parent);
    ~DialogConfirm() override;

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    void btnRestorePreConfig_clicked();
    void btnKeepThisConfig_clicked();
    void countdown_timeout();

private:
    void showSecondsLeft();

    std::unique_ptr<Ui::DialogConfirm> ui;
    QTimer m_countdown;
    int m_secondsLeft;
};
