// SPDX-License-Identifier: MIT
#include "display/boxmode.h"

#include "display/screenarea.h"
#include "libOxUtils/utils/utils.h"
#include "libOxUtils/utils/waitcursor.h"

#include <cstdlib>

namespace {

constexpr int COMMAND_START_MS = 1000;
constexpr int COMMAND_FINISH_MS = 5000;

bool run(const QString &command, QString &output, QString &error)
{
    const WaitCursor waiting;
    return Utils::ExecShellCommand(command, output, error, COMMAND_START_MS, COMMAND_FINISH_MS);
}

// Fills a template's %1, %2 and %3 with width, height and refresh rate.
QString filled(const QString &command, const DisplayMode &mode)
{
    return command.arg(QString::number(mode.width), QString::number(mode.height),
                       QString::number(mode.refreshRate));
}

} // namespace

bool readStoredMode(QString &text, QString &error)
{
    QString output;
    if (!run(QStringLiteral("fw_printenv -n display"), output, error))
        return false;
    text = output.trimmed();
    return true;
}

void switchScreen(const DisplayMode &mode)
{
    QString output;
    QString error;
    if (run(filled(QStringLiteral("xrandr -s %1x%2 -r %3"), mode), output, error))
        waitForScreen(QSize(static_cast<int>(mode.width), static_cast<int>(mode.height)));
}

bool storeMode(const DisplayMode &mode, QString &error)
{
    QString output;
    // Without the letter M, even where the mode was read with one.
    if (!run(filled(QStringLiteral("fw_setenv display %1x%2@%3"), mode), output, error))
        return false;
    const WaitCursor waiting;
    // Not checked: the mode is stored by then. A cast to void does not satisfy the C library.
    const int ignored = std::system("sync");
    Q_UNUSED(ignored)
    return true;
}
