// SPDX-License-Identifier: MIT
// The toolkit's versions, from 5.11 to 6, differ in what stands here and nowhere else.
#pragma once

#include <QLibraryInfo>
#include <QString>
#include <QTextStream>

namespace qtversions {

#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
constexpr auto SKIP_EMPTY_PARTS = Qt::SkipEmptyParts;
#else
constexpr auto SKIP_EMPTY_PARTS = QString::SkipEmptyParts;
#endif

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
// What a native event filter may tell the window system.
using NativeEventResult = qintptr;

inline QString toolkitTranslationsPath()
{
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
}

// Qt 5's streams are in the locale's encoding by themselves.
inline void useLocaleEncoding(QTextStream &stream)
{
    stream.setEncoding(QStringConverter::System);
}
#else
using NativeEventResult = long;

inline QString toolkitTranslationsPath()
{
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
}

inline void useLocaleEncoding(QTextStream & /*stream*/) {}
#endif

} // namespace qtversions
