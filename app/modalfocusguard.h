// SPDX-License-Identifier: MIT
#pragma once

#include "libOxUtils/utils/qtversions.h"

#include <QAbstractNativeEventFilter>
#include <QElapsedTimer>

// Breaks an endless loop over the keyboard focus. When a window that a modal dialog blocks gains or
// loses the focus, the toolkit asks the window manager to activate the dialog. matchbox activates
// the dialog's parent on the way, if that is a dialog itself, as the main window is: the parent
// gains and loses the focus, the toolkit asks again, and so on without end, with no key reaching
// either. The guard lets the toolkit hear of such focus changes only once in a while, so one
// request for the dialog goes out and the changes that it brings about are passed over.
class ModalFocusGuard : public QAbstractNativeEventFilter
{
public:
    // Takes focus events of blocked windows from the toolkit. True: the event is not passed on.
    bool nativeEventFilter(const QByteArray &eventType, void *message,
                           qtversions::NativeEventResult *result) override;

private:
    QElapsedTimer m_sinceLastPassed;
};
