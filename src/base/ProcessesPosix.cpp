// SPDX-License-Identifier: MIT
#include "base/Processes.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <type_traits>

#include <unistd.h>

static_assert(std::is_same_v<ProcessNumber, pid_t>);

ProcessNumber ThisProcess() { return ::getpid(); }

bool MayRun(ProcessNumber process) { return ::kill(process, 0) == 0 || errno != ESRCH; }

std::string ComputerName() {
    std::array<char, 65> name{};
    return ::gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}
