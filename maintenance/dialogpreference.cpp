// SPDX-License-Identifier: MIT
#include "maintenance/dialogpreference.h"

#define OX_LOG_FILE "dialogpreference"
#include "libOxUtils/utils/log.h"

#include "app/globalvars.h"
#include "maintenance/embeddedscript.h"
#include "maintenance/testapplication.h"
#include "ui_dialogpreference.h"

#include <QFile>
#include <QMessageBox>
#include <QSettings>

namespace {

const QString AUTO_START_APP = QStringLiteral("Preference/AutoStartApp");

// Its values; any other than 0 is read as the OTP application.
constexpr int STARTS_STANDARD = 0;
constexpr int STARTS_OTP = 1;

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

    const ScriptResult result = runEmbeddedScript(QStringLiteral("autobootapp.sh"), desktopFiles());
    if (result == ScriptResult::CopyFailed) {
        oxlog::critical(OX_LOG_HERE, QStringLiteral("Copying autobootapp.sh failed."));
        reject();
        return;
    }

    // This removes the clock script's copy and leaves this one's, which the next run replaces: see
    // docs/compatibility.md.
    QFile::remove(CLOCK_SCRIPT_COPY);

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
    const QString standard = desktopFile(standardApplication());
    const QString otp = desktopFile(otpApplication());
    if (ui->m_rdoVexastd->isChecked())
        return {standard, otp};
    if (ui->m_rdoVxotp->isChecked())
        return {otp, standard};
    return {};
}

void DialogPreference::LoadPreference()
{
    const QSettings settings(settingsFile(), QSettings::IniFormat);
    const bool isOtp = settings.value(AUTO_START_APP).toInt() != STARTS_STANDARD;
    QRadioButton *const chosen = isOtp ? ui->m_rdoVxotp : ui->m_rdoVexastd;
    chosen->setChecked(true);
    chosen->setFocus();
}

void DialogPreference::SavePreference()
{
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.setValue(AUTO_START_APP, ui->m_rdoVexastd->isChecked() ? STARTS_STANDARD : STARTS_OTP);
    // Written here and not by the destructor, which tells nobody when it fails.
    settings.sync();
    // A format error is that of the old content, which has been replaced.
    if (settings.status() == QSettings::AccessError)
        oxlog::critical(OX_LOG_HERE, QStringLiteral("Writing %1 failed.").arg(settingsFile()));
}
