// SPDX-License-Identifier: MIT
#include "maintenance/testapplication.h"

#include <QDir>

TestApplication standardApplication()
{
    return {//: The name of an application; it stays as it is.
            QT_TRANSLATE_NOOP("DialogMain", "vexastd"),
            QStringLiteral("vexa_standard"),
            QStringLiteral("/home/root"),
            {QStringLiteral("vexaapp.ini"), QStringLiteral("usersensor.ini"),
             QStringLiteral("filemanager.ini")}};
}

TestApplication otpApplication()
{
    return {//: The name of an application; it stays as it is.
            QT_TRANSLATE_NOOP("DialogMain", "vxotp"),
            QStringLiteral("vexa_otp"),
            QStringLiteral("/home/root"),
            {QStringLiteral("vxotp.ini"), QStringLiteral("filemanager.ini")}};
}

QString desktopFile(const TestApplication &application)
{
    return QStringLiteral("%1.desktop").arg(QLatin1String(application.name));
}

void removeSettings(const TestApplication &application)
{
    QDir directory(QDir(application.parentDirectory).filePath(application.directory));
    for (const QString &file : application.settingsFiles)
        directory.remove(file);
}
