// SPDX-License-Identifier: MIT
// Running programs and scripts synchronously, and a few helpers around files, semaphores and
// texts. All time-outs are in milliseconds, a negative one means without limit. The output of
// programs is taken as UTF-8 up to its first NUL byte. Failures are reported by the result and
// in the log only.
#pragma once

#include <QString>
#include <QStringList>

class QSemaphore;

class Utils
{
public:
    Utils() = delete;

    // Runs one command line (see commandline.h for its form) and waits for its end. output and
    // error receive what it wrote, untrimmed, also when it ends with a failure; they stay as they
    // are if it does not start or does not end in time, and then it is ended. False: one of
    // these two, a non-zero exit code, or an end by a signal.
    [[nodiscard]] static bool ExecShellCommand(const QString &command, QString &output,
                                               QString &error, int startTimeoutMs,
                                               int finishTimeoutMs);

    // Runs two command lines, the standard output of the first being the standard input of the
    // second. output and error are those of the second; both time-outs hold for each of the two.
    // True only if both end normally with exit code 0; otherwise as ExecShellCommand().
    [[nodiscard]] static bool ExecPipeShellCommand(const QString &firstCommand,
                                                   const QString &secondCommand, QString &output,
                                                   QString &error, int startTimeoutMs,
                                                   int finishTimeoutMs);

    // Runs a script with "sh" in workingDirectory (empty: the current one) and waits for its
    // end, however long that takes; pending events are served every 30 seconds, so callers must
    // tolerate re-entry. What the script wrote goes to the log. False: "sh" did not start within
    // 30 seconds, a non-zero exit code, or an end by a signal.
    [[nodiscard]] static bool ExecShellFile(const QString &scriptPath, const QStringList &arguments,
                                            const QString &workingDirectory);

    // Finds where a device node is mounted, by searching the lines of /proc/mounts for devNode (a
    // basic regular expression without blanks). False: not found, mountPoint is unchanged.
    [[nodiscard]] static bool GetMountPointFromDevNode(QString &mountPoint, const QString &devNode);

    // Deletes the plain files of a directory that match nameFilters (none: all) and whose name
    // holds, as its characters 4 to 11, a date "yyyyMMdd" more than days days away from today, in
    // the past or in the future. A name without a date counts as 0 days away.
    static void ClearOldFiles(const QString &directory, const QStringList &nameFilters, int days);

    // Sets the number of available units to count (a negative one means 0). The semaphore must not
    // be null, nor be in use elsewhere meanwhile.
    static void InitSemaphore(QSemaphore *semaphore, int count);

    // The second blank-separated word that "program -v" prints; empty if that fails.
    static QString GetProgramVersion(const QString &program);

    // Takes n units at a time, waiting up to 5 ms for each, and keeps them. True: fewer than n are
    // left. False: (timeoutMs - 1) / 5 + 1 takes succeeded, which is the limit. Without limit and
    // with n = 0 it does not return. The semaphore must not be null.
    [[nodiscard]] static bool DrainSemaphore(QSemaphore *semaphore, int n, int timeoutMs);

    // "text [ERRNO: errnum message]" with the system's message for errnum.
    static QString ErrnoString(const QString &text, int errnum);

    // Cuts each line of text from the first marker on (case-sensitive) and joins the lines in
    // result. Lines empty from the start are dropped, those emptied by the cut are kept. An empty
    // marker is found at the start of every line.
    static void StripComments(QString &result, const QString &text, const QString &marker);

    // The MD5 digest of a file as 32 upper-case hexadecimal digits; of a file that cannot be read,
    // the digest of empty data.
    static QString GetFileMd5(const QString &filePath);
};
