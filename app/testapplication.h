// SPDX-License-Identifier: MIT
// The test applications that the box carries, and the upgrader's command lines.
#pragma once

#include <QString>
#include <QStringList>

struct TestApplication
{
    QString directory;         // name below parentDirectory
    QString parentDirectory;   // absolute path
    QString program;           // process name
    QStringList settingsFiles; // absolute paths, in the order in which a factory reset removes them
};

// The application that every box carries.
TestApplication standardApplication();

// The OTP application, which only some product types carry.
TestApplication otpApplication();

// Removes the application's settings files. One that is missing or cannot be removed is passed
// over.
void removeSettings(const TestApplication &application);

// Command lines of the system's upgrader, to be started detached: for this program itself, for a
// test application and for the root file system.
QString upgradeSelfCommand();
QString upgradeApplicationCommand(const TestApplication &application);
QString upgradeFileSystemCommand();
