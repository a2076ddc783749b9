// SPDX-License-Identifier: MIT
#include "app/shellprofile.h"

#include "app/languages.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <unistd.h>

QByteArray localeLine(const QString &item)
{
    const auto *const chosen =
        std::find_if(std::begin(LANGUAGES), std::end(LANGUAGES), [&item](const Language &language) {
            return item == QLatin1String(language.item);
        });
    const Language &language = chosen == std::end(LANGUAGES) ? FALLBACK_LANGUAGE : *chosen;
    return {language.localeLine.data(), static_cast<int>(language.localeLine.size())};
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

    // The lines of LANGUAGES replace each other cleanly, being of one length; what a longer or
    // shorter foreign line leaves behind is accepted.
    file.seek(localeLineOffset(file.readAll()));
    file.write(line);
    file.close();
    ::sync();
    return true;
}
