// SPDX-License-Identifier: MIT
#include "comments/CommentJournal.h"

#include "base/AtomicFile.h"
#include "base/FileHandles.h"
#include "comments/JournalName.h"
#include "comments/LogbookChecksum.h"

#include <nlohmann/json.hpp>

#include <array>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::error_code LastError() { return {errno != 0 ? errno : EIO, std::generic_category()}; }

std::string Line(const nlohmann::json& value) {
    return value.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace) + '\n';
}

bool WriteAll(int handle, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(handle, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

} // namespace

CommentJournal::CommentJournal(std::filesystem::path folder) : folder_(std::move(folder)) {}

CommentJournal::~CommentJournal() { Close(); }

void CommentJournal::Close() {
    if (handle_ >= 0)
        ::close(handle_);
    handle_ = -1;
}

std::error_code CommentJournal::Note(const EntryTable& entries, std::span<const EntryNumber> numbers) {
    entered_.insert(numbers.begin(), numbers.end());
    toNote_.insert(numbers.begin(), numbers.end());
    if (!IsNameOf(file_, handle_)) {
        Close();
        if (const std::error_code error = Begin(entries))
            return error;
        toNote_ = entered_;
    }
    std::string lines;
    for (const EntryNumber number : toNote_)
        lines += Line({{"entry", number}, {"comment", entries.Comment(number)}});
    const std::error_code error = Append(lines);
    if (!error)
        toNote_.clear();
    return error;
}

void CommentJournal::Keep(std::vector<LostJournal> journals, std::span<const EntryNumber> restored) {
    kept_ = std::move(journals);
    restored_ = !restored.empty();
    entered_.insert(restored.begin(), restored.end());
}

void CommentJournal::Saved() { End(true); }

void CommentJournal::Dropped() { End(restored_); }

void CommentJournal::End(bool keptGo) {
    if (IsNameOf(file_, handle_))
        RemoveFile();
    Close();
    if (keptGo)
        for (const LostJournal& journal : kept_)
            journal.Remove();
    kept_.clear();
    restored_ = false;
    entered_.clear();
    toNote_.clear();
}

void CommentJournal::RemoveFile() {
    std::error_code ignored;
    std::filesystem::remove(file_, ignored);
    Close();
}

std::error_code CommentJournal::Begin(const EntryTable& entries) {
    std::error_code error;
    std::filesystem::create_directories(folder_, error);
    if (error)
        return error;
    // Before there is a file: it takes a while for a large logbook, and the program may be killed.
    const EntryNumber count = entries.Count();
    const std::array<EntryNumber, 2> counts{count == 0 ? 0 : count - 1, count};
    const std::vector<std::string> sums = ChecksumsOfBeginnings(entries, counts);
    const std::string last = count == 0 ? std::string() : ChecksumOfEntry(entries, count - 1);
    const std::string header =
        Line({{"butLast", sums[0]}, {"entries", count}, {"last", last}, {"whole", sums[1]}});
    std::string name = (folder_ / JournalNamePattern()).string();
    errno = 0;
    handle_ = ::mkostemp(name.data(), O_APPEND | O_CLOEXEC);
    if (handle_ < 0)
        return LastError();
    file_ = name;
    // Where the disk has no locks the name tells others that the file is in use.
    const LockOutcome lock = TryLock(handle_);
    if (lock == LockOutcome::Held || lock == LockOutcome::Unsupported)
        error = Append(header);
    else
        error = LastError();
    if (error)
        RemoveFile();
    else
        FlushFolder(folder_);
    return error;
}

// All of the lines or nothing: half a line would spoil the next one, too.
std::error_code CommentJournal::Append(std::string_view lines) {
    struct stat before {};
    errno = 0;
    if (::fstat(handle_, &before) != 0)
        return LastError();
    const std::error_code error = WriteAll(handle_, lines) ? Flush(handle_) : LastError();
    if (!error)
        return {};
    (void)!::ftruncate(handle_, before.st_size);
    return error;
}
