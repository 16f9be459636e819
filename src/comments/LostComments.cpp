// SPDX-License-Identifier: MIT
#include "comments/LostComments.h"

#include "base/Paths.h"
#include "comments/LogbookChecksum.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <fstream>
#include <optional>

namespace {

using Json = nlohmann::json;

// The most journals to offer: each is held, and a process has some hundred handles. The rest are offered the
// next time.
constexpr std::size_t MostJournals = 200;

std::optional<EntryNumber> NumberIn(const Json& line, const char* name) {
    const auto member = line.find(name);
    if (member == line.end() || !member->is_number_unsigned() || member->get<std::uint64_t>() > MostEntries)
        return std::nullopt;
    return static_cast<EntryNumber>(member->get<std::uint64_t>());
}

std::optional<std::string> TextIn(const Json& line, const char* name) {
    const auto member = line.find(name);
    return member != line.end() && member->is_string() ? std::optional(member->get<std::string>())
                                                       : std::nullopt;
}

// The next whole line; a discarded value at the end of the file. A line of a journal has no nested values: a
// nested line is ignored, so that no file can exhaust the stack.
Json NextLine(std::istream& stream) {
    std::string text;
    if (!std::getline(stream, text) || stream.eof())
        return Json(Json::value_t::discarded);
    bool nested = false;
    const auto watchDepth = [&](int depth, Json::parse_event_t, Json&) {
        nested = nested || depth > 1;
        return !nested;
    };
    Json line = Json::parse(text, watchDepth, false);
    return !nested && line.is_object() ? std::move(line) : Json::object();
}

// The logbook that a journal belongs to. Journals of version 0.1 identify it by one checksum of the whole.
struct JournalHeader {
    EntryNumber Entries = 0;
    std::optional<std::string> Whole;
    std::optional<std::string> ButLast;
    std::optional<std::string> Last;
    std::optional<std::string> OfVersion01;
};

// Nothing when the next line is no header.
std::optional<JournalHeader> ReadHeader(std::istream& stream) {
    const Json line = NextLine(stream);
    if (!line.is_object())
        return std::nullopt;
    const std::optional<EntryNumber> entries = NumberIn(line, "entries");
    if (!entries || *entries == 0)
        return std::nullopt;
    return JournalHeader{*entries, TextIn(line, "whole"), TextIn(line, "butLast"), TextIn(line, "last"),
                         TextIn(line, "logbook")};
}

// A logbook that journals may belong to. When the first journal asks, the checksums for all journals are made
// in one pass over the logbook.
class Candidate {
  public:
    explicit Candidate(const EntryTable& entries) : entries_(entries) {}

    // Announces a journal that will ask.
    void Expect(const JournalHeader& header) {
        if (header.Entries > entries_.Count() || !header.Whole)
            return;
        sums_[header.Entries];
        sums_[header.Entries - 1];
    }

    // True when the entries that the journal knew are the first of the logbook. The last of them may have
    // other data by now, if entries before it identify the logbook.
    bool BeginsAs(const JournalHeader& header) {
        if (header.OfVersion01)
            return header.Entries == entries_.Count() && *header.OfVersion01 == SumOfVersion01();
        return header.Entries <= entries_.Count() &&
               (header.Whole == Sum(header.Entries) ||
                (header.Entries > 1 && header.ButLast == Sum(header.Entries - 1) &&
                 header.Last == ChecksumOfEntry(entries_, header.Entries - 1)));
    }

  private:
    // Nothing for a beginning that was not announced: the journal appeared in between.
    std::optional<std::string> Sum(EntryNumber count) {
        if (!summed_) {
            std::vector<EntryNumber> counts;
            for (const auto& [beginning, sum] : sums_)
                counts.push_back(beginning);
            const std::vector<std::string> sums = ChecksumsOfBeginnings(entries_, counts);
            for (std::size_t i = 0; i < counts.size(); ++i)
                sums_[counts[i]] = sums[i];
            summed_ = true;
        }
        const auto found = sums_.find(count);
        return found == sums_.end() ? std::nullopt : std::optional(found->second);
    }

    const std::string& SumOfVersion01() {
        if (sumOfVersion01_.empty())
            sumOfVersion01_ = LogbookChecksum(entries_);
        return sumOfVersion01_;
    }

    const EntryTable& entries_;
    std::map<EntryNumber, std::string> sums_; // by the number of entries
    bool summed_ = false;
    std::string sumOfVersion01_;
};

// The files of a folder in the order of writing: of two comments of an entry, the later one counts.
std::vector<std::filesystem::path> FilesByAge(const std::filesystem::path& folder) {
    std::vector<std::pair<std::filesystem::file_time_type, std::filesystem::path>> files;
    for (const std::filesystem::path& item : ItemsIn(folder)) {
        std::error_code noFile;
        if (std::filesystem::is_regular_file(item, noFile) && !noFile)
            files.emplace_back(std::filesystem::last_write_time(item, noFile), item);
    }
    std::sort(files.begin(), files.end());
    std::vector<std::filesystem::path> paths;
    for (const auto& [time, path] : files)
        paths.push_back(path);
    return paths;
}

} // namespace

LostComments::LostComments(const std::filesystem::path& folder, const EntryTable& entries) {
    const std::vector<std::filesystem::path> files = FilesByAge(folder);
    Candidate logbook(entries);
    for (const std::filesystem::path& path : files) {
        if (!LostJournal::Hold(path))
            continue;
        std::ifstream stream(path, std::ios::binary);
        if (const std::optional<JournalHeader> header = ReadHeader(stream))
            logbook.Expect(*header);
    }
    for (const std::filesystem::path& path : files) {
        if (journals_.size() == MostJournals)
            break;
        std::optional<LostJournal> journal = LostJournal::Hold(path);
        if (!journal)
            continue;
        std::ifstream stream(path, std::ios::binary);
        const std::optional<JournalHeader> header = ReadHeader(stream);
        if (!header || !logbook.BeginsAs(*header))
            continue;
        journals_.push_back(std::move(*journal));
        for (Json line = NextLine(stream); !line.is_discarded(); line = NextLine(stream)) {
            const std::optional<EntryNumber> number = NumberIn(line, "entry");
            std::optional<std::string> comment = TextIn(line, "comment");
            if (number && *number < header->Entries && comment)
                comments_[*number] = std::move(*comment);
        }
    }
    std::erase_if(comments_,
                  [&](const auto& comment) { return entries.Comment(comment.first) == comment.second; });
}

void LostComments::Remove() {
    for (const LostJournal& journal : journals_)
        journal.Remove();
}
