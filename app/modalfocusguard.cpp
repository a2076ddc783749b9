// SPDX-License-Identifier: MIT
#include "app/modalfocusguard.h"

#include <QGuiApplication>
#include <QWindow>

#include <algorithm>
#include <xcb/xcb.h>

namespace {

// Far longer than the window manager takes over one request, and too short to be noticed.
constexpr int PASS_INTERVAL_MS = 500;

constexpr int SYNTHETIC_EVENT_BIT = 0x80;

bool isBlockedByModal(xcb_window_t id)
{
    const QWindow *const modal = QGuiApplication::modalWindow();
    if (!modal)
        return false;
    // The dialog's own pop-ups are not blocked.
    const QWindowList windows = QGuiApplication::topLevelWindows();
    return std::any_of(windows.begin(), windows.end(), [=](const QWindow *window) {
        return window->handle() && window->winId() == id && window != modal &&
               !modal->isAncestorOf(window);
    });
}

} // namespace

bool ModalFocusGuard::nativeEventFilter(const QByteArray &eventType, void *message,
                                        qtversions::NativeEventResult * /*result*/)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const int type =
        static_cast<xcb_generic_event_t *>(message)->response_type & ~SYNTHETIC_EVENT_BIT;
    // The two kinds of event share one structure.
    if ((type != XCB_FOCUS_IN && type != XCB_FOCUS_OUT) ||
        !isBlockedByModal(static_cast<xcb_focus_in_event_t *>(message)->event))
        return false;

    if (m_sinceLastPassed.isValid() && !m_sinceLastPassed.hasExpired(PASS_INTERVAL_MS))
        return true;
    m_sinceLastPassed.start();
    return false;
}
