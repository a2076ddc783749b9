// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class QDateTime;

namespace Ui {
class DialogClock;
}

// Asks for a date and time of day. It shows what it was given, and its clock does not run.
class DialogClock : public QDialog
{
    Q_OBJECT

public:
    explicit DialogClock(QWidget *parent);
    ~DialogClock() override;

    // Shows a date and time, to the second.
    void SetDateTime(const QDateTime &dateTime);

    // The date and time as shown now.
    void GetDateTime(QDateTime &dateTime) const;

private:
    std::unique_ptr<Ui::DialogClock> ui;
};
