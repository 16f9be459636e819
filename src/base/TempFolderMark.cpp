// SPDX-License-Identifier: MIT
#include "base/TempFolderMark.h"

#include "base/PartFiles.h"
#include "base/Paths.h"
#include "base/SystemFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The file begins with this. Each name that follows ends with a NUL, which no name can hold.
constexpr std::string_view Header =
    "Qorvix made this folder and the files that are named here, and removes them.\n";
constexpr std::size_t LargestFile = 4U << 20U; // in bytes, of names of about 20

constexpr mode_t ForOwner = S_IRUSR | S_IWUSR;
constexpr mode_t Permissions = S_IRWXU | S_IRWXG | S_IRWXO;

// True when a file has this type and belongs to this user. A link is a type of its own.
bool IsOwn(const std::filesystem::path& path, mode_t type) {
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0 && (status.st_mode & S_IFMT) == type &&
           status.st_uid == ::geteuid();
}

bool IsOwnFolder(const std::filesystem::path& path) {
    struct stat status {};
    return IsOwn(path, S_IFDIR) && ::lstat(path.c_str(), &status) == 0 &&
           (status.st_mode & Permissions) == S_IRWXU;
}

bool IsMark(const FileHandle& file) {
    struct stat status {};
    return ::fstat(SystemFile::Number(file), &status) == 0 && S_ISREG(status.st_mode) &&
           status.st_uid == ::geteuid() && (status.st_mode & Permissions) == ForOwner && status.st_nlink == 1;
}

// The whole file; nothing when it is too large or cannot be read.
std::optional<std::string> ReadAll(const FileHandle& file) {
    std::string text;
    for (std::array<char, 4096> part; text.size() <= LargestFile;) {
        const ssize_t count =
            ::pread(SystemFile::Number(file), part.data(), part.size(), static_cast<off_t>(text.size()));
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            return text;
        text.append(part.data(), static_cast<std::size_t>(count));
    }
    return std::nullopt;
}

// Appends all or nothing to a file.
bool Append(const FileHandle& file, std::string_view bytes) {
    const int handle = SystemFile::Number(file);
    struct stat before {};
    if (::fstat(handle, &before) != 0 ||
        static_cast<std::size_t>(before.st_size) > LargestFile - bytes.size())
        return false;
    if (::write(handle, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()))
        return true;
    (void)!::ftruncate(handle, before.st_size);
    return false;
}

// The names in a folder; nothing when the system does not list all of them.
std::optional<std::vector<std::string>> NamesIn(const std::filesystem::path& folder) {
    std::error_code error;
    std::vector<std::string> names;
    for (const std::filesystem::path& item : ItemsIn(folder, error))
        names.push_back(item.filename().string());
    return error ? std::nullopt : std::optional(std::move(names));
}

} // namespace

TempFolderMark::TempFolderMark(std::filesystem::path folder, FileHandle file)
    : folder_(std::move(folder)),
      file_(std::move(file)),
      folderLock_(
          SystemFile::Handle(::open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC))) {
    if (folderLock_.IsOpen())
        TryLock(folderLock_);
}

std::optional<TempFolderMark> TempFolderMark::Make(const std::filesystem::path& folder) {
    const std::filesystem::path name = folder / FileName;
    FileHandle file = SystemFile::Handle(
        ::open(name.c_str(), O_RDWR | O_APPEND | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, ForOwner));
    if (!file.IsOpen())
        return std::nullopt;
    // Another copy that starts may have taken the file for an abandoned one before this lock.
    TempFolderMark mark(folder, std::move(file));
    const LockOutcome lock = TryLock(mark.file_);
    if (lock == LockOutcome::InUse || !mark.IsThere())
        return std::nullopt;
    if (Append(mark.file_, Header))
        return mark;
    ::unlink(name.c_str());
    return std::nullopt;
}

std::optional<TempFolderMark> TempFolderMark::Take(const std::filesystem::path& folder) {
    if (!IsOwnFolder(folder) || !IsOwn(folder / FileName, S_IFREG))
        return std::nullopt;
    FileHandle file =
        SystemFile::Handle(::open((folder / FileName).c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!file.IsOpen() || !IsMark(file) || TryLock(file) != LockOutcome::Held)
        return std::nullopt;
    TempFolderMark mark(folder, std::move(file));
    if (!mark.IsThere() || !mark.Read() || !mark.HasOnlyNoted(""))
        return std::nullopt;
    return mark;
}

// The copy may have been killed while it wrote: a file whose name is cut off at the end was not made.
bool TempFolderMark::Read() {
    const std::optional<std::string> text = ReadAll(file_);
    if (!text)
        return false;
    if (text->size() < Header.size())
        return Header.starts_with(*text);
    if (!text->starts_with(Header))
        return false;
    std::size_t begin = Header.size();
    for (std::size_t end = text->find('\0', begin); end != std::string::npos; end = text->find('\0', begin)) {
        names_.insert(text->substr(begin, end - begin));
        begin = end + 1;
    }
    return true;
}

bool TempFolderMark::Note(const std::string& name) {
    if (HasNoted(name))
        return true;
    if (!Append(file_, name + '\0'))
        return false;
    names_.insert(name);
    return true;
}

bool TempFolderMark::IsNotedFile(const std::string& folder, const std::string& name) const {
    return std::any_of(names_.begin(), names_.end(), [&](const std::string& noted) {
        return noted == folder + name || (noted.starts_with(folder) && !noted.ends_with('/') &&
                                          noted.find('/', folder.size()) == std::string::npos &&
                                          IsPartFileOf(name, std::filesystem::path(noted)));
    });
}

bool TempFolderMark::HasOnlyNoted(const std::string& folder) const {
    const std::optional<std::vector<std::string>> names = NamesIn(folder_ / folder);
    return names && std::all_of(names->begin(), names->end(), [&](const std::string& name) {
               const std::filesystem::path path = folder_ / folder / name;
               if (IsOwn(path, S_IFDIR))
                   return HasNoted(folder + name + '/') && HasOnlyNoted(folder + name + '/');
               return IsOwn(path, S_IFREG) &&
                      ((folder.empty() && name == FileName) || IsNotedFile(folder, name));
           });
}

void TempFolderMark::RemoveFolder(const std::string& name) {
    if (!HasNoted(name))
        return;
    RemoveNoted(name);
    if (!IsOwn(folder_ / name.substr(0, name.size() - 1), S_IFDIR))
        std::erase_if(names_, [&](const std::string& noted) { return noted.starts_with(name); });
}

// The path of a name ends without "/", so that a link which somebody put in place of a folder is not removed.
void TempFolderMark::RemoveNoted(std::string_view folder) const {
    for (auto name = names_.rbegin(); name != names_.rend(); ++name) {
        if (!name->starts_with(folder))
            continue;
        // In this order the contents of a folder come before the folder.
        if (name->ends_with('/')) {
            ::rmdir((folder_ / name->substr(0, name->size() - 1)).c_str());
        } else {
            RemoveLeftPartFiles(folder_ / *name);
            ::unlink((folder_ / *name).c_str());
        }
    }
}

void TempFolderMark::Remove() const {
    RemoveNoted("");
    if (IsThere())
        ::unlink((folder_ / FileName).c_str());
    ::rmdir(folder_.c_str());
}
