// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <fstream>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool MemoryCanBeLittle = false;
#else
inline constexpr bool MemoryCanBeLittle = true;
#endif

// Takes the free memory of the heap until the system gives no more: earlier tests may have left a lot.
inline void TakeFreeMemory() {
    static void* volatile taken = nullptr; // otherwise the compiler may leave the calls out
    for (std::size_t size = 1U << 20U; size >= sizeof(void*); size /= 2)
        while (void* const block = std::malloc(size)) {
            *static_cast<void**>(block) = taken;
            taken = block;
        }
}

// Runs a function in its own process, which gets at most `bytes` more memory, whatever the heap has free.
// True when the function returned true there.
template <typename Function>
bool HoldsWithLittleMemory(std::size_t bytes, Function function) {
    const pid_t child = fork();
    if (child == 0) {
        std::size_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        const rlim_t now = pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        const rlimit nothing{now, now + bytes};
        const rlimit little{now + bytes, now + bytes};
        if (setrlimit(RLIMIT_AS, &nothing) != 0)
            _exit(1);
        TakeFreeMemory();
        _exit(setrlimit(RLIMIT_AS, &little) == 0 && function() ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}
