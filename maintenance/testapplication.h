// SPDX-License-Identifier: MIT
// The test applications that the box carries.
#pragma once

#include <QString>
#include <QStringList>

struct TestApplication
{
    const char *name;          // of its process, and for the user, translatable in "DialogMain"
    QString directory;         // name below parentDirectory
    QString parentDirectory;   // absolute path
    QStringList settingsFiles; // names in directory; a factory reset removes them in this order
};

// The application that every box carries.
TestApplication standardApplication();

// The OTP application, which only some product types carry.
TestApplication otpApplication();

// The name of the application's desktop file.
QString desktopFile(const TestApplication &application);

// Removes the application's settings files. One that is missing or cannot be removed is passed
// over.
void removeSettings(const TestApplication &application);
