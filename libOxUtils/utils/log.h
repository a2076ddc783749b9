// SPDX-License-Identifier: MIT
// Messages to the toolkit's log with a context of our own, release builds included: the
// toolkit's macros drop file, line and function there, and support staff filter on them.
//
// A source file defines OX_LOG_FILE, the name it logs under, before its first include of this
// header. A file that has messages at fixed positions lists their line numbers in
// OX_LOG_FIXED_POSITIONS there as well; the build then fails when another message of that file
// lands on one of them.
#pragma once

#include <QString>

#include <initializer_list>

namespace oxlog {

// Where a message comes from. The texts are literals and are never freed.
struct Site
{
    const char *file;
    int line;
    const char *function;
};

// Writes one debug message, the text as it stands, category "default".
void debug(const Site &site, const QString &text);

// Writes one critical message, the text as it stands, category "default".
void critical(const Site &site, const QString &text);

// The text in double quotes, nothing escaped.
QString quoted(const QString &text);

constexpr bool contains(std::initializer_list<int> positions, int line)
{
    for (int position : positions) {
        if (position == line)
            return true;
    }
    return false;
}

template<bool clear>
constexpr int freeLine(int line)
{
    static_assert(clear,
                  "this line number belongs to a message with a fixed position: move the call");
    return line;
}

template<bool listed>
constexpr int fixedLine(int line)
{
    static_assert(listed, "not among this file's OX_LOG_FIXED_POSITIONS");
    return line;
}

} // namespace oxlog

#ifndef OX_LOG_FIXED_POSITIONS
#    define OX_LOG_FIXED_POSITIONS
#endif

// The site of the message written here, under the full signature of the enclosing function.
#define OX_LOG_HERE                                                                                \
    (oxlog::Site{OX_LOG_FILE,                                                                      \
                 oxlog::freeLine<!oxlog::contains({OX_LOG_FIXED_POSITIONS}, __LINE__)>(__LINE__),  \
                 Q_FUNC_INFO})

// The same with the line number under which support staff know the message.
#define OX_LOG_AT(position)                                                                        \
    (oxlog::Site{OX_LOG_FILE,                                                                      \
                 oxlog::fixedLine<oxlog::contains({OX_LOG_FIXED_POSITIONS}, position)>(position),  \
                 Q_FUNC_INFO})
