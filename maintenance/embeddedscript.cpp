// SPDX-License-Identifier: MIT
#include "maintenance/embeddedscript.h"

#include "libOxUtils/utils/utils.h"
#include "libOxUtils/utils/waitcursor.h"

#include <QFile>

ScriptResult runEmbeddedScript(const QString &name, const QStringList &arguments,
                               const oxlog::Site &caller)
{
    const QString copy = QStringLiteral("/tmp/") + name;
    // QFile does not copy over a file. If the old copy cannot be removed, the copying fails and
    // says so.
    if (QFile::exists(copy))
        QFile::remove(copy);
    if (!QFile::copy(QStringLiteral("://") + name, copy)) {
        oxlog::critical(caller, QStringLiteral("Copying %1 failed.").arg(name));
        return ScriptResult::CopyFailed;
    }
    // The copy is not executable, and need not be: sh reads it.
    const WaitCursor waiting;
    return Utils::ExecShellFile(copy, arguments, QString()) ? ScriptResult::Done
                                                            : ScriptResult::RunFailed;
}
