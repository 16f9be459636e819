// SPDX-License-Identifier: MIT
#include "comments/LostJournal.h"

#include "base/Paths.h"
#include "comments/JournalName.h"

#include <string>
#include <system_error>

namespace {

bool BeginsLikeAJournal(const FileHandle& file) {
    constexpr std::size_t LongestFirstLine = 256; // in bytes
    return FirstBytes(file, LongestFirstLine).find('\n') != std::string::npos;
}

} // namespace

std::optional<LostJournal> LostJournal::Hold(const std::filesystem::path& file) {
    LostJournal journal(file, OpenToHold(file));
    if (!IsRegular(journal.handle_) || !BeginsLikeAJournal(journal.handle_))
        return std::nullopt;
    const LockOutcome lock = TryLock(journal.handle_);
    const bool isLost = lock == LockOutcome::Held ||
                        (lock == LockOutcome::Unsupported && !MayBeInUse(PathText(file.filename())));
    return isLost ? std::optional(std::move(journal)) : std::nullopt;
}

void LostJournal::Remove() const {
    std::error_code ignored;
    if (IsNameOf(file_, handle_))
        std::filesystem::remove(file_, ignored);
}
