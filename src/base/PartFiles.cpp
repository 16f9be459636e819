// SPDX-License-Identifier: MIT
#include "base/PartFiles.h"

#include "base/LastError.h"
#include "base/Paths.h"
#include "base/SystemFile.h"

#include <algorithm>
#include <cstdio>
#include <random>
#include <string>

#if defined(__unix__) || defined(__APPLE__)
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

constexpr std::string_view Mark = ".qorvix-part-";
constexpr std::string_view Digits = "0123456789abcdef";
constexpr std::size_t DigitCount = 16;

// How the names of the part files begin. The longest names leave no room for an ending.
std::string BeginOf(const std::filesystem::path& target) {
    constexpr std::size_t LongestStem = 200;
    return target.filename().string().substr(0, LongestStem).append(Mark);
}

std::filesystem::path NewPath(const std::filesystem::path& target) {
    std::random_device random;
    std::uniform_int_distribution<std::size_t> digit(0, Digits.size() - 1);
    std::string name = BeginOf(target);
    for (std::size_t i = 0; i < DigitCount; ++i)
        name += Digits[digit(random)];
    return target.parent_path() / name;
}

#if defined(__unix__) || defined(__APPLE__)

// Makes a file that was not there, for its owner only.
FileHandle MakeFile(const std::filesystem::path& path) {
    return SystemFile::Handle(
        ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR));
}

// Another program that clears left part files may have removed this one before the lock. A lock that fails
// does not prevent writing.
bool IsKept(const PartFile& part) {
    return TryLock(part.Handle) != LockOutcome::InUse && IsNameOf(part.Path, part.Handle);
}

void RemoveIfLeft(const std::filesystem::path& file) {
    struct stat status {};
    // Checked before it is opened, too: opening a device may do something.
    if (::lstat(file.c_str(), &status) != 0 || !S_ISREG(status.st_mode) || status.st_uid != ::geteuid())
        return;
    const FileHandle handle =
        SystemFile::Handle(::open(file.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (handle.IsOpen() && ::fstat(SystemFile::Number(handle), &status) == 0 && S_ISREG(status.st_mode) &&
        status.st_uid == ::geteuid() && TryLock(handle) == LockOutcome::Held && IsNameOf(file, handle))
        ::unlink(file.c_str());
}

#else

FileHandle MakeFile(const std::filesystem::path& path) {
    std::FILE* const file = std::fopen(path.string().c_str(), "wbx");
    if (file == nullptr)
        return {};
    std::fclose(file);
    return SystemFile::Handle(0);
}

bool IsKept(const PartFile&) { return true; }
void RemoveIfLeft(const std::filesystem::path&) {}

#endif

} // namespace

PartFile MakePartFile(const std::filesystem::path& target, std::error_code& error) {
    constexpr int Attempts = 100;
    RemoveLeftPartFiles(target);
    for (int i = 0; i < Attempts; ++i) {
        errno = 0;
        PartFile part{NewPath(target), {}};
        part.Handle = MakeFile(part.Path);
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
        if (IsPartFileOf(item.filename().string(), target))
            RemoveIfLeft(item);
}

bool WritingTouches(const std::filesystem::path& target, const std::filesystem::path& other) {
    std::error_code ignored;
    if (std::filesystem::equivalent(target, other, ignored))
        return true;
    const std::filesystem::path place = std::filesystem::weakly_canonical(target, ignored);
    const std::filesystem::path file = std::filesystem::weakly_canonical(other, ignored);
    return file.parent_path() == place.parent_path() && IsPartFileOf(file.filename().string(), place);
}

bool IsPartFileOf(std::string_view name, const std::filesystem::path& target) {
    const std::string begin = BeginOf(target);
    return name.starts_with(begin) && name.size() == begin.size() + DigitCount &&
           name.find_first_not_of(Digits, begin.size()) == std::string_view::npos;
}
