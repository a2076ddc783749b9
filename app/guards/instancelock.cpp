// SPDX-License-Identifier: MIT
#include "app/guards/instancelock.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// A file with a second name could be any file of this user's that others may read and so lock.
bool isOwnFile(int fd)
{
    struct stat status = {};
    return fstat(fd, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == getuid() &&
           status.st_nlink == 1;
}

} // namespace

InstanceLock::Result InstanceLock::take(const QString &fileName)
{
    release();
    // Looked at once it is open, so that nobody can exchange it in between. Opening follows no
    // link and waits for nobody at the other end of a pipe; programs started later do not inherit
    // the lock; and other users, who may not open the file, cannot hold it.
    const int fd =
        open(QFile::encodeName(fileName).constData(),
             O_RDONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (fd == -1 || !m_file.open(fd, QIODevice::ReadOnly, QFile::AutoCloseHandle) || !isOwnFile(fd))
        return Result::Unusable;
    if (flock(fd, LOCK_EX | LOCK_NB) == 0)
        return Result::Taken;
    return errno == EWOULDBLOCK ? Result::Held : Result::Unusable;
}
