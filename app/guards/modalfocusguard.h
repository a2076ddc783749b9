// SPDX-License-Identifier: MIT
#pragma once

#include "libOxUtils/utils/qtversions.h"

#include <QAbstractNativeEventFilter>
#include <QElapsedTimer>
#include <QTimer>

// Breaks an endless loop over the keyboard focus. When a window that a modal dialog blocks gains or
// loses the focus, the toolkit asks the window manager to activate the dialog. matchbox activates
// the dialog's parent on the way, if that is a dialog itself, as the main window is: the parent
// gains and loses the focus, the toolkit asks again, and so on without end, with no key reaching
// either. The guard lets the toolkit hear of such focus changes only once in a while, so one
// request for the dialog goes out and the changes that it brings about are passed over.
// One of those may be the user's, as the second click of a double click is, and leave the keyboard
// with the blocked window: so the guard looks again a little later, and asks for the dialog itself.
class ModalFocusGuard : public QAbstractNativeEventFilter
{
public:
    ModalFocusGuard();

    // Takes focus events of blocked windows from the toolkit. True: the event is not passed on.
    bool nativeEventFilter(const QByteArray &eventType, void *message,
                           qtversions::NativeEventResult *result) override;

private:
    void giveKeyboardToModal();

    QElapsedTimer m_sinceLastPassed;
    QTimer m_focusCheck;
    // The window of this program that has the keyboard, 0 when another program has it. The toolkit
    // cannot say, since not every change has reached it.
    quint32 m_focused = 0;
};
