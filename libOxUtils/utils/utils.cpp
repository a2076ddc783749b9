// SPDX-License-Identifier: MIT
#include "libOxUtils/utils/utils.h"

#define OX_LOG_FILE "libOxUtils/utils/utils"
#include "libOxUtils/utils/log.h"

#include "libOxUtils/utils/commandline.h"
#include "libOxUtils/utils/qtversions.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QSemaphore>

#include <algorithm>
#include <cstring>

namespace {

constexpr int SCRIPT_WAIT_MS = 30000;
constexpr int ACQUIRE_WAIT_MS = 5;

const QString START_FAILED = QStringLiteral("Starting process failed - waitForStarted.");
const QString FINISH_TIMED_OUT = QStringLiteral("Executing process timeout - waitForFinished.");

QString textUpToNul(const QByteArray &bytes)
{
    return QString::fromUtf8(bytes.constData());
}

bool hasSucceeded(const QProcess &process)
{
    return process.exitCode() == 0 && process.exitStatus() == QProcess::NormalExit;
}

} // namespace

bool Utils::ExecShellCommand(const QString &command, QString &output, QString &error,
                             int startTimeoutMs, int finishTimeoutMs)
{
    // Its destruction ends a process that is still running.
    CommandProcess process;
    startCommand(process, command);
    if (!process.waitForStarted(startTimeoutMs)) {
        oxlog::critical(OX_LOG_HERE, START_FAILED);
        return false;
    }
    if (!process.waitForFinished(finishTimeoutMs)) {
        oxlog::critical(OX_LOG_HERE, FINISH_TIMED_OUT);
        return false;
    }
    output = textUpToNul(process.readAllStandardOutput());
    error = textUpToNul(process.readAllStandardError());
    return hasSucceeded(process);
}

bool Utils::ExecPipeShellCommand(const QString &firstCommand, const QString &secondCommand,
                                 QString &output, QString &error, int startTimeoutMs,
                                 int finishTimeoutMs)
{
    CommandProcess first;
    CommandProcess second;
    first.setStandardOutputProcess(&second);
    startCommand(first, firstCommand);
    startCommand(second, secondCommand);
    if (!first.waitForStarted(startTimeoutMs) || !second.waitForStarted(startTimeoutMs)) {
        oxlog::critical(OX_LOG_HERE, START_FAILED);
        return false;
    }
    if (!first.waitForFinished(finishTimeoutMs) || !second.waitForFinished(finishTimeoutMs)) {
        oxlog::critical(OX_LOG_HERE, FINISH_TIMED_OUT);
        return false;
    }
    output = textUpToNul(second.readAllStandardOutput());
    error = textUpToNul(second.readAllStandardError());
    return hasSucceeded(first) && hasSucceeded(second);
}

bool Utils::ExecShellFile(const QString &scriptPath, const QStringList &arguments,
                          const QString &workingDirectory)
{
    CommandProcess process;
    process.setWorkingDirectory(workingDirectory);
    process.start(QStringLiteral("sh"), QStringList(scriptPath) + arguments, QIODevice::ReadWrite);
    if (!process.waitForStarted(SCRIPT_WAIT_MS)) {
        oxlog::debug(OX_LOG_HERE, QStringLiteral("Executing shell command failed."));
        return false;
    }
    // When the script ends while events are served, waiting for its end would fail for ever.
    while (process.state() != QProcess::NotRunning && !process.waitForFinished(SCRIPT_WAIT_MS))
        QCoreApplication::processEvents();

    oxlog::debug(OX_LOG_HERE, QStringLiteral("readAllStandardOutput: ") +
                                  textUpToNul(process.readAllStandardOutput()));
    oxlog::debug(OX_LOG_HERE, QStringLiteral("readAllStandardError: ") +
                                  textUpToNul(process.readAllStandardError()));
    oxlog::debug(OX_LOG_HERE, QStringLiteral("exitCode: %1 exitStatus: %2")
                                  .arg(QString::number(process.exitCode()),
                                       QString::number(static_cast<int>(process.exitStatus()))));
    return hasSucceeded(process);
}

bool Utils::GetMountPointFromDevNode(QString &mountPoint, const QString &devNode)
{
    QString output;
    QString error;
    if (!ExecPipeShellCommand(QStringLiteral("cat /proc/mounts"),
                              QStringLiteral("grep %1").arg(devNode), output, error, 1000, 5000)) {
        oxlog::critical(OX_LOG_HERE, oxlog::quoted(error));
        return false;
    }
    // The fields of all matching lines run together; the second belongs to the first line.
    const QStringList fields = output.trimmed().split(QRegularExpression(QStringLiteral("\\s+")),
                                                      qtversions::SKIP_EMPTY_PARTS);
    if (fields.size() <= 2)
        return false;
    mountPoint = fields.at(1);
    return true;
}

QString Utils::GetProgramVersion(const QString &program)
{
    QString output;
    QString error;
    if (!ExecPipeShellCommand(QStringLiteral("%1 -v").arg(program),
                              QStringLiteral("cut -d \" \" -f 2"), output, error, 3000, 5000))
        return QString();
    return output.trimmed();
}

void Utils::ClearOldFiles(const QString &directory, const QStringList &nameFilters, int days)
{
    const QDir dir(directory);
    if (!dir.exists())
        return;
    const QLocale locale(QLocale::English, QLocale::UnitedStates);
    const QDate today = QDate::currentDate();
    const QFileInfoList files = dir.entryInfoList(nameFilters, QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        const QDate date = locale.toDate(file.baseName().mid(3, 8), QStringLiteral("yyyyMMdd"));
        // An invalid date is 0 days away from any other.
        if (qAbs(date.daysTo(today)) > days) {
            oxlog::debug(OX_LOG_HERE,
                         QStringLiteral("Remove outdated old file %1").arg(file.fileName()));
            QFile::remove(file.filePath());
        }
    }
}

void Utils::InitSemaphore(QSemaphore *semaphore, int count)
{
    // Acquiring down to less than nothing would wait for ever.
    const int wanted = std::max(count, 0);
    const int available = semaphore->available();
    if (available < wanted)
        semaphore->release(wanted - available);
    else if (available > wanted)
        semaphore->acquire(available - wanted);
    oxlog::debug(OX_LOG_HERE, QStringLiteral("available: %1").arg(semaphore->available()));
}

bool Utils::DrainSemaphore(QSemaphore *semaphore, int n, int timeoutMs)
{
    // A semaphore cannot be asked for a negative number: that take fails.
    if (n < 0)
        return true;
    const bool limited = timeoutMs >= 0;
    int left = limited ? (timeoutMs - 1) / ACQUIRE_WAIT_MS + 1 : 1;
    while (left > 0) {
        if (!semaphore->tryAcquire(n, ACQUIRE_WAIT_MS))
            return true;
        if (limited)
            --left;
    }
    return false;
}

QString Utils::ErrnoString(const QString &text, int errnum)
{
    return QStringLiteral("%1 [ERRNO: %2 %3]")
        .arg(text, QString::number(errnum), QString::fromUtf8(std::strerror(errnum)));
}

void Utils::StripComments(QString &result, const QString &text, const QString &marker)
{
    QStringList lines = text.split(QLatin1Char('\n'), qtversions::SKIP_EMPTY_PARTS);
    for (QString &line : lines) {
        const int start = line.indexOf(marker);
        if (start >= 0)
            line.truncate(start);
    }
    result = lines.join(QLatin1Char('\n'));
}

QString Utils::GetFileMd5(const QString &filePath)
{
    QCryptographicHash hash(QCryptographicHash::Md5);
    QFile file(filePath);
    if (file.open(QIODevice::ReadOnly))
        hash.addData(&file);
    return QString::fromLatin1(hash.result().toHex().toUpper());
}
