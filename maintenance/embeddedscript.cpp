// SPDX-License-Identifier: MIT
#include "maintenance/embeddedscript.h"

#include "libOxUtils/utils/utils.h"
#include "libOxUtils/utils/waitcursor.h"

#include <QFile>

ScriptResult runEmbeddedScript(const QString &name, const QStringList &arguments)
{
    const QString copy = QStringLiteral("/tmp/") + name;
    // QFile does not copy over anything, nor does it see a link that leads nowhere. If what is
    // there cannot be removed, the copying fails.
    QFile::remove(copy);
    if (!QFile::copy(QStringLiteral("://") + name, copy))
        return ScriptResult::CopyFailed;
    // The copy is not executable, and need not be: sh reads it.
    const WaitCursor waiting;
    return Utils::ExecShellFile(copy, arguments, QString()) ? ScriptResult::Done
                                                            : ScriptResult::RunFailed;
}
