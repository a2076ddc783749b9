// SPDX-License-Identifier: MIT
// A clock that the test sets: from here on it shows what the test says, and stands still. The
// functions are found before the C library's, by the toolkit too. Timers and waits are not touched.
#pragma once

#include <QDateTime>

#include <ctime>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

inline std::time_t shownTime = 0; // of the machine until it is set

inline void setClock(const QDateTime &dateTime)
{
    shownTime = static_cast<std::time_t>(dateTime.toSecsSinceEpoch());
}

extern "C" int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    if (clock != CLOCK_REALTIME || shownTime == 0)
        return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
    *time = {shownTime, 0};
    return 0;
}

extern "C" int gettimeofday(timeval *time, void * /*zone*/) noexcept
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    *time = {now.tv_sec, now.tv_nsec / 1000};
    return 0;
}
