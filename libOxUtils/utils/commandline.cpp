// SPDX-License-Identifier: MIT
#include "libOxUtils/utils/commandline.h"

#include <QStringList>

#include <unistd.h>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)

CommandProcess::CommandProcess()
{
    setChildProcessModifier([] { ::setsid(); });
}

#else

CommandProcess::CommandProcess() = default;

void CommandProcess::setupChildProcess()
{
    ::setsid();
}

#endif

// Qt 5.15 deprecates the one-string forms and brings splitCommand(), which earlier versions lack.

#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)

void startCommand(QProcess &process, const QString &command)
{
    const QStringList words = QProcess::splitCommand(command);
    process.start(words.value(0), words.mid(1), QIODevice::ReadWrite);
}

bool startDetachedCommand(const QString &command)
{
    const QStringList words = QProcess::splitCommand(command);
    return QProcess::startDetached(words.value(0), words.mid(1));
}

#else

void startCommand(QProcess &process, const QString &command)
{
    process.start(command, QIODevice::ReadWrite);
}

bool startDetachedCommand(const QString &command)
{
    return QProcess::startDetached(command);
}

#endif
