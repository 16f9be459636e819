// SPDX-License-Identifier: MIT
#include "tools/LogbookWriter.h"
#include "tools/OrderOptions.h"
#include "tools/RingCutter.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace {

constexpr int Failed = 1;
constexpr int WrongUsage = 2;

int TellUsage() {
    std::fputs(MakeLogbookUsage, stderr);
    return WrongUsage;
}

int TellProblem(const char* problem, const std::string& name) {
    std::fprintf(stderr, "make-logbook: %s %s\n", problem, name.c_str());
    return Failed;
}

bool AreSameFile(const std::string& one, const std::string& other) {
    std::error_code ignored;
    return one == other || std::filesystem::equivalent(one, other, ignored);
}

int MakeLogbook(const std::string& name, const LogbookCommand& command) {
    if (AreSameFile(name, command.truthFile))
        return TellProblem("logbook and truth would be the same file:", name);
    std::ofstream out(name, std::ios::binary | std::ios::trunc);
    std::ofstream truth;
    if (!command.truthFile.empty())
        truth.open(command.truthFile, std::ios::binary | std::ios::trunc);
    const LogbookSize size = WriteLogbook(command.order, out, command.truthFile.empty() ? nullptr : &truth);
    out.close();
    if (!out)
        return TellProblem("cannot write", name);
    if (!command.truthFile.empty()) {
        truth.close();
        if (!truth)
            return TellProblem("cannot write", command.truthFile);
    }
    std::printf("%llu entries, %llu bytes\n", static_cast<unsigned long long>(size.entries),
                static_cast<unsigned long long>(size.bytes));
    return 0;
}

int MakeExports(const std::string& logbookName, const std::string& prefix, const RingOrder& order) {
    std::error_code ignored;
    std::ifstream in(logbookName, std::ios::binary);
    if (!std::filesystem::is_regular_file(logbookName, ignored) || !in)
        return TellProblem("cannot read", logbookName);
    const std::string logbook{std::istreambuf_iterator<char>(in), {}};
    for (std::size_t i = 1; i <= order.exports; ++i)
        if (AreSameFile(prefix + '-' + std::to_string(i) + ".log", logbookName))
            return TellProblem("an export would replace the logbook", logbookName);
    if (!in)
        return TellProblem("cannot read", logbookName);
    const std::optional<std::vector<RingPiece>> pieces = CutRing(logbook, order);
    if (!pieces)
        return TellProblem("too short for these exports:", logbookName);
    for (std::size_t i = 0; i < pieces->size(); ++i) {
        const RingPiece& piece = (*pieces)[i];
        const std::string name = prefix + '-' + std::to_string(i + 1) + ".log";
        std::ofstream out(name, std::ios::binary | std::ios::trunc);
        out << ExportOf(logbook, piece);
        out.close();
        if (!out)
            return TellProblem("cannot write", name);
        std::printf("%s %zu %zu\n", name.c_str(), piece.begin, piece.end);
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string_view> arguments(argv, argv + argc);
    if (arguments.size() < 4)
        return TellUsage();
    if (arguments[1] == "ring") {
        const std::optional<RingOrder> order = ReadRingOrder(std::span(arguments).subspan(4));
        return order ? MakeExports(argv[2], argv[3], *order) : TellUsage();
    }
    const std::optional<LogbookCommand> command =
        ReadLogbookCommand(arguments[1], std::span(arguments).subspan(3));
    return command ? MakeLogbook(argv[2], *command) : TellUsage();
}
