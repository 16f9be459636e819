// SPDX-License-Identifier: MIT
#include "comments/LostJournal.h"

#include "comments/JournalName.h"

#include <array>
#include <cstring>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool BeginsLikeAJournal(int handle) {
    std::array<char, 256> begin;
    const ssize_t count = ::pread(handle, begin.data(), begin.size(), 0);
    return count > 0 && std::memchr(begin.data(), '\n', static_cast<std::size_t>(count)) != nullptr;
}

bool IsOrdinaryFile(int handle) {
    struct stat opened {};
    return ::fstat(handle, &opened) == 0 && S_ISREG(opened.st_mode);
}

} // namespace

std::optional<LostJournal> LostJournal::Hold(const std::filesystem::path& file) {
    LostJournal journal(file, OpenToLock(file, O_NOFOLLOW | O_NONBLOCK | O_NOCTTY));
    if (!journal.handle_.IsOpen() || !IsOrdinaryFile(journal.handle_.Number()) ||
        !BeginsLikeAJournal(journal.handle_.Number()))
        return std::nullopt;
    const LockOutcome lock = TryLock(journal.handle_.Number());
    const bool isLost = lock == LockOutcome::Held ||
                        (lock == LockOutcome::Unsupported && !MayBeInUse(file.filename().string()));
    return isLost ? std::optional(std::move(journal)) : std::nullopt;
}

void LostJournal::Remove() const {
    std::error_code ignored;
    if (IsNameOf(file_, handle_.Number()))
        std::filesystem::remove(file_, ignored);
}
