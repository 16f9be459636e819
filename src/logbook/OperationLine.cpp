// SPDX-License-Identifier: MIT
#include "logbook/OperationLine.h"

#include "logbook/EventLines.h"
#include "logbook/KeywordTable.h"

namespace {

enum class DataFrom { Header, MessageBlock };

struct KeywordRow {
    std::string_view Keyword;
    std::int16_t EventType;
    std::int16_t Image;
    std::int64_t SenderColumn; // 0 = the event has no sender
    std::int64_t SenderLength;
    std::string_view Name;
    DataFrom Data;
};

// The first keyword that the line begins with decides.
constexpr KeywordTable<KeywordRow, 8> Keywords({{
    {"Key:", EventTypes::Key, Images::Key, 5, 40, "", DataFrom::MessageBlock},
    {"Stib:", EventTypes::Status, Images::Info, 0, 0, "", DataFrom::Header},
    {"Info:", EventTypes::Info, Images::Info, 6, 39, "", DataFrom::MessageBlock},
    {"System info:", EventTypes::Info, Images::Info, 0, 0, "", DataFrom::MessageBlock},
    {"Warning:", EventTypes::Warning, Images::Warning, 9, 36, "", DataFrom::MessageBlock},
    {"Error:", EventTypes::Error, Images::Error, 7, 38, "", DataFrom::MessageBlock},
    {"System error:", EventTypes::Error, Images::Error, 14, 31, "", DataFrom::MessageBlock},
    {"Mouse:", EventTypes::Info, Images::Mouse, 7, 38, "Mouse", DataFrom::MessageBlock},
}});

constexpr std::string_view Indent = "  ";

std::string_view WithoutIndent(std::string_view line) {
    return line.substr(std::min(Indent.size(), line.size()));
}

bool IsMessageNext(clsFile& file) {
    if (const char* const next = file.NextAtHand(); next != nullptr && *next != Blank)
        return false;
    return !file.EndOfFile() && file.NextLineStart() == Indent;
}

void ReadMessageBlock(ParsedEntry& entry, clsFile& file) {
    std::string_view line;
    file.ReadLine(line);
    entry.Data = WithoutIndent(line);
    while (IsMessageNext(file)) {
        file.ReadPassingLine(line);
        entry.AppendToData(LineSeparator);
        entry.AppendToData(WithoutIndent(line));
    }
}

// A control's start is written as an info event.
void TurnStartIntoRestart(ParsedEntry& entry) {
    if (entry.Data.find("SYSTEM START") == std::string_view::npos)
        return;
    entry.SetTypeByData(EventTypes::Restart, Images::Restart);
}

std::string_view CutSender(const KeywordRow& row, std::string_view line) {
    const std::string_view sender = Trim(Mid(line, row.SenderColumn, row.SenderLength));
    // The line gives a key without a name by its code; that is no sender.
    return row.EventType == EventTypes::Key && sender.starts_with("0x") ? std::string_view{} : sender;
}

void ReadHeader(const KeywordRow& row, std::string_view line, ParsedEntry& entry, KnownHeaders& headers) {
    entry.Name = row.Name;
    KnownHeader* const header = headers.Find(line);
    if (header == nullptr) {
        entry.Sender = CutSender(row, line);
        return;
    }
    if (!header->HasFields())
        header->SetFields(line, CutSender(row, line), {});
    entry.Sender = header->Sender();
    entry.KindMemo = header->KindMemo();
}

} // namespace

void ParseOperationLine(std::string_view line, ParsedEntry& entry, clsFile& file, KnownHeaders& headers) {
    const KeywordRow* const keyword = Keywords.Find(line);
    if (keyword == nullptr)
        return;
    entry.EventType = keyword->EventType;
    entry.Image = keyword->Image;
    entry.Time = ClassicTime(line);
    if (keyword->SenderColumn != 0)
        ReadHeader(*keyword, line, entry, headers);

    if (keyword->Data == DataFrom::Header)
        entry.Data = Trim(Mid(line, 6, 23));
    else
        ReadMessageBlock(entry, file);

    if (entry.EventType == EventTypes::Info && entry.Image == Images::Info)
        TurnStartIntoRestart(entry);
}
