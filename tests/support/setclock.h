// SPDX-License-Identifier: MIT
// A clock that the test sets: from here on it shows what the test says, and stands still; before,
// it shows the machine's seconds. Found before the C library's, by the toolkit too. Timers and
// waits are not touched.
#pragma once

#include <QDateTime>

#include <ctime>
#include <sys/time.h>

inline std::time_t shownTime = 0; // of the machine until it is set

inline void setClock(const QDateTime &dateTime)
{
    shownTime = static_cast<std::time_t>(dateTime.toSecsSinceEpoch());
}

extern "C" int gettimeofday(timeval *time, void * /*zone*/) noexcept
{
    *time = {shownTime != 0 ? shownTime : std::time(nullptr), 0};
    return 0;
}
