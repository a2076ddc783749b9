// SPDX-License-Identifier: MIT
#include "maintenance/identity/appversion.h"

#include "maintenance/identity/buildstamp.h"

#include <QDateTime>
#include <QLocale>

namespace {

// Every version begins with these, whatever the package's own version is.
constexpr int VERSION_MAJOR = 1;
constexpr int VERSION_MINOR = 2;

// The zone that versions are told in, UTC+8.
constexpr int VERSION_ZONE_SECONDS = 8 * 60 * 60;

} // namespace

QString GetAppVersion()
{
    return appVersion(QString::fromLatin1(BUILD_DATE), QString::fromLatin1(BUILD_TIME));
}

QString appVersion(const QString &buildDate, const QString &buildTime)
{
    // A one-digit day is padded with a second blank.
    const QString built = QStringLiteral("%1 %2").arg(buildDate, buildTime).simplified();
    const QDateTime local = QLocale(QLocale::English, QLocale::UnitedStates)
                                .toDateTime(built, QStringLiteral("MMM d yyyy HH:mm:ss"));
    // The build's time is read as local time of the box and told in UTC+8. On a box in that zone
    // the version shows the build's own clock; on a box in another zone the same build shows
    // another version.
    const QDateTime shown = local.toOffsetFromUtc(VERSION_ZONE_SECONDS);
    // The last part is an empty suffix.
    return QStringLiteral("%1.%2.%3.%4%5")
        .arg(QString::number(VERSION_MAJOR), QString::number(VERSION_MINOR),
             shown.date().toString(QStringLiteral("Mdd")),
             shown.time().toString(QStringLiteral("Hmmss")), QString());
}
