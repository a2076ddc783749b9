// SPDX-License-Identifier: MIT
#include "maintenance/dialogfantempparam.h"

#include "libOxUtils/fileio/conffile.h"
#include "ui_dialogfantempparam.h"

#include <algorithm>
#include <limits>

namespace {

const QString LOWER_KEY = QStringLiteral("temp_threshold_lower");
const QString UPPER_KEY = QStringLiteral("temp_threshold_upper");

// 0 for what is no number; the spin box brings it into its range.
int toThreshold(const QString &text)
{
    const uint highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::min(text.toUInt(), highest));
}

} // namespace

bool DialogFanTempParam::Run(QWidget *parent)
{
    ConfFile conf(QStringLiteral("/etc/fand.conf"));
    if (!conf.LoadConf())
        return false;

    DialogFanTempParam dialog(parent);
    dialog.SetThresholds(toThreshold(conf.GetValue(LOWER_KEY)),
                         toThreshold(conf.GetValue(UPPER_KEY)));
    if (dialog.exec() != QDialog::Accepted)
        return false;

    int lower = 0;
    int upper = 0;
    dialog.GetThresholds(lower, upper);
    conf.SetValue(LOWER_KEY, QString::number(lower));
    conf.SetValue(UPPER_KEY, QString::number(upper));
    // The user is told the same when it fails: the log has the reason.
    static_cast<void>(conf.SaveConf());
    return true;
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
    // Digits typed beside the old number would make one out of range, which the box does not take.
    ui->m_spinLowerTempThreshold->setFocus();
    ui->m_spinLowerTempThreshold->selectAll();
}

void DialogFanTempParam::GetThresholds(int &lower, int &upper) const
{
    lower = ui->m_spinLowerTempThreshold->value();
    upper = ui->m_spinUpperTempThreshold->value();
}
