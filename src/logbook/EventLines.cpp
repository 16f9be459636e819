// SPDX-License-Identifier: MIT
#include "logbook/EventLines.h"

#include <cstdint>

namespace {

constexpr std::int64_t HeaderColumn = 10;
constexpr std::int64_t HeaderLength = 23;

std::int64_t Length(std::string_view text) { return static_cast<std::int64_t>(text.size()); }

// The place of the character in front of the last `count`; there must be one.
const char* BeforeLast(std::string_view line, std::size_t count) {
    if (line.size() <= count)
        ThrowTooShort();
    return line.data() + line.size() - count - 1;
}

bool EndsInMilliseconds(std::string_view line) { return *BeforeLast(line, 3) == '.'; }

} // namespace

HeaderFields SplitHeader(std::string_view line) {
    const std::string_view field = Trim(Mid(line, HeaderColumn, HeaderLength));
    const std::size_t blank = FindBlank(field);
    return {field.substr(0, blank), Trim(field.substr(blank))};
}

std::string_view ClassicData(std::string_view line) {
    return TrimPadded(Mid(line, HeaderColumn, Length(line) - (EndsInMilliseconds(line) ? 32 : 29)));
}

std::string_view ClassicTime(std::string_view line) {
    if (EndsInMilliseconds(line))
        return Right(line, 23);
    const char* const front = BeforeLast(line, 11);
    return Right(line, front[0] == Blank && front[1] == Blank ? 20 : 19);
}

std::string_view SenderFromData(std::string_view data) {
    if (data.starts_with('P'))
        return "PLC";
    if (data.starts_with('Y'))
        return "PYTHON";
    return "MAIN";
}

void ReadHeader(std::string_view line, ParsedEntry& entry, KnownHeaders& headers, std::string_view reporter) {
    // The three reporters differ in their length.
    KnownHeader* const header = headers.Find(line, static_cast<std::uint8_t>(reporter.size()));
    HeaderFields fields;
    if (header == nullptr || !header->HasFields()) {
        fields = SplitHeader(line);
        if (header != nullptr)
            header->SetFields(line, fields.Sender, fields.Name);
    }
    if (header != nullptr) {
        fields = {header->Sender(), header->Name()};
        entry.KindMemo = header->KindMemo();
    }
    entry.Sender = reporter.empty() ? fields.Sender : reporter;
    entry.Name = fields.Name;
}

void ReadEventBody(std::string_view line, ParsedEntry& entry, clsFile& file, KnownHeaders& headers) {
    ReadHeader(line, entry, headers);
    ReadMessage(entry, file);
}

void ReadMessage(ParsedEntry& entry, clsFile& file) {
    ReadDataLine(entry, file);
    if (!IsContinuationNext(file))
        return;
    entry.AppendToData(LineSeparator);
    do {
        std::string_view continuation;
        file.ReadPassingLine(continuation);
        entry.AppendToData(Trim(continuation));
        entry.AppendToData(LineSeparator);
    } while (IsContinuationNext(file));
}

void ReadDataLine(ParsedEntry& entry, clsFile& file) {
    std::string_view message;
    file.ReadLine(message);
    entry.Data = Trim(message);
}

void InfoFinish(ParsedEntry& entry) {
    if (entry.Name == "ERRCLEARED")
        entry.Image = Images::ErrorCleared;
    if (entry.Sender != "REMO")
        return;
    if (entry.Name.starts_with("DEB:S"))
        entry.Image = Images::DebugSend;
    else if (entry.Name.starts_with("DEB:R"))
        entry.Image = Images::DebugReceive;
    else
        return;
    // A dump begins with the numbers of its columns; the bytes below count, and four of them in front.
    if (entry.Data.starts_with("00 01 02 03 04"))
        entry.Data = Mid(entry.Data, 51);
    entry.SetData({Mid(entry.Data, 50, 4), LineSeparator, entry.Data});
}
