// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// "text"_s, from UTF-8.
inline QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, static_cast<int>(size));
}
