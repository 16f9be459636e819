// SPDX-License-Identifier: MIT
#include "tools/ShownEntry.h"

#include <algorithm>
#include <array>
#include <span>
#include <vector>

namespace {

using Lines = std::vector<std::string_view>;

// Where an event says what it says.
enum class Form {
    Nothing,
    FirstLine,    // behind the keyword
    PlcFirstLine, // the same; the keyword is long, so the list shows what stands in its place as well
    FirstMessage, // in the one line below
    PlcMessage,
    Message,       // sender and name on the first line, below it a text with continuations
    Reported,      // FirstLine, or Message; the text decides the sender
    ReportedBelow, // FirstMessage, when the first line says nothing; the text decides the sender
    Registers,
    Block,       // sender on the first line, below it an indented text
    SystemBlock, // the same without a sender
};

struct Rule {
    std::string_view keyword;
    int type;
    Form form;
};

constexpr auto ClassicRules = std::to_array<Rule>({
    {"RESET:", 7, Form::Nothing},
    {"BERR:", 4, Form::FirstLine},
    {"BREG:", 4, Form::Registers},
    {"ERR:", 3, Form::Reported},
    {"PLC ERROR:", 3, Form::PlcFirstLine},
    {"PLC MESSAGE:", 1, Form::PlcFirstLine},
    {"INFO:", 1, Form::Message},
    {"WARNING:", 2, Form::Message},
    {"ERROR:", 3, Form::Message},
    {"FATAL:", 4, Form::Message},
});

constexpr auto SeparatedRules = std::to_array<Rule>({
    {"Reset", 7, Form::Nothing},
    {"Blinkerror:", 4, Form::FirstMessage},
    {"Registers(Blinkerror):", 4, Form::Nothing},
    {"Error:", 3, Form::ReportedBelow},
    {"PLC Error:", 3, Form::PlcMessage},
    {"PLC Message:", 1, Form::PlcMessage},
    {"Info:", 1, Form::Message},
    {"Warning:", 2, Form::Message},
});

constexpr auto OperationRules = std::to_array<Rule>({
    {"Info:", 1, Form::Block},
    {"System info:", 1, Form::SystemBlock},
    {"Warning:", 2, Form::Block},
    {"Error:", 3, Form::Block},
    {"System error:", 3, Form::Block},
});

std::span<const Rule> RulesOf(Generation generation) {
    switch (generation) {
    case Generation::Classic:
        return ClassicRules;
    case Generation::Separated:
        return SeparatedRules;
    case Generation::Operation:
        return OperationRules;
    }
    return {};
}

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view{}
                                           : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

Lines Split(std::string_view text) {
    Lines lines;
    for (std::size_t end; (end = text.find("\r\n")) != std::string_view::npos; text.remove_prefix(end + 2))
        lines.push_back(text.substr(0, end));
    return lines;
}

std::string_view WithoutStamp(std::string_view line) {
    const std::size_t length = line[line.size() - 4] == '.' ? 23 : 19;
    return line.substr(0, line.size() - length);
}

// The characters of the tables have the same numbers in Windows-1252 and in Unicode.
std::string Utf8(std::string_view text) {
    std::string utf8;
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (code >= 0x80) {
            utf8 += static_cast<char>(0xC0U | code >> 6U);
            utf8 += static_cast<char>(0x80U | (code & 0x3FU));
        } else {
            utf8 += c;
        }
    }
    return utf8;
}

constexpr std::string_view Joint = " | ";

// The first line as it is, or, when others follow, each with the joint behind it.
std::string Joined(std::span<const std::string_view> lines) {
    std::string text(Trimmed(lines[0]));
    if (lines.size() == 1)
        return text;
    text += Joint;
    for (const std::string_view line : lines.subspan(1))
        text.append(Trimmed(line)).append(Joint);
    return text;
}

std::string JoinedBlock(std::span<const std::string_view> lines) {
    std::string text;
    for (const std::string_view line : lines)
        text.append(text.empty() ? "" : Joint).append(line.substr(2));
    return text;
}

std::string JoinedRegisters(std::span<const std::string_view> lines) {
    std::string text;
    for (const std::string_view line : lines)
        text.append(Trimmed(line)).append(Joint);
    return text;
}

std::string_view ReporterOf(std::string_view data) {
    return data.starts_with('P') ? "PLC" : data.starts_with('Y') ? "PYTHON" : "MAIN";
}

constexpr std::size_t FieldBegin = 9;
constexpr std::size_t FieldLength = 23;

std::string_view FieldOf(std::string_view line) { return Trimmed(line.substr(FieldBegin, FieldLength)); }

void ReadField(std::string_view line, ShownEntry& entry) {
    const std::string_view field = FieldOf(line);
    const std::size_t blank = std::min(field.find(' '), field.size());
    entry.sender = field.substr(0, blank);
    entry.name = Trimmed(field.substr(blank));
}

void ReadForm(const Rule& rule, const Lines& lines, ShownEntry& entry) {
    const std::string_view first = lines[0];
    const std::span<const std::string_view> below = std::span(lines).subspan(1);
    switch (rule.form) {
    case Form::Nothing:
        return;
    case Form::FirstLine:
        entry.data = Trimmed(WithoutStamp(first).substr(FieldBegin));
        return;
    case Form::PlcFirstLine:
        entry.data = Trimmed(WithoutStamp(first).substr(FieldBegin));
        entry.sender = "PLC";
        return;
    case Form::FirstMessage:
        entry.data = Trimmed(below[0]);
        return;
    case Form::PlcMessage:
        entry.data = Trimmed(below[0]);
        entry.sender = "PLC";
        return;
    case Form::Message:
        ReadField(first, entry);
        entry.data = Joined(below);
        return;
    case Form::Reported:
        if (below.empty()) {
            entry.data = Trimmed(WithoutStamp(first).substr(FieldBegin));
        } else {
            ReadField(first, entry);
            entry.data = Joined(below);
        }
        entry.sender = ReporterOf(entry.data);
        return;
    case Form::ReportedBelow:
        if (FieldOf(first).empty())
            entry.data = Trimmed(below[0]);
        entry.sender = ReporterOf(entry.data);
        return;
    case Form::Registers:
        entry.data = JoinedRegisters(below);
        return;
    case Form::Block:
        entry.sender = Trimmed(WithoutStamp(first).substr(rule.keyword.size()));
        entry.data = JoinedBlock(below);
        return;
    case Form::SystemBlock:
        entry.data = JoinedBlock(below);
        return;
    }
}

} // namespace

ShownEntry ReadShownEntry(Generation generation, std::string_view text) {
    ShownEntry entry;
    const Lines lines = Split(text);
    const std::span<const Rule> rules = RulesOf(generation);
    const auto rule = std::find_if(rules.begin(), rules.end(), [&](const Rule& candidate) {
        return lines[0].starts_with(candidate.keyword);
    });
    if (rule == rules.end())
        return entry;
    entry.type = rule->type;
    ReadForm(*rule, lines, entry);
    if (rule->form == Form::Reported && entry.data.starts_with("RD:ACCESSERR LOGBOOK"))
        entry.type = 0;
    if (generation == Generation::Operation && entry.type == 1 &&
        entry.data.find("SYSTEM START") != std::string::npos)
        entry.type = 7;
    for (std::string* const field : {&entry.sender, &entry.name, &entry.data})
        *field = Utf8(*field);
    return entry;
}
