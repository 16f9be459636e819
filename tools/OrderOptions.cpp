// SPDX-License-Identifier: MIT
#include "tools/OrderOptions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <limits>

const char* const MakeLogbookUsage =
    "usage: make-logbook GENERATION OUT (--entries N | --bytes N[k|M|G]) [OPTION...]\n"
    "       make-logbook ring IN OUT-PREFIX --exports N --bytes N[k|M|G] --overlap PERCENT [OPTION...]\n"
    "\n"
    "writes a logbook:\n"
    "  GENERATION       classic, separated or operation\n"
    "  --entries N      stop after N events\n"
    "  --bytes N        stop with the event that reaches N bytes; k, M and G are 2^10, 2^20, 2^30\n"
    "  --seed S         another story; 1 when not given\n"
    "  --first-day DAY  the day of the first event, YYYY-MM-DD; 2010-01-04 when not given\n"
    "  --truth FILE     what the logbook holds, as JSON Lines (tools/README.md)\n"
    "plants into the story, one in about N (at least 1) events each, nothing when not given:\n"
    "  --coded-errors N  errors by their code, \"Event: 232-0005\"\n"
    "  --cleared N       messages that an error which came before is cleared (not operation)\n"
    "  --clock-steps N   the clock is set, forth or back\n"
    "  --bursts N        several starts within minutes\n"
    "  --precursors N    an error, and mostly a certain warning or info up to a minute before it\n"
    "  --chatter N       one error 3 to 40 times within a minute\n"
    "  --summer-time     the clock changes on the last Sundays of March and October\n"
    "\n"
    "ring: cuts exports of a ring memory, OUT-PREFIX-1.log and so on, out of a logbook:\n"
    "  --exports N   how many, the oldest first\n"
    "  --bytes N     the size of each, about\n"
    "  --overlap P   how much of an export the next one holds as well\n"
    "  --holes N     between so many neighbours something is lost; 0 when not given\n"
    "  --cut         first lines may lack their beginning, last lines their end\n"
    "  --seed S      other places; 1 when not given\n";

namespace {

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

// YYYY-MM-DD, from the year 1970 on, as days since 1 January 1970
std::optional<std::int64_t> ReadDay(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-')
        return std::nullopt;
    const std::optional<std::uint64_t> year = ReadNumber(text.substr(0, 4));
    const std::optional<std::uint64_t> month = ReadNumber(text.substr(5, 2));
    const std::optional<std::uint64_t> day = ReadNumber(text.substr(8));
    if (!year || !month || !day || *year < 1970)
        return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year(static_cast<int>(*year)),
                                           std::chrono::month(static_cast<unsigned>(*month)),
                                           std::chrono::day(static_cast<unsigned>(*day))};
    if (!date.ok())
        return std::nullopt;
    return std::chrono::sys_days(date).time_since_epoch().count();
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

// An option with a number, and where the number goes.
template <typename Order>
struct NumberOption {
    std::string_view name;
    std::uint64_t& (*place)(Order&);
};

constexpr auto LogbookNumbers = std::to_array<NumberOption<LogbookOrder>>({
    {"--entries", [](LogbookOrder& order) -> std::uint64_t& { return order.entries; }},
    {"--bytes", [](LogbookOrder& order) -> std::uint64_t& { return order.bytes; }},
    {"--seed", [](LogbookOrder& order) -> std::uint64_t& { return order.seed; }},
    {"--coded-errors", [](LogbookOrder& order) -> std::uint64_t& { return order.plants.codedErrors; }},
    {"--cleared", [](LogbookOrder& order) -> std::uint64_t& { return order.plants.cleared; }},
    {"--clock-steps", [](LogbookOrder& order) -> std::uint64_t& { return order.plants.clockSteps; }},
    {"--bursts", [](LogbookOrder& order) -> std::uint64_t& { return order.plants.bursts; }},
    {"--precursors", [](LogbookOrder& order) -> std::uint64_t& { return order.plants.precursors; }},
    {"--chatter", [](LogbookOrder& order) -> std::uint64_t& { return order.plants.chatter; }},
});

constexpr auto RingNumbers = std::to_array<NumberOption<RingOrder>>({
    {"--exports", [](RingOrder& order) -> std::uint64_t& { return order.exports; }},
    {"--bytes", [](RingOrder& order) -> std::uint64_t& { return order.bytes; }},
    {"--overlap", [](RingOrder& order) -> std::uint64_t& { return order.overlap; }},
    {"--holes", [](RingOrder& order) -> std::uint64_t& { return order.holes; }},
    {"--seed", [](RingOrder& order) -> std::uint64_t& { return order.seed; }},
});

// False when no option of the table has this name, or the text is no number.
template <typename Order>
bool TakeNumber(const auto& table, std::string_view name, std::string_view text, Order& order) {
    const auto option = std::find_if(table.begin(), table.end(),
                                     [&](const NumberOption<Order>& known) { return known.name == name; });
    const std::optional<std::uint64_t> value = name == "--bytes" ? ReadSize(text) : ReadNumber(text);
    if (option == table.end() || !value)
        return false;
    option->place(order) = *value;
    return true;
}

// Calls `takeFlag(name)` for each option without a value, and `takeValue(name, text)` for each other one.
// False as soon as one of them is not taken.
bool WalkOptions(std::span<const std::string_view> options, auto takeFlag, auto takeValue) {
    for (std::size_t i = 0; i < options.size(); ++i) {
        if (takeFlag(options[i]))
            continue;
        if (i + 1 == options.size() || !takeValue(options[i], options[i + 1]))
            return false;
        ++i;
    }
    return true;
}

} // namespace

std::optional<LogbookCommand> ReadLogbookCommand(std::string_view generation,
                                                 std::span<const std::string_view> options) {
    const std::optional<Generation> known = ReadGeneration(generation);
    if (!known)
        return std::nullopt;
    LogbookCommand command;
    LogbookOrder& order = command.order;
    order.generation = *known;
    const auto takeFlag = [&](std::string_view name) {
        order.plants.summerTime = order.plants.summerTime || name == "--summer-time";
        return name == "--summer-time";
    };
    const auto takeValue = [&](std::string_view name, std::string_view text) {
        if (name == "--truth") {
            command.truthFile = text;
            return !text.empty();
        }
        if (name == "--first-day") {
            const std::optional<std::int64_t> day = ReadDay(text);
            order.firstDay = day.value_or(order.firstDay);
            return day.has_value();
        }
        // Nothing cannot be planted; who wants nothing leaves the option out.
        return (ReadNumber(text) != 0U || name == "--seed") && TakeNumber(LogbookNumbers, name, text, order);
    };
    if (!WalkOptions(options, takeFlag, takeValue) || (order.entries == 0) == (order.bytes == 0) ||
        (order.plants.cleared != 0 && order.generation == Generation::Operation))
        return std::nullopt;
    return command;
}

std::optional<RingOrder> ReadRingOrder(std::span<const std::string_view> options) {
    RingOrder order;
    const auto takeFlag = [&](std::string_view name) {
        order.cut = order.cut || name == "--cut";
        return name == "--cut";
    };
    const auto takeValue = [&](std::string_view name, std::string_view text) {
        return TakeNumber(RingNumbers, name, text, order);
    };
    if (!WalkOptions(options, takeFlag, takeValue) || order.exports == 0 || order.bytes == 0 ||
        order.overlap >= 100)
        return std::nullopt;
    return order;
}
