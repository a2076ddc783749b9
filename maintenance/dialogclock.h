// SPDX-License-Identifier: MIT
#pragma once

#include "maintenance/embeddedscript.h"

#include <QDialog>

#include <memory>
#include <optional>

class QDateTime;

namespace Ui {
class DialogClock;
}

// Asks for a date and time of day. It shows what it was given, and its clock does not run.
class DialogClock : public QDialog
{
    Q_OBJECT

public:
    // Lets the user set the clocks of the system and of the hardware, and sets them. What came of
    // the script that sets them, or nothing after Cancel; when it failed, the system's clock may be
    // set all the same.
    [[nodiscard]] static std::optional<ScriptResult> Run(QWidget *parent);

    explicit DialogClock(QWidget *parent);
    ~DialogClock() override;

    // Shows a date and time, to the second.
    void SetDateTime(const QDateTime &dateTime);

    // The date and time as shown now.
    void GetDateTime(QDateTime &dateTime) const;

private:
    std::unique_ptr<Ui::DialogClock> ui;
};
