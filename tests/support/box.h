// SPDX-License-Identifier: MIT
// Files, and what the stand-ins of the simulated box record.
#pragma once

#include "tests/support/text.h"

#include <QFile>
#include <QtTest>

namespace box {

// A null content takes the file away.
inline void write(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    if (content.isNull())
        file.remove();
    else
        QVERIFY2(file.open(QIODevice::WriteOnly) && file.write(content) >= 0, qPrintable(fileName));
}

// Null if there is no such file.
inline QByteArray read(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The calls since they were last forgotten, but for those that fetch an EDID block: the switch of
// the lines is recorded when its turn comes.
inline QString calls()
{
    static const QRegularExpression fetching("(?m)^(i2c|\\w+ switched) .*\n"_s);
    return QString::fromUtf8(read("/run/simbox/calls"_s)).remove(fetching);
}

inline void forgetCalls()
{
    QFile::resize("/run/simbox/calls"_s, 0);
}

} // namespace box
