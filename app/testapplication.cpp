// SPDX-License-Identifier: MIT
#include "app/testapplication.h"

#include <QFile>

TestApplication standardApplication()
{
    return {QStringLiteral("vexa_standard"),
            QStringLiteral("/home/root"),
            QStringLiteral("vexastd"),
            {QStringLiteral("/home/root/vexa_standard/vexaapp.ini"),
             QStringLiteral("/home/root/vexa_standard/usersensor.ini"),
             QStringLiteral("/home/root/vexa_standard/filemanager.ini")}};
}

TestApplication otpApplication()
{
    return {QStringLiteral("vexa_otp"),
            QStringLiteral("/home/root"),
            QStringLiteral("vxotp"),
            {QStringLiteral("/home/root/vexa_otp/vxotp.ini"),
             QStringLiteral("/home/root/vexa_otp/filemanager.ini")}};
}

void removeSettings(const TestApplication &application)
{
    for (const QString &file : application.settingsFiles)
        QFile::remove(file);
}

QString upgradeSelfCommand()
{
    // The name stands twice: the upgrader takes two arguments.
    const QString name = QStringLiteral("moniconf");
    return QStringLiteral("upgrader app %1 %2").arg(name, name);
}

QString upgradeApplicationCommand(const TestApplication &application)
{
    return QStringLiteral("upgrader %1 %2 %3")
        .arg(application.directory, application.parentDirectory, application.program);
}

QString upgradeFileSystemCommand()
{
    // The pass phrase is a fixed part of the upgrader's interface and passes in the open.
    return QStringLiteral("upgrader fs %1 %2")
        .arg(QStringLiteral("fs_patches"), QStringLiteral("tore7malvin2ek+"));
}
