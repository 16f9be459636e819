// SPDX-License-Identifier: MIT
#include "bench/ProcessMemory.h"

#include <fstream>
#include <string>

namespace {

std::size_t StatusValue(const std::string& key) {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word)
        if (word == key) {
            std::size_t kibibytes = 0;
            status >> kibibytes;
            return kibibytes * 1024;
        }
    return 0;
}

} // namespace

std::size_t ResidentMemory() { return StatusValue("VmRSS:"); }
std::size_t PeakResidentMemory() { return StatusValue("VmHWM:"); }
