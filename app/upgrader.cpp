// SPDX-License-Identifier: MIT
#include "app/upgrader.h"

#include "libOxUtils/utils/commandline.h"

QString upgradeSelfCommand()
{
    // The name stands twice: the upgrader takes two arguments.
    const QString name = QStringLiteral("moniconf");
    return QStringLiteral("upgrader app %1 %2").arg(name, name);
}

QString upgradeApplicationCommand(const TestApplication &application)
{
    return QStringLiteral("upgrader %1 %2 %3")
        .arg(application.directory, application.parentDirectory, QLatin1String(application.name));
}

QString upgradeFileSystemCommand()
{
    // The upgrader takes the pass phrase in the open: see docs/compatibility.md.
    return QStringLiteral("upgrader fs %1 %2")
        .arg(QStringLiteral("fs_patches"), QStringLiteral("tore7malvin2ek+"));
}

void startUpgrader(const QString &command)
{
    // Not reported: an upgrade that does not begin shows by itself, and the log has the request.
    static_cast<void>(startDetachedCommand(command));
}
