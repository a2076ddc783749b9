// SPDX-License-Identifier: MIT
// Messages to the toolkit's log with a context of our own, release builds included: the
// toolkit's macros drop file, line and function there, and support staff filter on them.
//
// A source file defines OX_LOG_FILE, the name it logs under, before its first include of this
// header. A file that has messages at fixed positions lists their names and line numbers there as
// well, in a macro that is given what to do with each:
//
//     #define OX_LOG_FIXED_POSITIONS(position) position(FONT_FAMILY, 37) position(...)
//
// The build then fails when another message of that file lands on one of them.
#pragma once

#include <QString>

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

template<bool isFree>
constexpr int freeLine(int line)
{
    static_assert(isFree,
                  "this line number belongs to a message with a fixed position: move the call");
    return line;
}

} // namespace oxlog

#ifndef OX_LOG_FIXED_POSITIONS
#    define OX_LOG_FIXED_POSITIONS(position)
#endif
// A name that is declared stands without parentheses. NOLINTNEXTLINE(bugprone-macro-parentheses)
#define OX_LOG_POSITION(name, line) constexpr int name = line;
#define OX_LOG_IS_NOT_AT(name, line) &&__LINE__ != (line)

namespace oxlog::positions {
OX_LOG_FIXED_POSITIONS(OX_LOG_POSITION)
} // namespace oxlog::positions

// The site of the message written here, under the full signature of the enclosing function.
#define OX_LOG_HERE                                                                                \
    (oxlog::Site{OX_LOG_FILE,                                                                      \
                 oxlog::freeLine<true OX_LOG_FIXED_POSITIONS(OX_LOG_IS_NOT_AT)>(__LINE__),         \
                 Q_FUNC_INFO})

// The same with the line number under which support staff know the message of that name.
#define OX_LOG_AT(name) (oxlog::Site{OX_LOG_FILE, oxlog::positions::name, Q_FUNC_INFO})
