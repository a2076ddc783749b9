// SPDX-License-Identifier: MIT
#pragma once

// When the program was built, as the compiler writes it: "Sep  1 2019" and "07:43:36". With
// SOURCE_DATE_EPOCH set that moment counts instead of the clock, in UTC.
extern const char BUILD_DATE[];
extern const char BUILD_TIME[];
