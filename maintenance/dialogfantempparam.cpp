// SPDX-License-Identifier: MIT
#include "maintenance/dialogfantempparam.h"

#include "libOxUtils/fileio/conffile.h"
#include "maintenance/fanthresholds.h"
#include "ui_dialogfantempparam.h"

Outcome DialogFanTempParam::Run(QWidget *parent)
{
    ConfFile conf(QStringLiteral("/etc/fand.conf"));
    if (!conf.LoadConf())
        return Outcome::Nothing;

    int lower = 0;
    int upper = 0;
    readFanThresholds(conf, lower, upper);
    DialogFanTempParam dialog(parent);
    dialog.SetThresholds(lower, upper);
    if (dialog.exec() != QDialog::Accepted)
        return Outcome::Nothing;

    dialog.GetThresholds(lower, upper);
    setFanThresholds(conf, lower, upper);
    conf.SaveConf();
    return Outcome::Done;
}

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
