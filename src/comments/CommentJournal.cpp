// SPDX-License-Identifier: MIT
#include "comments/CommentJournal.h"

#include "base/AppendWhole.h"
#include "base/AtomicFile.h"
#include "base/LastError.h"
#include "comments/JournalName.h"
#include "comments/LogbookChecksum.h"

#include <nlohmann/json.hpp>

#include <array>
#include <utility>

namespace {

std::string Line(const nlohmann::json& value) {
    return value.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace) + '\n';
}

} // namespace

CommentJournal::CommentJournal(std::filesystem::path folder) : folder_(std::move(folder)) {}

CommentJournal::~CommentJournal() = default;

std::error_code CommentJournal::Note(const EntryTable& entries, std::span<const EntryNumber> numbers) {
    entered_.insert(numbers.begin(), numbers.end());
    toNote_.insert(numbers.begin(), numbers.end());
    if (!IsNameOf(name_, file_)) {
        file_.Close();
        if (const std::error_code error = Begin(entries))
            return error;
        toNote_ = entered_;
    }
    std::string lines;
    for (const EntryNumber number : toNote_)
        lines += Line({{"entry", number}, {"comment", entries.Comment(number)}});
    // Half a line would spoil the next one, too.
    const std::error_code error = AppendWhole(file_, lines);
    if (!error)
        toNote_.clear();
    return error;
}

void CommentJournal::Keep(std::vector<LostJournal> journals, std::span<const EntryNumber> restored) {
    kept_ = std::move(journals);
    restored_ = !restored.empty();
    entered_.insert(restored.begin(), restored.end());
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
    const std::string header =
        Line({{"butLast", sums[0]}, {"entries", count}, {"last", last}, {"whole", sums[1]}});
    std::filesystem::path name = folder_ / JournalNamePattern();
    file_ = MakeFileToAppend(name, error);
    if (error)
        return error;
    name_ = name;
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
