// SPDX-License-Identifier: MIT
#include "libOxUtils/utils/commandline.h"

#include <QProcess>
#include <QStringList>

// Qt 5.15 deprecates the one-string forms and brings splitCommand(), which earlier versions lack.

#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)

void startCommand(QProcess &process, const QString &command)
{
    QStringList words = QProcess::splitCommand(command);
    const QString program = words.isEmpty() ? QString() : words.takeFirst();
    process.start(program, words, QIODevice::ReadWrite);
}

bool startDetachedCommand(const QString &command)
{
    QStringList words = QProcess::splitCommand(command);
    if (words.isEmpty())
        return false;
    const QString program = words.takeFirst();
    return QProcess::startDetached(program, words);
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
