// SPDX-License-Identifier: MIT
#include "app/guards/heldsignals.h"

#include <QApplication>
#include <QDialog>

#include <atomic>
#include <cerrno>

#include <sys/eventfd.h>
#include <unistd.h>

namespace {

// The handler touches these alone: it can interrupt any code, on any thread.
std::atomic<int> arrived{0};
std::atomic<int> wakeUp{-1};
static_assert(std::atomic<int>::is_always_lock_free);

void hold(int number)
{
    const int errnoBefore = errno;
    const eventfd_t one = 1;
    arrived = number;
    const ssize_t ignored = write(wakeUp, &one, sizeof(one));
    Q_UNUSED(ignored)
    errno = errnoBefore;
}

// It stays open for good: a handler that is still on its way must not find another file there.
int wakeUpDescriptor()
{
    if (wakeUp == -1)
        wakeUp = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    return wakeUp;
}

} // namespace

HeldSignals::HeldSignals()
    : m_arrival(wakeUpDescriptor(), QSocketNotifier::Read)
{
    QObject::connect(&m_arrival, &QSocketNotifier::activated, [this] { rejectOpenDialog(); });

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

void HeldSignals::rejectOpenDialog()
{
    auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    // One that has just been answered is no longer open; another may follow.
    if (!dialog)
        return;
    eventfd_t ignored = 0;
    eventfd_read(wakeUp, &ignored);
    dialog->reject();
}
