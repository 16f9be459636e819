// SPDX-License-Identifier: MIT
#include "comments/JournalName.h"

#include "base/Processes.h"

#include <charconv>

namespace {

constexpr std::string_view Chosen = "-XXXXXX";

std::string BeginOfThisComputer() {
    std::string begin = "comments-";
    for (const char c : ComputerName())
        begin += c == '/' ? '_' : c;
    return begin + '-';
}

} // namespace

std::string JournalNamePattern() {
    return BeginOfThisComputer().append(std::to_string(ThisProcess())).append(Chosen);
}

bool MayBeInUse(std::string_view name) {
    const std::string begin = BeginOfThisComputer();
    if (!name.starts_with(begin) || name.size() <= begin.size() + Chosen.size())
        return true;
    const char* const end = name.data() + name.size() - Chosen.size();
    ProcessNumber process = 0;
    const auto number = std::from_chars(name.data() + begin.size(), end, process);
    if (number.ec != std::errc() || number.ptr != end || *end != '-' || process <= 0)
        return true;
    return MayRun(process);
}
