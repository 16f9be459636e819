// SPDX-License-Identifier: MIT
#include "base/FileLock.h"

#include "base/Paths.h"
#include "base/SystemFile.h"
#include "base/UserFolders.h"

#include <chrono>
#include <filesystem>
#include <system_error>
#include <thread>

namespace {

constexpr std::chrono::seconds MostWait{5};
constexpr std::chrono::milliseconds Pause{2};

} // namespace

FileLock::FileLock(const std::string& path) {
    using Existing = SystemFile::Existing;
    handle_ = OpenToLock(ToPath(path), Existing::MustNot);
    // Readable for all, so that a file made by another user does not shut this one out.
    if (handle_.IsOpen())
        SystemFile::ShareForReading(handle_);
    else
        handle_ = OpenToLock(ToPath(path), Existing::May);
    if (!Take())
        handle_.Close();
}

bool FileLock::Take() const {
    if (!IsRegular(handle_))
        return false;
    const auto until = std::chrono::steady_clock::now() + MostWait;
    LockOutcome lock = TryLock(handle_);
    for (; lock == LockOutcome::InUse && std::chrono::steady_clock::now() < until; lock = TryLock(handle_))
        std::this_thread::sleep_for(Pause);
    return lock != LockOutcome::Failed;
}

std::string FileLock::OfUser(std::string_view name) {
    std::error_code ignored;
    // Beside the folder of the journals, in which a person may look for what was lost.
    const std::filesystem::path folder = StateFolder().parent_path();
    std::filesystem::create_directories(folder, ignored);
    return PathText(folder / name);
}
