// SPDX-License-Identifier: MIT
#include "logbook/EntryTable.h"

#include <algorithm>

void EntryTable::Clear(std::size_t entries, std::size_t textBytes) {
    records_.Clear();
    text_.Clear();
    kinds_.Clear();
    stamps_.Clear();
    comments_.clear();
    records_.Expect(entries);
    text_.Expect(textBytes);
}

void EntryTable::ResetToOneEmpty(std::int16_t eventType, std::int16_t image) {
    Clear();
    ParsedEntry empty;
    empty.EventType = eventType;
    empty.Image = image;
    Append(empty, CodePage());
}

void EntryTable::Append(const ParsedEntry& entry, const CodePage& codePage) {
    if (records_.Size() == MostEntries || text_.Size() >= MostText)
        throw RunTimeError("too many entries");
    char* const begin =
        text_.MakeRoom((entry.Data.size() + entry.Time.size()) * CodePage::MostBytes + CodePage::Overrun);
    char* end = codePage.Encode(entry.Data, begin);
    PackedStamp stamp;
    if (!stamps_.Pack(entry.Time, codePage, stamp)) {
        char* const stampBegin = end;
        end = codePage.Encode(entry.Time, stampBegin);
        stamp = {0, StampInText | static_cast<std::uint32_t>(end - stampBegin)};
    }
    records_.Append({text_.Size() | static_cast<std::uint64_t>(stamp.Date) << 40U, stamp.Clock,
                     kinds_.NumberOf(entry, codePage)});
    text_.Advance(static_cast<std::size_t>(end - begin));
}

void EntryTable::Trim() {
    records_.Trim();
    text_.Trim();
}

LogbookEntry EntryTable::operator[](EntryNumber number) const {
    const EntryKind& kind = Kind(number);
    return {.EventType = kind.EventType,
            .Sender = kind.Sender,
            .Name = kind.Name,
            .Data = Data(number),
            .Time = Time(number),
            .Image = kind.Image,
            .Comment = Comment(number)};
}

std::string_view EntryTable::Data(EntryNumber number) const {
    const std::string_view text = TextOf(number);
    return text.substr(0, text.size() - records_[number].StampLengthInText());
}

std::string EntryTable::Time(EntryNumber number) const {
    const Record& record = records_[number];
    if ((record.Clock & StampInText) == 0)
        return stamps_.Text(record.Stamp());
    const std::string_view text = TextOf(number);
    return std::string(text.substr(text.size() - record.StampLengthInText()));
}

EntryNumber EntryTable::EntryAt(std::size_t place, EntryNumber from) const {
    EntryNumber low = from; // does not begin behind the place
    EntryNumber step = 1;
    while (Count() - low > step && TextBegin(low + step) <= place) {
        low += step;
        step *= 2;
    }
    EntryNumber high = low + std::min(step, Count() - low); // begins behind it, or is Count
    while (high - low > 1) {
        const EntryNumber middle = low + (high - low) / 2;
        (TextBegin(middle) <= place ? low : high) = middle;
    }
    return low;
}

std::string_view EntryTable::Comment(EntryNumber number) const {
    const auto found = comments_.find(number);
    return found == comments_.end() ? std::string_view{} : found->second;
}

void EntryTable::SetComment(EntryNumber number, std::string_view comment) {
    if (comment.empty())
        comments_.erase(number);
    else
        comments_.insert_or_assign(number, std::string(comment));
}
