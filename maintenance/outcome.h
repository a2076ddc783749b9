// SPDX-License-Identifier: MIT
#pragma once

// What came of a maintenance dialog, for the window behind it to report. What went wrong in detail
// stands in the log.
enum class Outcome {
    Nothing, // the user cancelled, or there was nothing to work on, which is not reported
    Done,
    Failed,
};
