// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The program's version, such as "1.2.921.74336": 1.2 in every build, then the build's month and
// day, and its time of day. Needs no application object.
QString GetAppVersion();

// The version of a build at the given date and time, both in the compiler's form and taken as local
// time. Date and time parts are empty when they cannot be read.
QString appVersion(const QString &buildDate, const QString &buildTime);
