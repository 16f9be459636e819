// SPDX-License-Identifier: MIT
#include "cli/Interruption.h"

#include "logbook/StopRequest.h"

#if defined(__unix__) || defined(__APPLE__)

#include <cerrno>
#include <initializer_list>

#include <fcntl.h>
#include <unistd.h>

namespace {

int wakePipe[2] = {-1, -1};

void OnSignal(int signal) {
    const int before = errno;
    StopRequest::Signal = signal;
    [[maybe_unused]] const ssize_t ignored = ::write(wakePipe[1], "", 1);
    errno = before;
}

} // namespace

Interruption::Interruption() {
    if (::pipe(wakePipe) == 0)
        for (const int end : wakePipe) {
            ::fcntl(end, F_SETFD, FD_CLOEXEC);
            ::fcntl(end, F_SETFL, O_NONBLOCK);
        }
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) {
        struct sigaction action = {};
        if (::sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN)
            continue;
        action = {};
        action.sa_handler = OnSignal;
        // Who waits is woken, as SA_RESTART is missing. A pipe without a reader tells each write.
        action.sa_flags = signal == SIGPIPE ? 0 : static_cast<int>(SA_RESETHAND);
        ::sigaction(signal, &action, nullptr);
    }
}

void Interruption::EndBySignal() {
    if (!StopRequest::IsMade())
        return;
    std::signal(StopRequest::Signal, SIG_DFL);
    std::raise(StopRequest::Signal);
}

int Interruption::Descriptor() { return wakePipe[0]; }

#else

Interruption::Interruption() = default;
void Interruption::EndBySignal() {}
int Interruption::Descriptor() { return -1; }

#endif
