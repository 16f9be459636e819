// SPDX-License-Identifier: MIT
#include "base/PartFiles.h"

#include "base/LastError.h"
#include "base/Paths.h"
#include "base/RandomName.h"
#include "base/SystemFile.h"

#include <algorithm>
#include <string>

namespace {

constexpr std::string_view Mark = ".qorvix-part-";
constexpr std::string_view Digits = "0123456789abcdef";
constexpr std::size_t DigitCount = 16;

// How the names of the part files begin. The longest names leave no room for an ending.
std::string BeginOf(const std::filesystem::path& target) {
    constexpr std::size_t LongestStem = 200;
    return PathText(target.filename()).substr(0, LongestStem).append(Mark);
}

std::filesystem::path NewPath(const std::filesystem::path& target) {
    return target.parent_path() / ToPath(BeginOf(target) + RandomCharacters(DigitCount, Digits));
}

// Another program that clears left part files may have removed this one before the lock. A lock that fails
// does not prevent writing.
bool IsKept(const PartFile& part) {
    return TryLock(part.Handle) != LockOutcome::InUse && IsNameOf(part.Path, part.Handle);
}

void RemoveIfLeft(const std::filesystem::path& file) {
    // Checked before it is opened, too: opening a device may do something.
    if (!SystemFile::IsOwnFile(file))
        return;
    const FileHandle handle = SystemFile::Open(file, {.Access = SystemFile::Access::ReadWrite});
    if (handle.IsOpen() && SystemFile::IsOwn(handle) && TryLock(handle) == LockOutcome::Held &&
        IsNameOf(file, handle))
        SystemFile::RemoveFile(file);
}

} // namespace

PartFile MakePartFile(const std::filesystem::path& target, std::error_code& error) {
    constexpr int Attempts = 100;
    RemoveLeftPartFiles(target);
    for (int i = 0; i < Attempts; ++i) {
        errno = 0;
        PartFile part{NewPath(target), {}};
        part.Handle = SystemFile::Open(
            part.Path, {.Access = SystemFile::Access::ReadWrite, .Existing = SystemFile::Existing::MustNot});
        error = LastError();
        if (part.Handle.IsOpen() && IsKept(part)) {
            error.clear();
            return part;
        }
        if (!part.Handle.IsOpen() && error != std::errc::file_exists)
            break;
    }
    return {};
}

void RemoveLeftPartFiles(const std::filesystem::path& target) {
    const std::filesystem::path folder = target.has_parent_path() ? target.parent_path() : ".";
    for (const std::filesystem::path& item : ItemsIn(folder))
        if (IsPartFileOf(PathText(item.filename()), target))
            RemoveIfLeft(item);
}

bool WritingTouches(const std::filesystem::path& target, const std::filesystem::path& other) {
    std::error_code ignored;
    if (std::filesystem::equivalent(target, other, ignored))
        return true;
    const std::filesystem::path place = std::filesystem::weakly_canonical(target, ignored);
    const std::filesystem::path file = std::filesystem::weakly_canonical(other, ignored);
    return file.parent_path() == place.parent_path() && IsPartFileOf(PathText(file.filename()), place);
}

bool IsPartFileOf(std::string_view name, const std::filesystem::path& target) {
    const std::string begin = BeginOf(target);
    return name.starts_with(begin) && name.size() == begin.size() + DigitCount &&
           name.find_first_not_of(Digits, begin.size()) == std::string_view::npos;
}
