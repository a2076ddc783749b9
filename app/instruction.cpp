// SPDX-License-Identifier: MIT
#include "app/instruction.h"

QString noDisplayForInstruction(const QString &typed)
{
    if (typed == QLatin1String("LiftHarborGate"))
        return QStringLiteral("false");
    if (typed == QLatin1String("LowerHarborGate"))
        return QStringLiteral("true");
    return {};
}
