// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

// The lock that one instance holds. The kernel keeps it and ends it with the process, however that
// ends: what a crash or a power cut leaves behind is a file and no lock. The file itself is never
// read, written or removed. Its directory may be everybody's, so what stands under its name may be
// a pipe, a link or a file of another user's.
class InstanceLock
{
public:
    enum class [[nodiscard]] Result{
        Taken,
        Held,     // by another process of this user
        Unusable, // not to be created, or not a file of this user's own
    };

    // Takes the path; nothing is opened yet.
    explicit InstanceLock(const QString &fileName);
    ~InstanceLock();
    Q_DISABLE_COPY(InstanceLock)

    // Creates the file if it is missing and locks it. Never waits.
    Result take();
    void release();

private:
    const QByteArray m_fileName;
    int m_fd = -1;
};
