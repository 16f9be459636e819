// SPDX-License-Identifier: MIT
// Any bytes as a logbook file of any generation.
#include "FuzzSupport.h"
#include "logbook/Mod_FileHandling.h"

#include <algorithm>

namespace {

// Stops a register block that does not end. Every other round of events comes with a new percentage.
class BoundedProgress : public ReadingProgress {
  public:
    void SetValue(double percent) override {
        Check(percent >= 0 && percent <= 100);
        progressed_ = true;
    }
    void ProcessPendingEvents() override {
        stop_ = !progressed_;
        progressed_ = false;
    }
    bool StopWanted() const override { return stop_; }
    void ShowMessage(std::string_view text) override { Check(IsUtf8(text)); }

  private:
    bool progressed_ = false;
    bool stop_ = false;
};

bool Read(std::string_view content, Logbook& logbook) {
    const MemoryFile file(content);
    BoundedProgress progress;
    std::string title;
    const bool read = ReadLogbook(file.Path(), logbook, title, progress, CodePage());
    Check(!read || file.Path().ends_with("/" + title));
    return read;
}

void CheckState(const Logbook& logbook, bool read, bool isEmpty) {
    const auto count = static_cast<std::int64_t>(logbook.Entries.Count());
    if (read)
        Check(logbook.LoadState == LoadStates::Done && count > 0 && logbook.EntryCount == count);
    else if (isEmpty)
        Check(logbook.LoadState == LoadStates::Done && count == 1);
    else
        Check(logbook.LoadState == LoadStates::Opening ||
              (logbook.LoadState == LoadStates::Reading && logbook.EntryCount == count));
}

void CheckEntries(const EntryTable& entries, bool onlyEmpty) {
    Check(IsUtf8(entries.Text()) && entries.Text().find('\n') == std::string_view::npos);
    for (EntryNumber number = 0; number < entries.Count(); ++number) {
        const LogbookEntry entry = entries[number];
        Check(onlyEmpty || (IsEventType(entry.EventType) && !EventTypeName(entry.EventType).empty()));
        for (const std::string_view text : {entry.Sender, entry.Name, std::string_view(entry.Time)})
            Check(IsUtf8(text) && text.find('\n') == std::string_view::npos);
        const std::size_t begin = entries.TextBegin(number);
        const std::size_t end = entries.TextBegin(number + 1);
        Check(begin + entry.Data.size() <= end && end <= entries.Text().size());
        Check(begin == end || (entries.EntryAt(begin, 0) == number && entries.EntryAt(end - 1, 0) == number));
    }
}

void CheckSame(const EntryTable& some, const EntryTable& others) {
    Check(some.Count() == others.Count());
    for (EntryNumber number = 0; number < some.Count(); ++number)
        Check(some[number] == others[number]);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t LargestFragment = 50; // whose second entry ends the read
    const std::string_view content = TextOf(data, size);
    Logbook logbook;
    const bool read = Read(content, logbook);
    CheckState(logbook, read, content.empty());
    const EntryTable& entries = logbook.Entries;
    const bool onlyEmpty = entries.Count() == 1 && entries.Text().empty();
    CheckEntries(entries, onlyEmpty);

    // A carriage return changes nothing, except that behind the last line feed it is a line of its own.
    std::string without(content);
    std::erase(without, '\r');
    if (without.size() != size && without.size() > LargestFragment && !content.ends_with('\r')) {
        Logbook same;
        Check(Read(without, same) == read && same.LoadState == logbook.LoadState);
        CheckSame(same.Entries, entries);
    }
    return 0;
}
