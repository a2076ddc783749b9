// SPDX-License-Identifier: MIT
// Command lines of the system's upgrader, to be started detached.
#pragma once

#include "maintenance/testapplication.h"

#include <QString>

// For this program itself.
QString upgradeSelfCommand();

// For a test application.
QString upgradeApplicationCommand(const TestApplication &application);

// For the root file system.
QString upgradeFileSystemCommand();
