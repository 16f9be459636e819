// SPDX-License-Identifier: MIT
#include "comments/CommentJournal.h"

#include "base/AppendWhole.h"
#include "base/AtomicFile.h"
#include "base/LastError.h"
#include "comments/JournalName.h"
#include "comments/LogbookChecksum.h"

#include <nlohmann/json.hpp>

#include <array>
#include <new>
#include <string>
#include <string_view>
#include <utility>

namespace {

// A text as JSON. Not more than a text is given to the library: the destructor of a JSON object needs memory,
// and ends the program where there is none.
std::string Quoted(std::string_view text) {
    return nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

std::string LineOf(EntryNumber number, std::string_view comment) {
    return "{\"comment\":" + Quoted(comment) + ",\"entry\":" + std::to_string(number) + "}\n";
}

} // namespace

CommentJournal::CommentJournal(std::filesystem::path folder) : folder_(std::move(folder)) {}

CommentJournal::~CommentJournal() = default;

std::error_code CommentJournal::Note(const EntryTable& entries, std::span<const EntryNumber> numbers) {
    const std::error_code noMemory = std::make_error_code(std::errc::not_enough_memory);
    try {
        Remember(numbers);
        if (const std::error_code error = NoteRemembered(entries))
            return error;
    } catch (const std::bad_alloc&) {
        return noMemory;
    }
    return forgotSome_ ? noMemory : std::error_code();
}

void CommentJournal::Remember(std::span<const EntryNumber> numbers) {
    const bool forgotBefore = std::exchange(forgotSome_, true);
    entered_.insert(numbers.begin(), numbers.end());
    toNote_.insert(numbers.begin(), numbers.end());
    forgotSome_ = forgotBefore;
}

std::error_code CommentJournal::NoteRemembered(const EntryTable& entries) {
    if (!IsNameOf(name_, file_)) {
        file_.Close();
        std::set<EntryNumber> all = entered_;
        if (const std::error_code error = Begin(entries))
            return error;
        toNote_.swap(all);
    }
    std::string lines;
    for (const EntryNumber number : toNote_)
        lines += LineOf(number, entries.Comment(number));
    // Half a line would spoil the next one, too.
    const std::error_code error = AppendWhole(file_, lines);
    if (!error)
        toNote_.clear();
    return error;
}

void CommentJournal::Keep(std::vector<LostJournal> journals, std::span<const EntryNumber> restored) {
    entered_.insert(restored.begin(), restored.end());
    kept_ = std::move(journals);
    restored_ = !restored.empty();
}

void CommentJournal::Saved() { End(KeptJournals::Go); }

void CommentJournal::Dropped() { End(restored_ ? KeptJournals::Go : KeptJournals::Stay); }

void CommentJournal::End(KeptJournals kept) {
    if (IsNameOf(name_, file_))
        RemoveFile();
    file_.Close();
    if (kept == KeptJournals::Go)
        for (const LostJournal& journal : kept_)
            journal.Remove();
    kept_.clear();
    restored_ = false;
    entered_.clear();
    toNote_.clear();
    forgotSome_ = false;
}

void CommentJournal::RemoveFile() {
    std::error_code ignored;
    std::filesystem::remove(name_, ignored);
    file_.Close();
}

std::error_code CommentJournal::Begin(const EntryTable& entries) {
    std::error_code error;
    std::filesystem::create_directories(folder_, error);
    if (error)
        return error;
    // Done before the file is made: it takes a while for a large logbook, and the program may be killed.
    const EntryNumber count = entries.Count();
    const std::array<EntryNumber, 2> counts{count == 0 ? 0 : count - 1, count};
    const std::vector<std::string> sums = ChecksumsOfBeginnings(entries, counts);
    const std::string last = count == 0 ? std::string() : ChecksumOfEntry(entries, count - 1);
    const std::string header = "{\"butLast\":" + Quoted(sums[0]) + ",\"entries\":" + std::to_string(count) +
                               ",\"last\":" + Quoted(last) + ",\"whole\":" + Quoted(sums[1]) + "}\n";
    std::filesystem::path name = folder_ / JournalNamePattern();
    file_ = MakeFileToAppend(name, error);
    if (error)
        return error;
    name_ = std::move(name);
    // Where the disk has no locks, the name shows others that the file is in use.
    const LockOutcome lock = TryLock(file_);
    if (lock == LockOutcome::Held || lock == LockOutcome::Unsupported)
        error = AppendWhole(file_, header);
    else
        error = LastError();
    if (error)
        RemoveFile();
    else
        FlushFolder(folder_);
    return error;
}
