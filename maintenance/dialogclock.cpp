// SPDX-License-Identifier: MIT
#include "maintenance/dialogclock.h"

#include "ui_dialogclock.h"

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
