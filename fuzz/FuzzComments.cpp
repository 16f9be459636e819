// SPDX-License-Identifier: MIT
// Any bytes as a comments file, and as one comment.
#include "FuzzSupport.h"
#include "comments/Comments.h"

#include <algorithm>
#include <map>

namespace {

using Outcome = CommentsFileResult::Outcome;
using Comments = std::map<EntryNumber, std::string>;

constexpr EntryNumber Entries = 60;

const CodePage Western;

void Fill(EntryTable& entries) {
    entries.Clear();
    for (EntryNumber number = 0; number < Entries; ++number)
        entries.Append(ParsedEntry(), Western);
}

Outcome Read(const std::string& path, EntryTable& entries) {
    Fill(entries);
    const CommentsFileResult result = CommentLogbook(path, entries, Western);
    Check(CommentsFileMessage(path, result, {}).empty() == (result.Result == Outcome::Read));
    return result.Result;
}

// What a file gets of comments and gives back.
Comments SavedAndRead(const EntryTable& entries) {
    static const ScratchFolder folder;
    const std::string path = folder.File("saved.cmt");
    Check(!SaveComments(path, entries, Western));
    EntryTable again;
    Check(Read(path, again) == Outcome::Read);
    return again.Comments();
}

bool HasLineBreak(const std::string& text) { return text.find_first_of("\r\n") != std::string::npos; }

// Every comment comes back as it was; line breaks do not, but there is something in their place.
void CheckComesBack(const EntryTable& entries) {
    const Comments& before = entries.Comments();
    const Comments after = SavedAndRead(entries);
    Check(before.size() == after.size());
    for (const auto& [number, comment] : before) {
        const auto same = after.find(number);
        Check(same != after.end() && !HasLineBreak(same->second));
        Check(same->second == comment || HasLineBreak(comment));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view content = TextOf(data, size);
    const MemoryFile file(content);
    EntryTable entries;
    const Outcome outcome = Read(file.Path(), entries);
    Check(outcome != Outcome::CannotRead);
    Check(outcome == Outcome::Read || entries.Comments().empty());
    for (const auto& [number, comment] : entries.Comments())
        Check(number < Entries && !comment.empty() && IsUtf8(comment));
    Check(CommentsThatLose(entries, Western).empty());
    CheckComesBack(entries);

    Fill(entries);
    entries.SetComment(Entries / 2, Western.ToUtf8(content));
    CheckComesBack(entries);
    return 0;
}
