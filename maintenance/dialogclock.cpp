// SPDX-License-Identifier: MIT
#include "maintenance/dialogclock.h"

#include "ui_dialogclock.h"

#include <QCalendarWidget>
#include <QDateTime>
#include <QFile>

std::optional<ScriptResult> DialogClock::Run(QWidget *parent)
{
    // The clock is set to what the dialog shows: the seconds that pass while it is open are lost.
    QDateTime dateTime = QDateTime::currentDateTime();
    DialogClock dialog(parent);
    dialog.SetDateTime(dateTime);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    dialog.GetDateTime(dateTime);

    const ScriptResult result =
        runEmbeddedScript(QStringLiteral("calclock.sh"),
                          {dateTime.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"))});
    // What could not be replaced by a copy is not this program's to remove.
    if (result != ScriptResult::CopyFailed)
        QFile::remove(CLOCK_SCRIPT_COPY);
    return result;
}

DialogClock::DialogClock(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::DialogClock)
{
    ui->setupUi(this);
    // The toolkit leaves the week's first day out when it measures the names of the days, and may
    // cut it. Two letters' height for each has room for the widest.
    ui->m_dateTimeEdit->calendarWidget()->setMinimumWidth(15 * fontMetrics().height());
}

DialogClock::~DialogClock() = default;

void DialogClock::SetDateTime(const QDateTime &dateTime)
{
    ui->m_dateTimeEdit->setDateTime(dateTime);
}

void DialogClock::GetDateTime(QDateTime &dateTime) const
{
    dateTime = ui->m_dateTimeEdit->dateTime();
}
