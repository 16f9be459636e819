// SPDX-License-Identifier: MIT
#include "logbook/SeparatedLine.h"

#include "logbook/EventLines.h"
#include "logbook/KeywordTable.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace {

using ReadFields = void (*)(std::string_view line, ParsedEntry& entry, clsFile& file, KnownHeaders& headers);

struct KeywordRow {
    std::string_view Keyword;
    std::int16_t EventType;
    std::int16_t Image;
    ReadFields Read;
};

// A bare clock time is shorter than this; a longer one brings its own date.
constexpr std::size_t DatedStampLength = 9;

// A separator line carries its date in 15 characters.
constexpr std::int64_t SeparatorDateColumn = 10;
constexpr std::int64_t SeparatorDateLength = 15;

// The stamp of a clock without a date, in the form that NormaliseStamp gives.
std::string_view StampOn(std::string_view date, std::string_view clock, StampRoom& room) {
    std::array<char, DatedStampLength + SeparatorDateLength> dated;
    char* end = std::copy(clock.begin(), clock.end(), dated.data());
    *end++ = Blank;
    end = std::copy(date.begin(), date.end(), end);
    return NormaliseStamp({dated.data(), static_cast<std::size_t>(end - dated.data())}, room);
}

void TakeDate(std::string_view line, SeparatorDate& date) {
    constexpr std::string_view AnyClock = "12:34:56";
    date.Text = Mid(line, SeparatorDateColumn, SeparatorDateLength);
    StampRoom room;
    date.Day = StampOn(date.Text, AnyClock, room);
    date.Day.resize(date.Day.size() - AnyClock.size());
}

std::string_view SeparatedTime(std::string_view line, const SeparatorDate& date, StampRoom& room) {
    constexpr std::size_t ClockLength = 8;
    constexpr std::size_t DayLength = 11;
    const std::string_view clock = line.size() > 44 ? Trim(Mid(line, 44)) : std::string_view{};
    if (clock.size() >= DatedStampLength)
        return NormaliseStamp(clock, room);
    // Nearly every line comes here: sizes that the compiler knows make this two moves.
    if (clock.size() == ClockLength && date.Day.size() == DayLength) {
        std::memcpy(room.data(), date.Day.data(), DayLength);
        std::memcpy(room.data() + DayLength, clock.data(), ClockLength);
        return {room.data(), DayLength + ClockLength};
    }
    return StampOn(date.Text, clock, room);
}

constexpr std::string_view KeyKeyword = "Key:";

// The place of the text's first colon; at least its size when there is none.
std::size_t FindColon(std::string_view text) {
    if (text.size() > MostCharacterBits)
        return text.find(':');
    const std::uint64_t colons = CharacterBits(text, ':');
    return static_cast<std::size_t>(std::countr_zero(colons));
}

// The text behind the keyword's colon. A further colon belongs to the clock; it and the two digits before it
// are cut off.
std::string_view KeyText(std::string_view line) {
    std::string_view text = line.substr(KeyKeyword.size());
    const std::size_t clockColon = FindColon(text);
    if (clockColon < text.size())
        text = Left(text, static_cast<std::int64_t>(clockColon) - 2);
    return TrimPadded(text);
}

void ReadNothingMore(std::string_view, ParsedEntry&, clsFile&, KnownHeaders&) {}

void ReadData(std::string_view, ParsedEntry& entry, clsFile& file, KnownHeaders&) {
    ReadDataLine(entry, file);
}

void ReadError(std::string_view line, ParsedEntry& entry, clsFile& file, KnownHeaders&) {
    if (SplitHeader(line).Sender.empty())
        ReadDataLine(entry, file);
    entry.Sender = SenderFromData(entry.Data);
}

void ReadKey(std::string_view line, ParsedEntry& entry, clsFile&, KnownHeaders&) {
    entry.Data = KeyText(line);
}

void ReadStatus(std::string_view line, ParsedEntry& entry, clsFile&, KnownHeaders&) {
    entry.Data = Trim(Mid(line, 6, 23));
    if (entry.Data == "ON")
        entry.Image = Images::StatusOn;
    else if (entry.Data == "BLINK")
        entry.Image = Images::StatusBlink;
    else if (entry.Data == "OFF")
        entry.Image = Images::StatusOff;
}

void ReadPlc(std::string_view, ParsedEntry& entry, clsFile& file, KnownHeaders&) {
    ReadDataLine(entry, file);
    entry.Sender = "PLC";
}

void ReadInfo(std::string_view line, ParsedEntry& entry, clsFile& file, KnownHeaders& headers) {
    ReadEventBody(line, entry, file, headers);
    InfoFinish(entry);
}

// The first keyword that the line begins with decides.
constexpr KeywordTable<KeywordRow, 10> Keywords({{
    {"Reset", EventTypes::Restart, Images::Restart, ReadNothingMore},
    {"Blinkerror:", EventTypes::Fatal, Images::Fatal, ReadData},
    {"Registers(Blinkerror):", EventTypes::Fatal, Images::Fatal, ReadNothingMore},
    {"Error:", EventTypes::Error, Images::Error, ReadError},
    {KeyKeyword, EventTypes::Key, Images::Key, ReadKey},
    {"Stib:", EventTypes::Status, Images::Info, ReadStatus},
    {"PLC Error:", EventTypes::Error, Images::Error, ReadPlc},
    {"PLC Message:", EventTypes::Info, Images::Info, ReadPlc},
    {"Info:", EventTypes::Info, Images::Info, ReadInfo},
    {"Warning:", EventTypes::Warning, Images::Warning, ReadEventBody},
}});

} // namespace

void ParseSeparatedLine(std::string_view line, ParsedEntry& entry, clsFile& file, SeparatorDate& date,
                        KnownHeaders& headers) {
    if (line.starts_with("___")) {
        TakeDate(line, date);
        file.ReadLine(line);
    }
    const KeywordRow* const keyword = Keywords.Find(line);
    if (keyword == nullptr)
        return;
    entry.EventType = keyword->EventType;
    entry.Image = keyword->Image;
    entry.Time = SeparatedTime(line, date, entry.TimeRoom());
    keyword->Read(line, entry, file, headers);
}
