// SPDX-License-Identifier: MIT
#include "base/SystemFile.h"

#include "base/AtomicFile.h"
#include "base/LastError.h"
#include "base/Paths.h"
#include "base/WindowsError.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <thread>

#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <sddl.h>

namespace {

constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

HANDLE SystemHandle(const FileHandle& file) {
    return reinterpret_cast<HANDLE>(::_get_osfhandle(SystemFile::Number(file)));
}

bool IsLink(DWORD attributes) { return (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0; }
bool IsFolder(DWORD attributes) { return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0; }

bool Describe(const FileHandle& file, BY_HANDLE_FILE_INFORMATION& information) {
    return file.IsOpen() && GetFileType(SystemHandle(file)) == FILE_TYPE_DISK &&
           GetFileInformationByHandle(SystemHandle(file), &information) != 0;
}

OVERLAPPED At(std::int64_t place) {
    OVERLAPPED at{};
    at.Offset = static_cast<DWORD>(place & 0xFFFFFFFF);
    at.OffsetHigh = static_cast<DWORD>(place >> 32);
    return at;
}

struct FreeLocal {
    void operator()(void* memory) const { LocalFree(memory); }
};
template <class T>
using LocalMemory = std::unique_ptr<T, FreeLocal>;

// Full rights for this user and nobody else, also below; nothing when the system does not know the user.
LocalMemory<void> ForUserAlone() {
    HANDLE token = nullptr;
    if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) == 0)
        return {};
    alignas(TOKEN_USER) char user[256];
    DWORD size = 0;
    const bool isKnown = GetTokenInformation(token, TokenUser, user, sizeof user, &size) != 0;
    CloseHandle(token);
    wchar_t* name = nullptr;
    if (!isKnown || ConvertSidToStringSidW(reinterpret_cast<TOKEN_USER*>(user)->User.Sid, &name) == 0)
        return {};
    const LocalMemory<wchar_t> freed(name);
    const std::wstring rights = L"D:P(A;OICI;FA;;;" + std::wstring(name) + L")";
    void* descriptor = nullptr;
    if (ConvertStringSecurityDescriptorToSecurityDescriptorW(rights.c_str(), SDDL_REVISION_1, &descriptor,
                                                             nullptr) == 0)
        return {};
    return LocalMemory<void>(descriptor);
}

// True when the folder is empty but for files that were removed and are still open.
bool HoldsOnlyRemoved(const std::filesystem::path& folder) {
    const DWORD before = GetLastError();
    std::error_code error;
    for (const std::filesystem::path& item : ItemsIn(folder, error)) {
        const HANDLE handle = CreateFileW(item.c_str(), 0, ShareAll, nullptr, OPEN_EXISTING,
                                          FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS, nullptr);
        if (handle != INVALID_HANDLE_VALUE) {
            CloseHandle(handle);
            SetLastError(before);
            return false;
        }
    }
    SetLastError(before);
    return !error;
}

// True for a file that another program has open, and not in a way that lets it be replaced.
bool IsHeld(const std::filesystem::path& file) {
    const HANDLE handle = CreateFileW(file.c_str(), DELETE, ShareAll, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_SHARING_VIOLATION;
    CloseHandle(handle);
    return false;
}

} // namespace

FileHandle SystemFile::Open(const std::filesystem::path& path, const Opening& opening) {
    const DWORD access = GENERIC_READ | (opening.Access == Access::Read ? 0U : GENERIC_WRITE);
    const DWORD creation = opening.Existing == Existing::Must  ? OPEN_EXISTING
                           : opening.Existing == Existing::May ? OPEN_ALWAYS
                                                               : CREATE_NEW;
    // Such a name would be that of a stream beside the content of a file, which nobody sees.
    if (opening.Existing != Existing::Must && path.filename().native().find(L':') != std::wstring::npos) {
        errno = EINVAL;
        return {};
    }
    const DWORD flags = FILE_ATTRIBUTE_NORMAL | (opening.FollowsLink ? 0U : FILE_FLAG_OPEN_REPARSE_POINT);
    const HANDLE handle = CreateFileW(path.c_str(), access, ShareAll, nullptr, creation, flags, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        FailedCall();
        return {};
    }
    FileHandle file =
        Handle(::_open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_BINARY | _O_NOINHERIT));
    if (!file.IsOpen()) {
        CloseHandle(handle);
        return {};
    }
    BY_HANDLE_FILE_INFORMATION information{};
    if (!opening.FollowsLink && Describe(file, information) && IsLink(information.dwFileAttributes)) {
        file.Close();
        errno = ELOOP;
    }
    return file;
}

// A folder that is held open could not be removed.
FileHandle SystemFile::HoldFolder(const std::filesystem::path&) { return {}; }

std::int64_t SystemFile::Size(const FileHandle& file) {
    LARGE_INTEGER size{};
    if (GetFileSizeEx(SystemHandle(file), &size) != 0)
        return size.QuadPart;
    FailedCall();
    return -1;
}

bool SystemFile::Resize(const FileHandle& file, std::int64_t size) {
    FILE_END_OF_FILE_INFO end{};
    end.EndOfFile.QuadPart = size;
    return SetFileInformationByHandle(SystemHandle(file), FileEndOfFileInfo, &end, sizeof end) != 0 ||
           FailedCall();
}

std::int64_t SystemFile::ReadAt(const FileHandle& file, std::int64_t place, char* bytes, std::size_t most) {
    OVERLAPPED at = At(place);
    DWORD count = 0;
    const auto wanted = static_cast<DWORD>(std::min<std::size_t>(most, 1U << 30U));
    if (ReadFile(SystemHandle(file), bytes, wanted, &count, &at) != 0 || GetLastError() == ERROR_HANDLE_EOF)
        return count;
    FailedCall();
    return -1;
}

bool SystemFile::WriteAt(const FileHandle& file, std::int64_t& place, std::string_view bytes) {
    while (!bytes.empty()) {
        OVERLAPPED at = At(place);
        DWORD count = 0;
        const auto wanted = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1U << 30U));
        if (WriteFile(SystemHandle(file), bytes.data(), wanted, &count, &at) == 0 || count == 0)
            return FailedCall();
        bytes.remove_prefix(count);
        place += count;
    }
    return true;
}

bool SystemFile::Append(const FileHandle& file, std::string_view bytes) {
    std::int64_t end = Size(file);
    return end >= 0 && WriteAt(file, end, bytes);
}

// A file has the rights of the folder that it lies in.
void SystemFile::GivePermissionsOf(const std::filesystem::path&, const FileHandle&) {}
void SystemFile::ShareForReading(const FileHandle&) {}

std::error_code SystemFile::Replace(const std::filesystem::path& file, const std::filesystem::path& target) {
    const DWORD attributes = GetFileAttributesW(target.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && IsFolder(attributes))
        return std::make_error_code(std::errc::is_a_directory);
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0)
        return std::make_error_code(std::errc::permission_denied);
    // Another program may be reading the old file: one that looks for viruses or makes an index is soon done.
    constexpr std::chrono::milliseconds Pause{20};
    constexpr int Attempts = 100;
    for (int i = 0;; ++i) {
        if (MoveFileExW(file.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) !=
            0)
            return {};
        const DWORD reason = GetLastError();
        FailedCall();
        const std::error_code error = LastError();
        const bool mayPass = reason == ERROR_SHARING_VIOLATION ||
                             (reason == ERROR_ACCESS_DENIED && attributes != INVALID_FILE_ATTRIBUTES);
        if (mayPass && i == Attempts && IsHeld(target))
            return std::make_error_code(std::errc::device_or_resource_busy);
        if (!mayPass || i == Attempts)
            return error;
        std::this_thread::sleep_for(Pause);
    }
}

bool SystemFile::MakeFolder(const std::filesystem::path& folder) {
    const LocalMemory<void> descriptor = ForUserAlone();
    SECURITY_ATTRIBUTES security{sizeof(SECURITY_ATTRIBUTES), descriptor.get(), FALSE};
    return CreateDirectoryW(folder.c_str(), descriptor ? &security : nullptr) != 0 || FailedCall();
}

bool SystemFile::RemoveFile(const std::filesystem::path& file) {
    return DeleteFileW(file.c_str()) != 0 || FailedCall();
}

bool SystemFile::RemoveFolder(const std::filesystem::path& folder) {
    // A file that was removed stays until nobody has it open any more, and another copy of the program may be
    // looking at it, or at the folder.
    constexpr std::chrono::milliseconds Pause{2};
    constexpr int Attempts = 25;
    for (int i = 0; RemoveDirectoryW(folder.c_str()) == 0; ++i) {
        const bool mayPass = GetLastError() == ERROR_SHARING_VIOLATION ||
                             (GetLastError() == ERROR_DIR_NOT_EMPTY && HoldsOnlyRemoved(folder));
        if (i == Attempts || !mayPass)
            return FailedCall();
        std::this_thread::sleep_for(Pause);
    }
    return true;
}

bool SystemFile::IsNameOfDevice(const std::filesystem::path& path) {
    wchar_t whole[MAX_PATH] = {}; // a longer path is none
    const DWORD length = GetFullPathNameW(path.c_str(), MAX_PATH, whole, nullptr);
    return length < MAX_PATH && std::wstring_view(whole, length).starts_with(L"\\\\.\\");
}

// The folders that are asked about lie in the user's own.
bool SystemFile::IsOwnFile(const std::filesystem::path& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !IsLink(attributes) && !IsFolder(attributes);
}

bool SystemFile::IsOwnFolder(const std::filesystem::path& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !IsLink(attributes) && IsFolder(attributes);
}

bool SystemFile::IsOwn(const FileHandle& file) { return IsRegular(file); }

bool SystemFile::IsPrivate(const FileHandle& file) {
    BY_HANDLE_FILE_INFORMATION information{};
    return IsRegular(file) && Describe(file, information) && information.nNumberOfLinks == 1;
}

bool SystemFile::IsPrivateFolder(const std::filesystem::path& path) { return IsOwnFolder(path); }

bool SystemFile::MayBePlanted(const std::filesystem::path&, const std::filesystem::path&) { return false; }

// MOVEFILE_WRITE_THROUGH has done it.
void FlushFolder(const std::filesystem::path&) {}
