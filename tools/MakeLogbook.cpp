// SPDX-License-Identifier: MIT
#include "tools/LogbookWriter.h"

#include <charconv>
#include <cstdio>
#include <fstream>
#include <limits>
#include <optional>
#include <span>
#include <string_view>

namespace {

constexpr const char* Usage =
    "usage: make-logbook GENERATION OUT (--entries N | --bytes N[k|M|G]) [--seed S]\n"
    "  GENERATION  classic, separated or operation\n"
    "  --entries   stop after N events\n"
    "  --bytes     stop with the event that reaches N bytes; k, M and G are 2^10, 2^20, 2^30\n"
    "  --seed      another story; 1 when not given\n";

std::optional<std::uint64_t> ReadNumber(std::string_view text) {
    std::uint64_t value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc{} || stop != end)
        return std::nullopt;
    return value;
}

std::optional<std::uint64_t> ReadSize(std::string_view text) {
    unsigned shift = 0;
    if (text.ends_with('k'))
        shift = 10;
    else if (text.ends_with('M'))
        shift = 20;
    else if (text.ends_with('G'))
        shift = 30;
    if (shift > 0)
        text.remove_suffix(1);
    const std::optional<std::uint64_t> value = ReadNumber(text);
    if (!value || *value > (std::numeric_limits<std::uint64_t>::max() >> shift))
        return std::nullopt;
    return *value << shift;
}

std::optional<Generation> ReadGeneration(std::string_view text) {
    if (text == "classic")
        return Generation::Classic;
    if (text == "separated")
        return Generation::Separated;
    if (text == "operation")
        return Generation::Operation;
    return std::nullopt;
}

std::optional<LogbookOrder> ReadOrder(std::string_view generation, std::span<char* const> options) {
    const std::optional<Generation> known = ReadGeneration(generation);
    if (!known || options.size() % 2 != 0)
        return std::nullopt;
    LogbookOrder order{.generation = *known};
    for (std::size_t i = 0; i < options.size(); i += 2) {
        const std::string_view option = options[i];
        const std::string_view text = options[i + 1];
        const std::optional<std::uint64_t> value = option == "--bytes" ? ReadSize(text) : ReadNumber(text);
        if (!value)
            return std::nullopt;
        if (option == "--entries")
            order.entries = *value;
        else if (option == "--bytes")
            order.bytes = *value;
        else if (option == "--seed")
            order.seed = *value;
        else
            return std::nullopt;
    }
    if ((order.entries == 0) == (order.bytes == 0))
        return std::nullopt;
    return order;
}

} // namespace

int main(int argc, char** argv) {
    const std::span<char* const> arguments(argv, static_cast<std::size_t>(argc));
    if (arguments.size() < 3) {
        std::fputs(Usage, stderr);
        return 2;
    }
    const std::optional<LogbookOrder> order = ReadOrder(arguments[1], arguments.subspan(3));
    if (!order) {
        std::fputs(Usage, stderr);
        return 2;
    }
    std::ofstream out(arguments[2], std::ios::binary | std::ios::trunc);
    const LogbookSize size = WriteLogbook(*order, out);
    out.close();
    if (!out) {
        std::fprintf(stderr, "make-logbook: cannot write %s\n", arguments[2]);
        return 1;
    }
    std::printf("%llu entries, %llu bytes\n", static_cast<unsigned long long>(size.entries),
                static_cast<unsigned long long>(size.bytes));
    return 0;
}
