// SPDX-License-Identifier: MIT
#include "app/shellprofile.h"

#include <QFile>
#include <QFileInfo>

#include <unistd.h>

QByteArray localeLine(const QString &language)
{
    return language == QLatin1String("Chinese") ? QByteArrayLiteral("export LANG=zh_CN.UTF-8")
                                                : QByteArrayLiteral("export LANG=en_US.UTF-8");
}

qint64 localeLineOffset(const QByteArray &profile)
{
    const int marker = profile.indexOf("export LANG");
    if (marker < 0)
        return profile.size();
    return profile.lastIndexOf('\n', marker) + 1;
}

bool writeLocaleLine(const QString &fileName, const QByteArray &line)
{
    QFile file(fileName);
    // Anything but a file, a pipe for one, could hold the program for ever; and without the last
    // flag opening would create a missing profile.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return false;

    // Both lines that the tool writes are 23 characters long, so they replace each other cleanly;
    // what a longer or shorter foreign line leaves behind is accepted.
    file.seek(localeLineOffset(file.readAll()));
    file.write(line);
    file.close();
    ::sync();
    return true;
}
