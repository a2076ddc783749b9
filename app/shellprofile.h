// SPDX-License-Identifier: MIT
// The shell profile's line that sets the locale.
#pragma once

#include <QByteArray>
#include <QString>

inline constexpr char SHELL_PROFILE[] = "/etc/profile";

// The line that a choice in the language box stands for. The choice is compared with the
// untranslated items of LANGUAGES; everything else, a translation of one included, means the
// fallback, English.
QByteArray localeLine(const QString &item);

// The offset in bytes at which the locale line is written: the start of the first line that holds
// "export LANG" anywhere, in a comment as well, or the end of the profile.
qint64 localeLineOffset(const QByteArray &profile);

// Writes line over what stands at that offset of the file, in place: nothing is cut off or moved,
// and no line end is added. False when the file cannot be opened for reading and writing; it is
// not created. When it cannot be read to its end, the log says so and nothing is written. Errors of
// the write itself are not looked at.
[[nodiscard]] bool writeLocaleLine(const QString &fileName, const QByteArray &line);
