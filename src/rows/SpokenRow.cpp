// SPDX-License-Identifier: MIT
#include "rows/SpokenRow.h"

#include "logbook/LogbookEntry.h"
#include "rows/LogbookColumns.h"

namespace {

// The icons that mean more than the event type.
struct IconInWords {
    std::int16_t Image;
    TextId Words;
};
constexpr IconInWords IconsInWords[] = {
    {Images::Mouse, TextId::IconMouse},
    {Images::StatusOn, TextId::IconStatusOn},
    {Images::StatusBlink, TextId::IconStatusBlink},
    {Images::StatusOff, TextId::IconStatusOff},
    {Images::DebugSend, TextId::IconDebugSend},
    {Images::DebugReceive, TextId::IconDebugReceive},
    {Images::ErrorCleared, TextId::IconErrorCleared},
};

void Append(std::string& text, std::string_view words) {
    text.append(text.empty() ? "" : ", ").append(words);
}

} // namespace

std::string SpokenRow(const EntryTable& entries, const LogbookRow& row, Language language) {
    std::string text = CellText(entries, row.Entry, LogbookColumn::Event);
    for (const IconInWords& icon : IconsInWords)
        if (icon.Image == entries.Kind(row.Entry).Image)
            Append(text, Text(icon.Words, language));
    if (row.Highlighted != 0)
        Append(text, Text(TextId::RowHighlighted, language));
    return text;
}
