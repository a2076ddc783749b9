// SPDX-License-Identifier: MIT
#include "app/guards/heldsignals.h"

#include <QApplication>
#include <QDialog>

#include <atomic>

namespace {

constexpr int LOOK_MS = 100;

// The handler touches this alone: it can interrupt any code, on any thread.
std::atomic<int> arrived{0};
static_assert(std::atomic<int>::is_always_lock_free);

void hold(int number)
{
    arrived = number;
}

void rejectOpenDialog()
{
    if (arrived == 0)
        return;
    auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (dialog)
        dialog->reject();
}

} // namespace

HeldSignals::HeldSignals()
{
    QObject::connect(&m_nextLook, &QTimer::timeout, &rejectOpenDialog);
    m_nextLook.start(LOOK_MS);

    struct sigaction holding = {};
    holding.sa_handler = hold;
    holding.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < SIGNALS.size(); ++i) {
        sigaction(SIGNALS[i], nullptr, &m_before[i]);
        if (m_before[i].sa_handler != SIG_IGN)
            sigaction(SIGNALS[i], &holding, nullptr);
    }
}

HeldSignals::~HeldSignals()
{
    for (std::size_t i = 0; i < SIGNALS.size(); ++i)
        sigaction(SIGNALS[i], &m_before[i], nullptr);
    if (const int number = arrived.exchange(0))
        raise(number);
}
