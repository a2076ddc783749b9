// SPDX-License-Identifier: MIT
// The small text files that say what box this is: only their lines that are not empty count.
#pragma once

#include <QStringList>

// The file's lines that are not empty, as they stand, blanks included, in the locale's encoding and
// without their line ends. None when path is not a regular file or cannot be read.
QStringList keptLines(const QString &path);

// The first and the last of the file's kept lines, trimmed. false, and line is empty, when there is
// none; a line of blanks is one, and is empty once trimmed.
bool firstKeptLine(const QString &path, QString &line);
bool lastKeptLine(const QString &path, QString &line);
