// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>

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

    // Creates the file if it is missing and locks it until the lock is released, taken again or
    // destroyed. Never waits.
    Result take(const QString &fileName);
    void release() { m_file.close(); }

private:
    QFile m_file;
};
