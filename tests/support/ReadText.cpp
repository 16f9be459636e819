// SPDX-License-Identifier: MIT
#include "support/ReadText.h"

#include "logbook/Mod_FileHandling.h"
#include "support/TemporaryFolder.h"

void ReadText(std::string_view text, ReadResult& result) {
    const TemporaryFolder folder;
    result.Read =
        ReadLogbook(folder.Write("test.log", text), result.Book, result.Title, result.Progress, CodePage());
}

std::string Dump(const EntryTable& entries) {
    std::string dump;
    for (EntryNumber number = 0; number < entries.Count(); ++number) {
        const LogbookEntry entry = entries[number];
        dump += std::to_string(entry.EventType) + ' ' + std::to_string(entry.Image);
        for (const std::string_view field : {entry.Sender, entry.Name, std::string_view(entry.Time)})
            dump.append(" [").append(field).append("]");
        dump.append(" ").append(entry.Data).append("\n");
    }
    return dump;
}

std::string EntriesOf(std::string_view text) {
    ReadResult result;
    ReadText(text, result);
    std::string dump = Dump(result.Book.Entries);
    if (result.Book.LoadState != LoadStates::Done)
        dump += "error " + std::to_string(result.Book.LoadState) + "\n";
    return dump;
}

std::string Header(std::string_view text, std::string_view stamp) {
    std::string line(text);
    line.resize(std::max<std::size_t>(line.size() + 1, 49), ' ');
    return line.append(stamp);
}

std::string Lines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text.append(line).append("\r\n");
    return text;
}
