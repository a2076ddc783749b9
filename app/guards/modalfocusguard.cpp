// SPDX-License-Identifier: MIT
#include "app/guards/modalfocusguard.h"

#include <QGuiApplication>
#include <QWindow>

#include <algorithm>
#include <xcb/xcb.h>

namespace {

// Longer than the window manager takes over one request, some milliseconds.
constexpr int PASS_INTERVAL_MS = 500;
// Long enough for a burst of clicks to end, short enough for the keyboard to be there within a
// second.
constexpr int FOCUS_CHECK_MS = 300;

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

ModalFocusGuard::ModalFocusGuard()
{
    m_focusCheck.setSingleShot(true);
    m_focusCheck.setInterval(FOCUS_CHECK_MS);
    QObject::connect(&m_focusCheck, &QTimer::timeout, &m_focusCheck,
                     [this] { giveKeyboardToModal(); });
}

bool ModalFocusGuard::nativeEventFilter(const QByteArray &eventType, void *message,
                                        qtversions::NativeEventResult * /*result*/)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const int type =
        static_cast<xcb_generic_event_t *>(message)->response_type & ~SYNTHETIC_EVENT_BIT;
    if (type != XCB_FOCUS_IN && type != XCB_FOCUS_OUT)
        return false;
    // The two kinds of event share one structure.
    const xcb_window_t window = static_cast<xcb_focus_in_event_t *>(message)->event;
    if (type == XCB_FOCUS_IN)
        m_focused = window;
    else if (m_focused == window)
        m_focused = XCB_NONE;
    if (!isBlockedByModal(window))
        return false;

    if (!m_focusCheck.isActive())
        m_focusCheck.start();
    if (m_sinceLastPassed.isValid() && !m_sinceLastPassed.hasExpired(PASS_INTERVAL_MS))
        return true;
    m_sinceLastPassed.start();
    return false;
}

void ModalFocusGuard::giveKeyboardToModal()
{
    if (!isBlockedByModal(m_focused))
        return;
    QGuiApplication::modalWindow()->requestActivate();
    m_focusCheck.start();
}
