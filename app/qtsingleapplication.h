// SPDX-License-Identifier: MIT
// An application object of which one per user runs at a time.
#pragma once

#include "app/guards/instancelock.h"

#include <QApplication>
#include <QLocalServer>

class QtSingleApplication : public QApplication
{
public:
    // Looks whether another instance of this program runs for this user, and becomes the running
    // instance if there is none. The instances of a user meet at a lock file and a socket in the
    // temporary directory, both named after the program and the user's number. guiEnabled is
    // always true: a program with widgets has no other kind of application object.
    QtSingleApplication(int &argc, char **argv, bool guiEnabled = true);

    // Sends message to the running instance and waits for its answer, timeout milliseconds at
    // most over connecting, writing and the answer. False when this is the running instance, when
    // none under the same user answers in time, or when lock or socket cannot be made in the
    // temporary directory: the caller then starts up as usual.
    [[nodiscard]] bool sendMessage(const QString &message, int timeout = 5000);

private:
    // False while somebody else holds the lock. Where lock or socket cannot be made, this is the
    // first as well, and the log says why.
    bool becomeFirst();
    void answerPendingConnections();

    const QString m_basePath;
    InstanceLock m_lock;
    QLocalServer m_server;
    bool m_isSecond = true;
};
