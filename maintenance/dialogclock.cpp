// SPDX-License-Identifier: MIT
#include "maintenance/dialogclock.h"

#include "maintenance/embeddedscript.h"
#include "ui_dialogclock.h"

#include <QDateTime>
#include <QFile>

Outcome DialogClock::Run(QWidget *parent, const oxlog::Site &caller)
{
    // The clock is set to what the dialog shows: the seconds that pass while it is open are lost.
    QDateTime dateTime = QDateTime::currentDateTime();
    DialogClock dialog(parent);
    dialog.SetDateTime(dateTime);
    if (dialog.exec() != QDialog::Accepted)
        return Outcome::Nothing;
    dialog.GetDateTime(dateTime);

    const ScriptResult result =
        runEmbeddedScript(QStringLiteral("calclock.sh"),
                          {dateTime.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"))}, caller);
    // Without a copy there is nothing to clear away, and the log alone is told.
    if (result == ScriptResult::CopyFailed)
        return Outcome::Nothing;
    QFile::remove(CLOCK_SCRIPT_COPY);
    return result == ScriptResult::Done ? Outcome::Done : Outcome::Failed;
}

DialogClock::DialogClock(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::DialogClock)
{
    ui->setupUi(this);
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
