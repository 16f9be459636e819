// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <fstream>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool MemoryCanBeLittle = false;
#else
inline constexpr bool MemoryCanBeLittle = true;
#endif

// Runs a function in a process of its own that gets only so many bytes of memory more; true when it returned
// true there.
template <typename Function>
bool HoldsWithLittleMemory(std::size_t bytes, Function function) {
    const pid_t child = fork();
    if (child == 0) {
        std::size_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        const rlim_t most = pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)) + bytes;
        const rlimit limit{most, most};
        _exit(setrlimit(RLIMIT_AS, &limit) == 0 && function() ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}
