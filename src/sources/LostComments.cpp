// SPDX-License-Identifier: MIT
#include "sources/LostComments.h"

#include "sources/LogbookChecksum.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <fstream>
#include <optional>

namespace {

using Json = nlohmann::json;

// Each is held, and a process has some hundred handles. Later ones are offered the next time.
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

// The next line that is whole; a discarded value at the end of the file. A line of a journal has no values in
// values: what is nested counts as none, so that no file can exhaust the stack.
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

// The checksum of this logbook, for which it is looked at when the first journal asks.
class ChecksumOnDemand {
  public:
    explicit ChecksumOnDemand(const EntryTable& entries) : entries_(entries) {}

    const std::string& operator()() {
        if (sum_.empty())
            sum_ = LogbookChecksum(entries_);
        return sum_;
    }

  private:
    const EntryTable& entries_;
    std::string sum_;
};

// The files of a folder, the one written last behind the others: of two comments of an entry, it counts.
std::vector<std::filesystem::path> FilesByAge(const std::filesystem::path& folder) {
    std::error_code error;
    std::vector<std::pair<std::filesystem::file_time_type, std::filesystem::path>> files;
    for (std::filesystem::directory_iterator item(folder, error), end; !error && item != end;
         item.increment(error)) {
        std::error_code noFile;
        if (item->is_regular_file(noFile) && !noFile)
            files.emplace_back(item->last_write_time(noFile), item->path());
    }
    std::sort(files.begin(), files.end());
    std::vector<std::filesystem::path> paths;
    for (const auto& [time, path] : files)
        paths.push_back(path);
    return paths;
}

} // namespace

LostComments::LostComments(const std::filesystem::path& folder, const EntryTable& entries) {
    ChecksumOnDemand checksum(entries);
    for (const std::filesystem::path& path : FilesByAge(folder)) {
        if (journals_.size() == MostJournals)
            break;
        std::optional<LostJournal> journal = LostJournal::Hold(path);
        if (!journal)
            continue;
        std::ifstream stream(path, std::ios::binary);
        const Json header = NextLine(stream);
        if (!header.is_object() || NumberIn(header, "entries") != entries.Count() ||
            TextIn(header, "logbook") != checksum())
            continue;
        journals_.push_back(std::move(*journal));
        for (Json line = NextLine(stream); !line.is_discarded(); line = NextLine(stream)) {
            const std::optional<EntryNumber> number = NumberIn(line, "entry");
            std::optional<std::string> comment = TextIn(line, "comment");
            if (number && *number < entries.Count() && comment)
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

bool OfferLostComments(EntryTable& entries, LogbookState& state, CommentJournal& journal,
                       UserInterface& user) {
    LostComments lost(journal.Folder(), entries);
    if (lost.Comments().empty()) {
        journal.Keep(lost.TakeJournals(), {});
        return false;
    }
    switch (user.Ask(TextId::AskRestoreComments)) {
    case UserInterface::Answer::Yes: {
        std::vector<EntryNumber> restored;
        for (const auto& [number, comment] : lost.Comments()) {
            entries.SetComment(number, comment);
            restored.push_back(number);
        }
        journal.Keep(lost.TakeJournals(), restored);
        state.CommentsEdited = true;
        return true;
    }
    case UserInterface::Answer::No:
        lost.Remove();
        break;
    case UserInterface::Answer::Cancel:
        break;
    }
    return false;
}
