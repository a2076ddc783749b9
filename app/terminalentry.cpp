// SPDX-License-Identifier: MIT
#include "app/terminalentry.h"

#include "libOxUtils/fileio/conffile.h"

namespace {

// What the instruction sets "NoDisplay" to; a null string for any other text.
QString noDisplayFor(const QString &typed)
{
    if (typed == QLatin1String("LiftHarborGate"))
        return QStringLiteral("false");
    if (typed == QLatin1String("LowerHarborGate"))
        return QStringLiteral("true");
    return {};
}

} // namespace

InstructionResult followInstruction(const QString &typed)
{
    if (typed.isEmpty())
        return InstructionResult::None;
    ConfFile entry(QStringLiteral("/usr/share/applications/matchbox-terminal.desktop"));
    if (!entry.LoadConf())
        return InstructionResult::NoEntry;
    const QString noDisplay = noDisplayFor(typed);
    if (noDisplay.isNull())
        return InstructionResult::Unknown;
    entry.SetValue(QStringLiteral("NoDisplay"), noDisplay);
    // Not told: the log has the reason, and the launcher shows whether it has changed.
    static_cast<void>(entry.SaveConf());
    return InstructionResult::Followed;
}
