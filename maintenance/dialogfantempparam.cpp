// SPDX-License-Identifier: MIT
#include "maintenance/dialogfantempparam.h"

#include "ui_dialogfantempparam.h"

DialogFanTempParam::DialogFanTempParam(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::DialogFanTempParam)
{
    ui->setupUi(this);
}

DialogFanTempParam::~DialogFanTempParam() = default;

void DialogFanTempParam::SetThresholds(int lower, int upper)
{
    ui->m_spinLowerTempThreshold->setValue(lower);
    ui->m_spinUpperTempThreshold->setValue(upper);
}

void DialogFanTempParam::GetThresholds(int &lower, int &upper) const
{
    lower = ui->m_spinLowerTempThreshold->value();
    upper = ui->m_spinUpperTempThreshold->value();
}
