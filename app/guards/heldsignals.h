// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include <array>

#include <csignal>

// Holds back the signals that ask a program to end (SIGHUP, SIGINT, SIGQUIT, SIGTERM) while it
// lives. One that arrives rejects the modal dialog that is open or opens next, within a tenth of a
// second, and ends the program when this object is destroyed, as it would have ended it at once.
// Signals that are ignored, SIGHUP under nohup for one, stay so; and the C library ignores SIGINT
// and SIGQUIT while its system() runs a command. Lives on the GUI thread, one at a time.
class HeldSignals
{
public:
    HeldSignals();
    ~HeldSignals();
    Q_DISABLE_COPY(HeldSignals)

private:
    static constexpr std::array<int, 4> SIGNALS = {SIGHUP, SIGINT, SIGQUIT, SIGTERM};

    std::array<struct sigaction, SIGNALS.size()> m_before{};
    QTimer m_nextLook;
};
