// SPDX-License-Identifier: MIT
// What differs between the toolkit's versions, from 5.11 to 6; only commandline.h and
// commandline.cpp have more of it.
#pragma once

#include <QLibraryInfo>
#include <QString>

namespace qtversions {

#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
constexpr auto SKIP_EMPTY_PARTS = Qt::SkipEmptyParts;
#else
constexpr auto SKIP_EMPTY_PARTS = QString::SkipEmptyParts;
#endif

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
inline QString toolkitTranslationsPath()
{
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
}
#else
inline QString toolkitTranslationsPath()
{
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
}
#endif

} // namespace qtversions
