// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

// Where the clock's script is copied to.
inline const QString CLOCK_SCRIPT_COPY = QStringLiteral("/tmp/calclock.sh");

enum class [[nodiscard]] ScriptResult{
    CopyFailed, // nothing was run
    RunFailed,  // did not start, or did not end with status 0
    Done,
};

// Copies the script of that name from the root of the resource tree into /tmp, over a copy that an
// earlier run left, and runs it through sh with the arguments, in the current directory and
// for as long as it takes. The pointer is a wait cursor meanwhile. The copy is left to the caller,
// and so is every message.
ScriptResult runEmbeddedScript(const QString &name, const QStringList &arguments);
