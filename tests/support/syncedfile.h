// SPDX-License-Identifier: MIT
// What a file holds when the program has the storage written, in place of the C library's sync().
#pragma once

#include "tests/support/box.h"

inline QString syncedFile; // its name
inline QByteArray syncedContent;

extern "C" void sync() noexcept
{
    syncedContent = box::read(syncedFile);
}
