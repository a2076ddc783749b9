// SPDX-License-Identifier: MIT
// Starting a program whose command line comes in one string: it is split at blanks, double
// quotes group a word that holds blanks, and no shell is involved (no pipes, redirections,
// variables or wildcards).
#pragma once

#include <QProcess>
#include <QString>

// A process in a session of its own: Ctrl+C in a terminal reaches the tool and what it has started
// alike, and would end a command in the middle of what it writes.
class CommandProcess : public QProcess
{
public:
    CommandProcess();

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
protected:
    void setupChildProcess() override;
#endif
};

// Starts the command read-write. Whether it really starts shows in QProcess::waitForStarted();
// a command without any word fails to start.
void startCommand(QProcess &process, const QString &command);

// Starts the command on its own, so that it outlives this program. False: it could not be
// started, or the command holds no word.
[[nodiscard]] bool startDetachedCommand(const QString &command);
