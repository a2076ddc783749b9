// SPDX-License-Identifier: MIT
#include "app/testapplication.h"

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

QString upgradeSelfCommand()
{
    // The upgrader wants the name twice: as the package and as the program to start again.
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
    // The pass phrase is no secret on the box: it only keeps a stray call from starting the
    // upgrade, and it stands on the command line as the upgrader expects it.
    return QStringLiteral("upgrader fs %1 %2")
        .arg(QStringLiteral("fs_patches"), QStringLiteral("tore7malvin2ek+"));
}
