// SPDX-License-Identifier: MIT
// For tests that run inside the simulated box: its files, and what its stand-ins record.
#pragma once

#include <QFile>
#include <QtTest>

namespace box {

// A null content takes the file away.
inline void write(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    if (content.isNull()) {
        file.remove();
        return;
    }
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(fileName));
    file.write(content);
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
    QString result;
    for (const QByteArray &line : read(QStringLiteral("/run/simbox/calls")).split('\n')) {
        if (!line.isEmpty() && !line.startsWith("i2c ") && !line.startsWith("vga "))
            result += QString::fromUtf8(line) + u'\n';
    }
    return result;
}

inline void forgetCalls()
{
    QFile::resize(QStringLiteral("/run/simbox/calls"), 0);
}

} // namespace box
