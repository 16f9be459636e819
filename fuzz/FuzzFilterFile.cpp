// SPDX-License-Identifier: MIT
// Any bytes as a filter file, whose filters are then applied.
#include "FuzzSupport.h"
#include "filter/Filter.h"
#include "filter/FilterFile.h"
#include "support/PlainFilters.h"

#include <algorithm>
#include <array>

namespace {

using Outcome = FilterFileContent::Outcome;
using Filters = std::vector<FilterDefinition>;

const CodePage Western;

FilterFileContent Import(const std::string& path) {
    const FilterFileContent content = ImportFilterFile(path, Western);
    Check(FilterFileMessage(path, content, {}).empty() == (content.Result == Outcome::Read));
    return content;
}

void CheckComesBack(const Filters& filters) {
    static const ScratchFolder folder;
    const std::string path = folder.File("exported.fil");
    Check(!ExportFilterFile(path, filters, Western));
    const FilterFileContent again = Import(path);
    Check(again.Result == Outcome::Read && again.Filters.size() == filters.size());
    const std::vector<std::size_t> losing = FiltersThatLose(filters, Western);
    for (std::size_t i = 0; i < filters.size(); ++i)
        Check(again.Filters[i] == filters[i] || std::find(losing.begin(), losing.end(), i) != losing.end());
}

// Entries of each type, with some senders, names and texts.
EntryTable MakeEntries() {
    constexpr std::array<std::string_view, 4> Senders{"", "HMI", "PLC", "REMO"};
    constexpr std::array<std::string_view, 3> Names{"", "Mouse", "STROBE"};
    constexpr std::array<std::string_view, 5> Texts{"", "N215 B", "oil, filter", "231-0001", "a|b"};
    EntryTable entries;
    entries.Clear();
    for (std::int16_t number = 0; number < 120; ++number) {
        ParsedEntry entry;
        entry.EventType = static_cast<std::int16_t>(number % 10);
        entry.Sender = Senders[static_cast<std::size_t>(number / 10 % 4)];
        entry.Name = Names[static_cast<std::size_t>(number / 20 % 3)];
        entry.Data = Texts[static_cast<std::size_t>(number % 7 % 5)];
        entries.Append(entry, Western);
    }
    return entries;
}

// A run shows what the rules say of each single filter and entry.
void CheckRun(const Filters& filters) {
    static const EntryTable entries = MakeEntries();
    LogbookRows rows;
    Check(ApplyFilters(entries, filters, rows));
    Check(rows == PlainRows(entries, filters));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const MemoryFile file(TextOf(data, size));
    const FilterFileContent content = Import(file.Path());
    Check(content.Result != Outcome::CannotRead);
    Check(content.Result != Outcome::NoHeader || content.Filters.empty());
    Check(content.Result != Outcome::InvalidLine || content.Line == content.Filters.size() + 2);
    CheckComesBack(content.Filters);
    CheckRun(content.Filters);
    return 0;
}
