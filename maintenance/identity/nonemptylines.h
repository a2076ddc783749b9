// SPDX-License-Identifier: MIT
// The small text files that say what box this is: only their lines that are not empty count.
#pragma once

#include <QStringList>

// The file's lines that are not empty, as they stand, blanks included, in the locale's encoding and
// without their line ends. None when path is not a regular file or cannot be read.
QStringList nonEmptyLines(const QString &path);
