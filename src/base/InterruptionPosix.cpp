// SPDX-License-Identifier: MIT
#include "base/Interruption.h"

#include "base/InterruptionState.h"
#include "base/StopRequest.h"

#include <cerrno>
#include <csignal>
#include <ctime>
#include <initializer_list>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::time_t Patience = 3; // seconds

timespec firstTime{}; // of a signal

bool HasWaitedLong() {
    timespec now{};
    return ::clock_gettime(CLOCK_MONOTONIC, &now) == 0 && now.tv_sec - firstTime.tv_sec >= Patience;
}

void OnSignal(int signal) {
    const int before = errno;
    if (!StopRequest::IsMade()) {
        (void)::clock_gettime(CLOCK_MONOTONIC, &firstTime);
        InterruptionState::Signal = signal;
    } else if (signal != SIGPIPE && HasWaitedLong()) {
        // It comes as soon as this function is left.
        std::signal(signal, SIG_DFL);
        std::raise(signal);
    }
    [[maybe_unused]] const ssize_t ignored = ::write(InterruptionState::WakePipe[1], "", 1);
    errno = before;
}

} // namespace

Interruption::Interruption() {
    if (::pipe(InterruptionState::WakePipe) == 0)
        for (const int end : InterruptionState::WakePipe) {
            ::fcntl(end, F_SETFD, FD_CLOEXEC);
            ::fcntl(end, F_SETFL, O_NONBLOCK);
        }
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) {
        struct sigaction action = {};
        if (::sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN)
            continue;
        action = {};
        action.sa_handler = OnSignal;
        ::sigfillset(&action.sa_mask);
        action.sa_flags = 0; // without SA_RESTART: who waits is woken
        ::sigaction(signal, &action, nullptr);
    }
}

void Interruption::EndBySignal() {
    if (!StopRequest::IsMade())
        return;
    std::signal(InterruptionState::Signal, SIG_DFL);
    std::raise(InterruptionState::Signal);
}
