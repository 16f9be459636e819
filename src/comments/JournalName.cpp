// SPDX-License-Identifier: MIT
#include "comments/JournalName.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>

#include <unistd.h>

namespace {

constexpr std::string_view Chosen = "-XXXXXX";

std::string BeginOfThisComputer() {
    std::array<char, 65> name{};
    if (::gethostname(name.data(), name.size() - 1) != 0)
        name[0] = '\0';
    std::string begin = "comments-";
    for (const char c : std::string_view(name.data()))
        begin += c == '/' ? '_' : c;
    return begin + '-';
}

} // namespace

std::string JournalNamePattern() {
    return BeginOfThisComputer().append(std::to_string(::getpid())).append(Chosen);
}

bool MayBeInUse(std::string_view name) {
    const std::string begin = BeginOfThisComputer();
    if (!name.starts_with(begin) || name.size() <= begin.size() + Chosen.size())
        return true;
    const char* const end = name.data() + name.size() - Chosen.size();
    pid_t process = 0;
    const auto number = std::from_chars(name.data() + begin.size(), end, process);
    if (number.ec != std::errc() || number.ptr != end || *end != '-' || process <= 0)
        return true;
    return ::kill(process, 0) == 0 || errno != ESRCH;
}
