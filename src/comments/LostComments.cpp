// SPDX-License-Identifier: MIT
#include "comments/LostComments.h"

#include "base/Paths.h"
#include "comments/LogbookChecksum.h"
#include "logbook/JoinedLines.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <optional>
#include <utility>

namespace {

// The most journals to offer: each is held, and a process has some hundred handles. The rest are offered the
// next time.
constexpr std::size_t MostJournals = 200;

// The numbers and texts in a line. A line of a journal has no nested values, and the reading of one that has
// ends there, so that no file can exhaust the stack. Not read into the library's own values: their destructor
// needs memory, and ends the program where there is none.
class JournalLine : public nlohmann::json_sax<nlohmann::json> {
  public:
    // A line that is no such object has no members.
    explicit JournalLine(const std::string& text) {
        if (!nlohmann::json::sax_parse(text, this)) {
            numbers_.clear();
            texts_.clear();
        }
    }

    std::optional<EntryNumber> Number(const char* name) const {
        const auto member = numbers_.find(name);
        return member == numbers_.end() || member->second > MostEntries
                   ? std::nullopt
                   : std::optional(static_cast<EntryNumber>(member->second));
    }

    std::optional<std::string> Text(const char* name) const {
        const auto member = texts_.find(name);
        return member == texts_.end() ? std::nullopt : std::optional(member->second);
    }

    bool key(std::string& name) override {
        name_ = std::move(name);
        numbers_.erase(name_);
        texts_.erase(name_);
        return true;
    }
    bool number_unsigned(std::uint64_t number) override {
        numbers_[name_] = number;
        return inObject_;
    }
    bool string(std::string& text) override {
        texts_[name_] = std::move(text);
        return inObject_;
    }
    bool start_object(std::size_t) override { return !std::exchange(inObject_, true); }
    bool start_array(std::size_t) override { return false; }

    bool null() override { return true; }
    bool boolean(bool) override { return true; }
    bool number_integer(std::int64_t) override { return true; }
    bool number_float(double, const std::string&) override { return true; }
    bool binary(nlohmann::json::binary_t&) override { return true; }
    bool end_object() override { return true; }
    bool end_array() override { return true; }
    bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception&) override {
        return false;
    }

  private:
    bool inObject_ = false;
    std::string name_; // of the value that follows
    std::map<std::string, std::uint64_t> numbers_;
    std::map<std::string, std::string> texts_;
};

// The next whole line; nothing at the end of the file, and where the stream is bad from now on.
std::optional<JournalLine> NextLine(std::istream& stream) {
    std::string text;
    if (!std::getline(stream, text) || stream.eof())
        return std::nullopt;
    return JournalLine(text);
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
    const std::optional<JournalLine> line = NextLine(stream);
    const std::optional<EntryNumber> entries = line ? line->Number("entries") : std::nullopt;
    if (!entries || *entries == 0)
        return std::nullopt;
    return JournalHeader{*entries, line->Text("whole"), line->Text("butLast"), line->Text("last"),
                         line->Text("logbook")};
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

// The files of a folder in the order of writing.
std::vector<std::filesystem::path> FilesByAge(const std::filesystem::path& folder) {
    std::vector<std::pair<std::filesystem::file_time_type, std::filesystem::path>> files;
    for (const std::filesystem::path& item : ItemsIn(folder)) {
        std::error_code noFile;
        if (std::filesystem::is_regular_file(item, noFile) && !noFile)
            files.emplace_back(std::filesystem::last_write_time(item, noFile), item);
    }
    std::sort(files.begin(), files.end());
    std::vector<std::filesystem::path> paths;
    paths.reserve(files.size());
    for (const auto& [time, path] : files)
        paths.push_back(path);
    return paths;
}

// What is left of the comment of an entry after a further journal, which noted these texts one after the
// other. Its last one counts where the person has made it of the earlier comment, or has removed the comment.
// Otherwise two copies of the program had the logbook, and both are kept.
std::string Merged(std::string earlier, const std::vector<std::string>& texts) {
    const std::string& later = texts.back();
    if (later.empty() || later.find(earlier) != std::string::npos ||
        std::find(texts.begin(), texts.end(), earlier) != texts.end())
        return later;
    if (earlier.find(later) != std::string::npos)
        return earlier;
    return earlier.append(LineSeparator).append(later);
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
        std::map<EntryNumber, std::vector<std::string>> comments;
        for (std::optional<JournalLine> line = NextLine(stream); line; line = NextLine(stream)) {
            const std::optional<EntryNumber> number = line->Number("entry");
            std::optional<std::string> comment = line->Text("comment");
            if (number && *number < header->Entries && comment)
                comments[*number].push_back(std::move(*comment));
        }
        // One that cannot be read to its end stays, whole, for the next time.
        if (stream.bad())
            continue;
        journals_.push_back(std::move(*journal));
        for (const auto& [number, texts] : comments) {
            std::string& known = comments_[number];
            known = Merged(std::move(known), texts);
        }
    }
    std::erase_if(comments_,
                  [&](const auto& comment) { return entries.Comment(comment.first) == comment.second; });
}

void LostComments::Remove() {
    for (const LostJournal& journal : journals_)
        journal.Remove();
}
