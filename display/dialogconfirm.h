// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QTimer>

#include <memory>

namespace Ui {
class DialogConfirm;
}

// How far down a window at rect has to be moved, up if negative, for its buttons, the part of it
// that buttons says, to let go of the pointer; 0 when they do not lie under it. Down, where the
// area leaves room. All in pixels.
int distanceFromPointer(const QRect &rect, const QRect &buttons, const QPoint &pointer,
                        const QRect &area);

// Asks whether a newly switched mode can be seen, and answers no by itself at the end of a count: a
// user in front of a black screen gets the old mode back without touching anything. The result is
// Accepted when the mode is to be kept, Rejected otherwise.
//
// It comes up in the middle of the screen, but never with a button under the pointer, nor is it
// moved so later by anyone but the user: a second click on the spot of the first would answer it
// before it has been seen.
class DialogConfirm : public QDialog
{
    Q_OBJECT

public:
    // What the count starts at.
    static constexpr int COUNTDOWN_SECONDS = 30;

    explicit DialogConfirm(QWidget *parent);
    ~DialogConfirm() override;

protected:
    void showEvent(QShowEvent *event) override;
    void moveEvent(QMoveEvent *event) override;

private slots:
    void btnRestorePreConfig_clicked();
    void btnKeepThisConfig_clicked();
    void countdown_timeout();

private:
    void showSecondsLeft();
    void fitSmallestMode();
    void moveButtonsFromPointer();

    std::unique_ptr<Ui::DialogConfirm> ui;
    QTimer m_countdown;
    int m_secondsLeft;
    int m_moves = 0; // that made way for the pointer
};
