// SPDX-License-Identifier: MIT
#include "support/LittleMemory.h"

#include <cstdlib>
#include <fstream>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Takes the free memory of the heap until the system gives no more: earlier tests may have left a lot.
void TakeFreeMemory() {
    static void* volatile taken = nullptr; // otherwise the compiler may leave the calls out
    for (std::size_t size = 1U << 20U; size >= sizeof(void*); size /= 2)
        while (void* const block = std::malloc(size)) {
            *static_cast<void**>(block) = taken;
            taken = block;
        }
}

} // namespace

bool HoldsWithLittleMemory(std::size_t bytes, const std::function<bool()>& function) {
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
