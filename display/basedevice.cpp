// SPDX-License-Identifier: MIT
#include "display/basedevice.h"

#define OX_LOG_FILE "basedevice"
#include "libOxUtils/utils/log.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

BaseDevice::~BaseDevice()
{
    // Nobody is left to be told; the log is.
    static_cast<void>(CloseDevice());
}

bool BaseDevice::OpenDevice(const QString &name)
{
    if (m_fd >= 0)
        return true;

    m_name = name;
    m_fd = ::open(m_name.toUtf8().constData(), O_RDWR);
    if (m_fd < 0) {
        // Ends in a blank: see docs/compatibility.md.
        m_errorString = QStringLiteral("Error opening %1. ").arg(m_name);
        oxlog::critical(OX_LOG_HERE, oxlog::quoted(m_errorString));
        return false;
    }
    return true;
}

bool BaseDevice::CloseDevice()
{
    if (m_fd < 0)
        return true;

    if (::close(m_fd) < 0) {
        const int error = errno;
        m_errorString = QStringLiteral("Close file error. Errno is: %1").arg(error);
        oxlog::critical(OX_LOG_HERE, oxlog::quoted(m_errorString));
        return false;
    }
    m_fd = -1;
    return true;
}

QString BaseDevice::GetErrorString() const
{
    return m_errorString;
}

// The loops of WriteBytes and ReadBytes have no limit: half a transfer is never handed on, so a
// device that keeps failing keeps the caller.

int BaseDevice::WriteBytes(const char *data, int len)
{
    int done = 0;
    while (done < len) {
        const ssize_t count = ::write(m_fd, data + done, static_cast<size_t>(len - done));
        if (count > 0)
            done += static_cast<int>(count);
    }
    return done;
}

bool BaseDevice::WriteString(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    // Bytes are compared with characters: the device files take ASCII, so a text outside it is
    // written and counts as failed.
    return WriteBytes(bytes.constData(), bytes.size()) == text.size();
}

int BaseDevice::ReadBytes(char *buf, int len)
{
    int done = 0;
    while (done < len) {
        const ssize_t count = ::read(m_fd, buf + done, static_cast<size_t>(len - done));
        if (count > 0)
            done += static_cast<int>(count);
    }
    return done;
}

bool BaseDevice::ReadExact(char *buf, int len)
{
    return ReadBytes(buf, len) == len;
}
