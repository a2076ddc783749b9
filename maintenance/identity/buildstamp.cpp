// SPDX-License-Identifier: MIT
#include "maintenance/identity/buildstamp.h"

const char BUILD_DATE[] = __DATE__;
const char BUILD_TIME[] = __TIME__;
