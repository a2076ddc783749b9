// SPDX-License-Identifier: MIT
#include "app/shellprofile.h"

#define OX_LOG_FILE "shellprofile"
#include "libOxUtils/utils/log.h"

#include "app/languages.h"

#include <QFile>
#include <QFileInfo>

#include <unistd.h>

QByteArray localeLine(const QString &item)
{
    std::string_view line = FALLBACK_LANGUAGE.localeLine;
    for (const Language &language : LANGUAGES) {
        if (item == QLatin1String(language.item))
            line = language.localeLine;
    }
    return {line.data(), static_cast<int>(line.size())};
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

    const QByteArray profile = file.readAll();
    // A file that breaks off in the middle is read without an error, and comes out too short.
    if (file.error() != QFileDevice::NoError || profile.size() != file.size()) {
        oxlog::critical(OX_LOG_HERE,
                        QStringLiteral("Reading %1 failed, nothing is written.").arg(fileName));
        return true;
    }

    // The lines of LANGUAGES replace each other cleanly, being of one length. A longer foreign line
    // leaves its tail, a shorter one loses its end: see docs/compatibility.md.
    file.seek(localeLineOffset(profile));
    file.write(line);
    file.close();
    ::sync();
    return true;
}
