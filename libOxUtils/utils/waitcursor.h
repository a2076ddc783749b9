// SPDX-License-Identifier: MIT
// Needs Qt's Gui module: it is for targets that link that module, and the library itself does not
// include it.
#pragma once

#include <QCursor>
#include <QGuiApplication>

// Shows the wait cursor over the whole program from its construction to its destruction, while a
// command or script holds the program. Uses may be nested.
class WaitCursor
{
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY(WaitCursor)
};
