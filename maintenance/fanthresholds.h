// SPDX-License-Identifier: MIT
// The two temperature thresholds in the fan control's file, in whole degrees.
#pragma once

class ConfFile;

// Reads both. A missing key or a text that is no number gives 0, and a missing key enters the
// table with an empty value; a number beyond the range of int gives its end.
void readFanThresholds(ConfFile &conf, int &lower, int &upper);

// Sets both in the table; nothing is saved. No order between the two is asked for.
void setFanThresholds(ConfFile &conf, int lower, int upper);
