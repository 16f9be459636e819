// SPDX-License-Identifier: MIT
#include "base/TempFolderMark.h"

#include "base/PartFiles.h"
#include "base/Paths.h"
#include "base/SystemFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <vector>

namespace {

// The file begins with this. Each name that follows ends with a NUL, which no name can hold.
constexpr std::string_view Header =
    "Qorvix made this folder and the files that are named here, and removes them.\n";
constexpr std::size_t LargestFile = 4U << 20U; // in bytes, of names of about 20

// The whole file; nothing when it is too large or cannot be read.
std::optional<std::string> ReadAll(const FileHandle& file) {
    std::string text;
    for (std::array<char, 4096> part; text.size() <= LargestFile;) {
        const std::int64_t count =
            SystemFile::ReadAt(file, static_cast<std::int64_t>(text.size()), part.data(), part.size());
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
    const std::int64_t before = SystemFile::Size(file);
    if (before < 0 || static_cast<std::size_t>(before) > LargestFile - bytes.size())
        return false;
    if (SystemFile::Append(file, bytes))
        return true;
    (void)SystemFile::Resize(file, before);
    return false;
}

// The names in a folder; nothing when the system does not list all of them.
std::optional<std::vector<std::string>> NamesIn(const std::filesystem::path& folder) {
    std::error_code error;
    std::vector<std::string> names;
    for (const std::filesystem::path& item : ItemsIn(folder, error))
        names.push_back(PathText(item.filename()));
    return error ? std::nullopt : std::optional(std::move(names));
}

} // namespace

TempFolderMark::TempFolderMark(std::filesystem::path folder, FileHandle file)
    : folder_(std::move(folder)), file_(std::move(file)), folderLock_(SystemFile::HoldFolder(folder_)) {
    if (folderLock_.IsOpen())
        TryLock(folderLock_);
}

std::optional<TempFolderMark> TempFolderMark::Make(const std::filesystem::path& folder) {
    const std::filesystem::path name = folder / FileName;
    FileHandle file = SystemFile::Open(
        name, {.Access = SystemFile::Access::Append, .Existing = SystemFile::Existing::MustNot});
    if (!file.IsOpen())
        return std::nullopt;
    // Another copy that starts may have taken the file for an abandoned one before this lock.
    TempFolderMark mark(folder, std::move(file));
    const LockOutcome lock = TryLock(mark.file_);
    if (lock == LockOutcome::InUse || !mark.IsThere())
        return std::nullopt;
    if (Append(mark.file_, Header))
        return mark;
    SystemFile::RemoveFile(name);
    return std::nullopt;
}

std::optional<TempFolderMark> TempFolderMark::Take(const std::filesystem::path& folder) {
    if (!SystemFile::IsPrivateFolder(folder) || !SystemFile::IsOwnFile(folder / FileName))
        return std::nullopt;
    FileHandle file = SystemFile::Open(folder / FileName, {.Access = SystemFile::Access::ReadWrite});
    if (!file.IsOpen() || !SystemFile::IsPrivate(file) || TryLock(file) != LockOutcome::Held)
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
        return noted == folder + name ||
               (noted.starts_with(folder) && !noted.ends_with('/') &&
                noted.find('/', folder.size()) == std::string::npos && IsPartFileOf(name, ToPath(noted)));
    });
}

bool TempFolderMark::HasOnlyNoted(const std::string& folder) const {
    const std::optional<std::vector<std::string>> names = NamesIn(folder_ / ToPath(folder));
    return names && std::all_of(names->begin(), names->end(), [&](const std::string& name) {
               const std::filesystem::path path = folder_ / ToPath(folder) / ToPath(name);
               if (SystemFile::IsOwnFolder(path))
                   return HasNoted(folder + name + '/') && HasOnlyNoted(folder + name + '/');
               return SystemFile::IsOwnFile(path) &&
                      ((folder.empty() && name == FileName) || IsNotedFile(folder, name));
           });
}

void TempFolderMark::RemoveFolder(const std::string& name) {
    if (!HasNoted(name))
        return;
    RemoveNoted(name);
    if (!SystemFile::IsOwnFolder(folder_ / ToPath(name.substr(0, name.size() - 1))))
        std::erase_if(names_, [&](const std::string& noted) { return noted.starts_with(name); });
}

// The path of a name ends without "/", so that a link which somebody put in place of a folder is not removed.
void TempFolderMark::RemoveNoted(std::string_view folder) const {
    for (auto name = names_.rbegin(); name != names_.rend(); ++name) {
        if (!name->starts_with(folder))
            continue;
        // In this order the contents of a folder come before the folder.
        if (name->ends_with('/')) {
            SystemFile::RemoveFolder(folder_ / ToPath(name->substr(0, name->size() - 1)));
        } else {
            RemoveLeftPartFiles(folder_ / ToPath(*name));
            SystemFile::RemoveFile(folder_ / ToPath(*name));
        }
    }
}

void TempFolderMark::Remove() {
    RemoveNoted("");
    if (IsThere())
        SystemFile::RemoveFile(folder_ / FileName);
    // Windows removes a file, and a folder with it, only when nobody has it open any more.
    file_.Close();
    folderLock_.Close();
    SystemFile::RemoveFolder(folder_);
}
