// SPDX-License-Identifier: MIT
// The system's upgrader: its command lines, and its start.
#pragma once

#include "maintenance/testapplication.h"

#include <QString>

// For this program itself.
QString upgradeSelfCommand();

// For a test application.
QString upgradeApplicationCommand(const TestApplication &application);

// For the root file system.
QString upgradeFileSystemCommand();

// Starts the upgrader with one of these, on its own, so that it can replace this program. Nobody is
// told when it is missing.
void startUpgrader(const QString &command);
