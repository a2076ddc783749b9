// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QKeyEvent;

// Lets only keys that move or type repeat themselves while they are held. Any other key, F12 or
// Escape for one, would start its action again and again, or end first the dialog that it was
// pressed in, then the one below and at last the program.
class KeyRepeatGuard : public QObject
{
public:
    using QObject::QObject;

    // Installed on the application. True: the key press is not passed on.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isRepeat(const QKeyEvent &press) const;

    // The key that was let go last, and the server's time of that in milliseconds.
    int m_releasedKey = 0;
    quint64 m_releasedAt = 0;
};
