// SPDX-License-Identifier: MIT
#include "maintenance/identity/nonemptylines.h"

#include <QFile>
#include <QFileInfo>
#include <QTextStream>

QStringList nonEmptyLines(const QString &path)
{
    QStringList lines;
    // A pipe could keep the window waiting, and a device need not end.
    if (!QFileInfo(path).isFile())
        return lines;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return lines;
    QTextStream stream(&file);
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        if (!line.isEmpty())
            lines << line;
    }
    return lines;
}
