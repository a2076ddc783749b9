// SPDX-License-Identifier: MIT
// The steps of the program's start that need no window.
#pragma once

#include <QString>

// True when the command line asks for the version: exactly one argument, "-v" or "--version".
bool isVersionQuery(int argc, const char *const argv[]);

// Loads the font file and makes its first family, pointSize points, the application's font. The
// toolkit's default font stays, without a message, when the file is missing or holds no family.
void installApplicationFont(const QString &fontFile, int pointSize);

// Keeps plugins that the toolkit has not loaded with the application object from being loaded
// later. All pictures here are PNG files, which it reads by itself; but its first picture, the
// frame of a group box, would make it load every decoder that is installed, some 3 ms on the way to
// the first window, and half a megabyte for good.
void keepFurtherPluginsOut();

// Keeps the toolkit from loading an OpenGL integration, which this program never draws with and
// which takes a third of the time to the first painted window, and more memory than all the rest.
// Made before the application object; settle() after it lets the toolkit take the setting in and
// then takes it back, so that the processes which the program starts do not inherit it. A setting
// that the environment brings along is left alone.
class GlIntegrationSetting
{
public:
    GlIntegrationSetting();
    void settle();

private:
    const bool m_isOurs;
};
