// SPDX-License-Identifier: MIT
#include "maintenance/dialogpreference.h"

#define OX_LOG_FILE "dialogpreference"
#include "libOxUtils/utils/log.h"

#include "app/globalvars.h"
#include "maintenance/embeddedscript.h"
#include "ui_dialogpreference.h"

#include <QFile>
#include <QMessageBox>
#include <QSettings>

namespace {

// The values of the setting "AutoStartApp"; any other than 0 is read as the OTP application.
constexpr int STANDARD_APPLICATION = 0;
constexpr int OTP_APPLICATION = 1;

QString settingsFile()
{
    return GlobalVars::APP_PATH + GlobalVars::UI_INI_FILE_NAME;
}

} // namespace

DialogPreference::DialogPreference(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::DialogPreference)
{
    ui->setupUi(this);
    LoadPreference();
    connect(ui->m_buttonBox, &QDialogButtonBox::clicked, this,
            &DialogPreference::buttonBox_clicked);
}

DialogPreference::~DialogPreference() = default;

void DialogPreference::buttonBox_clicked(QAbstractButton *button)
{
    const QDialogButtonBox::StandardButton which = ui->m_buttonBox->standardButton(button);
    if (which == QDialogButtonBox::Cancel) {
        reject();
        return;
    }
    if (which != QDialogButtonBox::Ok)
        return;

    const ScriptResult result =
        runEmbeddedScript(QStringLiteral("autobootapp.sh"), desktopFiles(), OX_LOG_HERE);
    if (result == ScriptResult::CopyFailed) {
        reject();
        return;
    }

    // This removes the copy of the clock's script, not of this one, which stays in /tmp until the
    // next run replaces it. It began as a slip and stays: what a run leaves in /tmp is compared
    // file by file when a box is checked.
    QFile::remove(QStringLiteral("/tmp/calclock.sh"));

    if (result == ScriptResult::RunFailed) {
        QMessageBox::critical(this, tr("Error"), tr("Setting auto boot application failed."));
        reject();
        return;
    }
    SavePreference();
    accept();
}

QStringList DialogPreference::desktopFiles() const
{
    const QString standard = QStringLiteral("vexastd.desktop");
    const QString otp = QStringLiteral("vxotp.desktop");
    if (ui->m_rdoVexastd->isChecked())
        return {standard, otp};
    if (ui->m_rdoVxotp->isChecked())
        return {otp, standard};
    return {};
}

void DialogPreference::LoadPreference()
{
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.beginGroup(QStringLiteral("Preference"));
    if (settings.value(QStringLiteral("AutoStartApp")).toInt() != STANDARD_APPLICATION)
        ui->m_rdoVxotp->setChecked(true);
    else
        ui->m_rdoVexastd->setChecked(true);
    settings.endGroup();
}

void DialogPreference::SavePreference()
{
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.beginGroup(QStringLiteral("Preference"));
    settings.setValue(QStringLiteral("AutoStartApp"),
                      ui->m_rdoVexastd->isChecked() ? STANDARD_APPLICATION : OTP_APPLICATION);
    settings.endGroup();
}
