// SPDX-License-Identifier: MIT
#pragma once

#include "libOxUtils/utils/log.h"
#include "maintenance/outcome.h"

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
    // Lets the user set the clocks of the system and of the hardware, and sets them. Nothing after
    // Cancel, or when the script that sets them could not be copied, which is logged at caller;
    // Failed when that script failed, and then the system's clock may be set all the same.
    static Outcome Run(QWidget *parent, const oxlog::Site &caller);

    explicit DialogClock(QWidget *parent);
    ~DialogClock() override;

    // Shows a date and time, to the second.
    void SetDateTime(const QDateTime &dateTime);

    // The date and time as shown now.
    void GetDateTime(QDateTime &dateTime) const;

private:
    std::unique_ptr<Ui::DialogClock> ui;
};
