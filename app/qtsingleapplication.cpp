// SPDX-License-Identifier: MIT
#include "app/qtsingleapplication.h"

#define OX_LOG_FILE "qtsingleapplication"
#include "libOxUtils/utils/log.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QLocalSocket>
#include <QThread>

#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int RETRY_MS = 20;
constexpr char END_OF_MESSAGE = '\0'; // an older version waits for it before it answers
constexpr char ANSWER = '\x06';       // ASCII acknowledge

QString basePath()
{
    return QStringLiteral("%1/%2-%3")
        .arg(QDir::tempPath(), QCoreApplication::applicationName(), QString::number(getuid()));
}

// The kernel's word for who is at the other end; a file's owner in /tmp proves nothing.
bool isPeerSameUser(const QLocalSocket &socket)
{
    ucred peer = {};
    socklen_t length = sizeof(peer);
    const int fd = static_cast<int>(socket.socketDescriptor());
    return getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &peer, &length) == 0 && peer.uid == getuid();
}

// True when the running instance has answered.
bool exchange(QLocalSocket &socket, const QString &message, const QDeadlineTimer &deadline)
{
    socket.write(message.toUtf8() + END_OF_MESSAGE);
    char answer = 0;
    return socket.waitForReadyRead(static_cast<int>(deadline.remainingTime())) &&
           socket.read(&answer, 1) == 1 && answer == ANSWER;
}

} // namespace

QtSingleApplication::QtSingleApplication(int &argc, char **argv, bool guiEnabled)
    : QApplication(argc, argv)
    , m_basePath(basePath())
{
    Q_UNUSED(guiEnabled)
    connect(&m_server, &QLocalServer::newConnection, this,
            &QtSingleApplication::answerPendingConnections);
    m_isSecond = !becomeFirst();
}

bool QtSingleApplication::becomeFirst()
{
    switch (m_lock.take(m_basePath + QStringLiteral(".lock"))) {
    case InstanceLock::Result::Taken:
        break;
    case InstanceLock::Result::Held:
        return false;
    case InstanceLock::Result::Unusable:
        oxlog::critical(OX_LOG_HERE,
                        QStringLiteral("Locking %1.lock failed, running without a lock.")
                            .arg(m_basePath));
        return true;
    }

    // The lock is ours, so a socket that stands there is left over.
    const QString socketPath = m_basePath + QStringLiteral(".socket");
    QLocalServer::removeServer(socketPath);
    if (!m_server.listen(socketPath)) {
        oxlog::critical(OX_LOG_HERE, QStringLiteral("Listening on %1 failed: %2")
                                         .arg(socketPath, m_server.errorString()));
        // Held, it would make every other start wait for an answer in vain.
        m_lock.release();
    }
    return true;
}

bool QtSingleApplication::sendMessage(const QString &message, int timeout)
{
    const QDeadlineTimer deadline(timeout);
    while (m_isSecond && !deadline.hasExpired()) {
        QLocalSocket socket;
        socket.connectToServer(m_basePath + QStringLiteral(".socket"));
        if (socket.waitForConnected(static_cast<int>(deadline.remainingTime()))) {
            if (!isPeerSameUser(socket))
                return false;
            if (exchange(socket, message, deadline))
                return true;
        }
        // The other instance is still starting, or it has ended meanwhile.
        QThread::msleep(RETRY_MS);
        m_isSecond = !becomeFirst();
    }
    if (m_isSecond)
        oxlog::critical(OX_LOG_HERE, QStringLiteral("The running instance gives no answer."));
    return false;
}

void QtSingleApplication::answerPendingConnections()
{
    while (QLocalSocket *peer = m_server.nextPendingConnection()) {
        connect(peer, &QLocalSocket::disconnected, peer, &QObject::deleteLater);
        // Whatever it says: it asks whether anybody is there.
        connect(peer, &QLocalSocket::readyRead, peer, [peer] {
            peer->write(&ANSWER, 1);
            peer->disconnectFromServer();
        });
    }
}
