// SPDX-License-Identifier: MIT
#include "tools/Truth.h"

#include "tools/ErrorKey.h"
#include "tools/MachineClock.h"
#include "tools/MachineEvent.h"
#include "tools/ShownEntry.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <optional>
#include <ostream>

namespace {

using Json = nlohmann::ordered_json;

constexpr int Error = 3;
constexpr int Fatal = 4;
constexpr int Start = 7;

std::uint64_t CountLines(std::string_view text) {
    return static_cast<std::uint64_t>(std::count(text.begin(), text.end(), '\n'));
}

// In whole seconds unless both stamps are exact.
Json Seconds(const WrittenStamp& from, const WrittenStamp& to) {
    if (from.exact && to.exact)
        return static_cast<double>(to.milliseconds - from.milliseconds) / 1000.0;
    return to.milliseconds / 1000 - from.milliseconds / 1000;
}

void Write(std::ostream& out, const Json& object) { out << object.dump() << '\n'; }

} // namespace

void Truth::TakeHeading(std::string_view text) { line += CountLines(text); }

void Truth::Take(const MachineEvent& event, const MachineClock& clock, std::string_view text) {
    const std::uint64_t lineBehind = line + CountLines(text);
    if (text.starts_with("___")) {
        text.remove_prefix(text.find('\n') + 1);
        ++line;
    }
    const WrittenStamp stamp = ReadStamp(told, text.substr(0, text.find('\r')), clock);
    if (event.plant == Plant::ClockStep)
        Write(out, {{"what", "clock"}, {"line", line}, {"from", last.iso}, {"to", stamp.iso}});

    const ShownEntry entry = ReadShownEntry(told, text);
    // Reading drops the event below the first separator line.
    const bool shown = !(firstEvent && told == Generation::Separated);
    if (entry.type == Start) {
        Write(out, {{"what", "start"}, {"line", line}, {"time", stamp.iso}});
    } else if (shown && (entry.type == Error || entry.type == Fatal)) {
        const std::string key = ErrorKey(entry.sender, entry.name, entry.data);
        TakeError(entry, stamp, key);
        TakePlanted(event, stamp, key);
    } else if (event.plant == Plant::Precursor) {
        precursorLine = line;
        precursorKey = ErrorKey(entry.sender, entry.name, entry.data);
    } else if (shown && entry.name == "ERRCLEARED") {
        TakeCleared(entry);
    }
    last = stamp;
    line = lineBehind;
    firstEvent = false;
}

void Truth::End() { EndChatter(); }

void Truth::TakeError(const ShownEntry& entry, const WrittenStamp& stamp, const std::string& key) {
    Write(out, {{"what", "error"}, {"line", line}, {"time", stamp.iso}, {"type", entry.type}, {"key", key}});
    raised.insert(key);
}

void Truth::TakeCleared(const ShownEntry& entry) {
    const std::optional<std::string> key = LetterAndNumber(entry.data);
    if (key && raised.contains(*key))
        Write(out, {{"what", "cleared"}, {"line", line}, {"key", *key}});
}

void Truth::TakePlanted(const MachineEvent& event, const WrittenStamp& stamp, const std::string& key) {
    if (event.plant == Plant::Foretold)
        Write(out, {{"what", "precursor"}, {"line", precursorLine}, {"key", precursorKey}, {"before", key}});
    if (event.plant != Plant::Chatter && event.plant != Plant::LastOfChatter)
        return;
    if (chatterCount == 0) {
        chatterLine = line;
        chatterKey = key;
        chatterBegin = stamp;
    }
    ++chatterCount;
    chatterEnd = stamp;
    if (event.plant == Plant::LastOfChatter)
        EndChatter();
}

// The logbook may end in the middle of a run.
void Truth::EndChatter() {
    if (chatterCount > 0)
        Write(out, {{"what", "chatter"},
                    {"line", chatterLine},
                    {"key", chatterKey},
                    {"count", chatterCount},
                    {"seconds", Seconds(chatterBegin, chatterEnd)}});
    chatterCount = 0;
}
