// SPDX-License-Identifier: MIT
#include "logbook/ClassicLine.h"

#include "base/RunTimeError.h"
#include "logbook/EventLines.h"
#include "logbook/KeywordTable.h"

#include <chrono>
#include <thread>

namespace {

using ReadFields = void (*)(std::string_view line, ParsedEntry& entry, clsFile& file,
                            ReadingProgress& progress, KnownHeaders& headers);

struct KeywordRow {
    std::string_view Keyword;
    std::int16_t EventType;
    std::int16_t Image;
    ReadFields Read;
};

void ReadTime(std::string_view line, ParsedEntry& entry, clsFile&, ReadingProgress&, KnownHeaders&) {
    entry.Time = ClassicTime(line);
}

void ReadDataAndTime(std::string_view line, ParsedEntry& entry, clsFile&, ReadingProgress&, KnownHeaders&) {
    entry.Data = ClassicData(line);
    entry.Time = ClassicTime(line);
}

// If the file ends before a "PC" line, the block never ends; users of such logbooks know this. Nobody could
// ever see what the block would still append, so it waits until it is stopped, and costs neither memory nor
// much time.
[[noreturn]] void WaitForStop(ReadingProgress& progress) {
    if (!progress.WaitsForBlockEnd())
        throw RunTimeError("a register block has no end");
    for (;;) {
        LetEventsRun(progress);
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

void ReadRegisters(std::string_view line, ParsedEntry& entry, clsFile& file, ReadingProgress& progress,
                   KnownHeaders&) {
    entry.Time = ClassicTime(line);
    while (line.find("PC") == std::string_view::npos) {
        if (file.EndOfFile())
            WaitForStop(progress);
        file.ReadPassingLine(line);
        entry.AppendToData(Trim(line));
        entry.AppendToData(LineSeparator);
    }
}

void ReadError(std::string_view line, ParsedEntry& entry, clsFile& file, ReadingProgress&,
               KnownHeaders& headers) {
    entry.Time = ClassicTime(line);
    if (IsContinuationNext(file)) {
        ReadMessage(entry, file);
        ReadHeader(line, entry, headers, SenderFromData(entry.Data));
        return;
    }
    entry.Data = ClassicData(line);
    if (entry.Data.starts_with("RD:ACCESSERR LOGBOOK"))
        entry.EventType = EventTypes::None;
    entry.Sender = SenderFromData(entry.Data);
}

void ReadStatus(std::string_view line, ParsedEntry& entry, clsFile& file, ReadingProgress& progress,
                KnownHeaders& headers) {
    ReadDataAndTime(line, entry, file, progress, headers);
    if (entry.Data == "On")
        entry.Image = Images::StatusOn;
    else if (entry.Data == "Blink")
        entry.Image = Images::StatusBlink;
    else if (entry.Data == "Off")
        entry.Image = Images::StatusOff;
}

void ReadPlc(std::string_view line, ParsedEntry& entry, clsFile& file, ReadingProgress& progress,
             KnownHeaders& headers) {
    ReadDataAndTime(line, entry, file, progress, headers);
    entry.Sender = "PLC";
}

void ReadEvent(std::string_view line, ParsedEntry& entry, clsFile& file, ReadingProgress&,
               KnownHeaders& headers) {
    entry.Time = ClassicTime(line);
    ReadEventBody(line, entry, file, headers);
}

void ReadInfo(std::string_view line, ParsedEntry& entry, clsFile& file, ReadingProgress& progress,
              KnownHeaders& headers) {
    ReadEvent(line, entry, file, progress, headers);
    InfoFinish(entry);
}

// The first keyword that the line begins with decides. Only "Key:" is not in upper case.
constexpr KeywordTable<KeywordRow, 12> Keywords({{
    {"RESET:", EventTypes::Restart, Images::Restart, ReadTime},
    {"BERR:", EventTypes::Fatal, Images::Fatal, ReadDataAndTime},
    {"BREG:", EventTypes::Fatal, Images::Fatal, ReadRegisters},
    {"ERR:", EventTypes::Error, Images::Error, ReadError},
    {"Key:", EventTypes::Key, Images::Key, ReadDataAndTime},
    {"STIB:", EventTypes::Status, Images::Info, ReadStatus},
    {"PLC ERROR:", EventTypes::Error, Images::Error, ReadPlc},
    {"PLC MESSAGE:", EventTypes::Info, Images::Info, ReadPlc},
    {"INFO:", EventTypes::Info, Images::Info, ReadInfo},
    {"WARNING:", EventTypes::Warning, Images::Warning, ReadEvent},
    {"ERROR:", EventTypes::Error, Images::Error, ReadEvent},
    {"FATAL:", EventTypes::Fatal, Images::Fatal, ReadEvent},
}});

} // namespace

void ParseClassicLine(std::string_view line, ParsedEntry& entry, clsFile& file, ReadingProgress& progress,
                      KnownHeaders& headers) {
    const KeywordRow* const keyword = Keywords.Find(line);
    if (keyword == nullptr)
        return;
    entry.EventType = keyword->EventType;
    entry.Image = keyword->Image;
    keyword->Read(line, entry, file, progress, headers);
}
