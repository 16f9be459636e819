// SPDX-License-Identifier: MIT
// The counterpart of FailingDisk.cpp: a library that a program loads before its first line (RunningProgram
// does it where the environment has FAILING_LIBRARY). In the tables of the program and of its C library, the
// calls of the system that change what lies below one folder are replaced by those below, which fail, end the
// process or wait in that moment. The environment says which:
//
//     FAILING_FOLDER  the folder
//     FAILING_WITH    the error, a number of the system; 0 = the process is killed instead, before the call
//     FAILING_CALLS   kinds of calls that count: c creates, o opens an existing file for writing, w writes
//     and
//                     flushes, f flushes, r renames and removes, p attributes, k locks
//     FAILING_AFTER   so many calls of these kinds are done before the first that fails; all later ones fail
//     FAILING_BYTES   so many bytes are written before writes count; unset = all count
//     FAILING_UNTIL   a file: calls do not fail, but wait until it is there, and are done then
//     FAILING_WAITING a file that is made when the first call waits
#include <atomic>
#include <cwchar>
#include <string>
#include <string_view>
#include <type_traits>

#include <windows.h>

namespace {

constexpr wchar_t Creates = L'c';
constexpr wchar_t Opens = L'o';
constexpr wchar_t Writes = L'w';
constexpr wchar_t Flushes = L'f';
constexpr wchar_t Renames = L'r';
constexpr wchar_t Attributes = L'p';
constexpr wchar_t Locks = L'k';

// As a program that a signal ends has it in a shell; RunningProgram knows it.
constexpr UINT KilledStatus = 137;

std::atomic<long long> callsDone{0};
std::atomic<long long> bytesDone{0};

std::wstring Variable(const wchar_t* name) {
    wchar_t value[1024];
    const DWORD length = GetEnvironmentVariableW(name, value, 1024);
    return length < 1024 ? std::wstring(value, length) : std::wstring();
}

long long Number(const wchar_t* name) { return std::wcstoll(Variable(name).c_str(), nullptr, 10); }

std::wstring_view WithoutPrefix(std::wstring_view path) {
    constexpr std::wstring_view Prefix = L"\\\\?\\";
    return path.starts_with(Prefix) ? path.substr(Prefix.size()) : path;
}

std::wstring WholePath(const wchar_t* path) {
    wchar_t whole[1024];
    const DWORD length = GetFullPathNameW(path, 1024, whole, nullptr);
    return std::wstring(WithoutPrefix(std::wstring_view(whole, length < 1024 ? length : 0)));
}

std::wstring PathOf(HANDLE file) {
    wchar_t path[1024];
    if (GetFileType(file) != FILE_TYPE_DISK)
        return {};
    const DWORD length = GetFinalPathNameByHandleW(file, path, 1024, VOLUME_NAME_DOS);
    return std::wstring(WithoutPrefix(std::wstring_view(path, length < 1024 ? length : 0)));
}

bool LiesInFolder(const std::wstring& path) {
    static const std::wstring folder = WholePath(Variable(L"FAILING_FOLDER").c_str());
    return !folder.empty() && _wcsnicmp(path.c_str(), folder.c_str(), folder.size()) == 0 &&
           (path.size() == folder.size() || path[folder.size()] == L'\\');
}

bool IsThere(const std::wstring& file) { return GetFileAttributesW(file.c_str()) != INVALID_FILE_ATTRIBUTES; }

void WaitFor(const std::wstring& file) {
    CloseHandle(CreateFileW(Variable(L"FAILING_WAITING").c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                            CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    while (!IsThere(file))
        Sleep(5);
}

// True, with the error set, when the call is one that fails.
bool Fails(wchar_t kind, const std::wstring& path, DWORD bytes = 0) {
    const DWORD before = GetLastError();
    if (Variable(L"FAILING_CALLS").find(kind) == std::wstring::npos || !LiesInFolder(path) ||
        (kind == Writes && !Variable(L"FAILING_BYTES").empty() &&
         (bytesDone += bytes) <= Number(L"FAILING_BYTES")) ||
        callsDone++ < Number(L"FAILING_AFTER")) {
        SetLastError(before);
        return false;
    }
    if (const std::wstring until = Variable(L"FAILING_UNTIL"); !until.empty()) {
        WaitFor(until);
        SetLastError(before);
        return false;
    }
    const auto error = static_cast<DWORD>(Number(L"FAILING_WITH"));
    if (error == 0)
        TerminateProcess(GetCurrentProcess(), KilledStatus);
    SetLastError(error);
    return true;
}

// The kind that opening a file is of, 0 for none.
wchar_t KindOfOpening(const std::wstring& path, DWORD access, DWORD creation) {
    if (!IsThere(path))
        return creation == OPEN_EXISTING || creation == TRUNCATE_EXISTING ? L'\0' : Creates;
    constexpr DWORD Changes = GENERIC_WRITE | GENERIC_ALL | FILE_WRITE_DATA | FILE_APPEND_DATA;
    return (access & Changes) != 0 ? Opens : L'\0';
}

HANDLE WINAPI CreatesFile(LPCWSTR path, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                          DWORD creation, DWORD flags, HANDLE model) {
    const std::wstring whole = WholePath(path);
    const wchar_t kind = KindOfOpening(whole, access, creation);
    return kind != 0 && Fails(kind, whole)
               ? INVALID_HANDLE_VALUE
               : CreateFileW(path, access, share, security, creation, flags, model);
}

BOOL WINAPI CreatesDirectory(LPCWSTR path, LPSECURITY_ATTRIBUTES security) {
    return Fails(Creates, WholePath(path)) ? FALSE : CreateDirectoryW(path, security);
}

BOOL WINAPI WritesFile(HANDLE file, LPCVOID data, DWORD size, LPDWORD written, LPOVERLAPPED place) {
    return Fails(Writes, PathOf(file), size) ? FALSE : WriteFile(file, data, size, written, place);
}

BOOL WINAPI FlushesFile(HANDLE file) {
    const std::wstring path = PathOf(file);
    return Fails(Flushes, path) || Fails(Writes, path) ? FALSE : FlushFileBuffers(file);
}

BOOL WINAPI EndsFile(HANDLE file) { return Fails(Writes, PathOf(file)) ? FALSE : SetEndOfFile(file); }

BOOL WINAPI SetsInformation(HANDLE file, FILE_INFO_BY_HANDLE_CLASS what, LPVOID data, DWORD size) {
    const bool changesSize = what == FileEndOfFileInfo || what == FileAllocationInfo;
    const wchar_t kind = changesSize ? Writes : what == FileBasicInfo ? Attributes : Renames;
    return Fails(kind, PathOf(file)) ? FALSE : SetFileInformationByHandle(file, what, data, size);
}

BOOL WINAPI Moves(LPCWSTR from, LPCWSTR to, DWORD flags) {
    return Fails(Renames, WholePath(to)) ? FALSE : MoveFileExW(from, to, flags);
}

BOOL WINAPI DeletesFile(LPCWSTR path) { return Fails(Renames, WholePath(path)) ? FALSE : DeleteFileW(path); }

BOOL WINAPI RemovesDirectory(LPCWSTR path) {
    return Fails(Renames, WholePath(path)) ? FALSE : RemoveDirectoryW(path);
}

BOOL WINAPI SetsAttributes(LPCWSTR path, DWORD attributes) {
    return Fails(Attributes, WholePath(path)) ? FALSE : SetFileAttributesW(path, attributes);
}

BOOL WINAPI LocksFile(HANDLE file, DWORD flags, DWORD reserved, DWORD low, DWORD high, LPOVERLAPPED place) {
    return Fails(Locks, PathOf(file)) ? FALSE : LockFileEx(file, flags, reserved, low, high, place);
}

struct Replacement {
    std::string_view Name;
    void* Function;
};

template <class Function>
void* Address(Function* function) {
    static_assert(std::is_function_v<Function>);
    return reinterpret_cast<void*>(function);
}

const Replacement Replacements[] = {
    {"CreateFileW", Address(CreatesFile)},
    {"CreateDirectoryW", Address(CreatesDirectory)},
    {"WriteFile", Address(WritesFile)},
    {"FlushFileBuffers", Address(FlushesFile)},
    {"SetEndOfFile", Address(EndsFile)},
    {"SetFileInformationByHandle", Address(SetsInformation)},
    {"MoveFileExW", Address(Moves)},
    {"DeleteFileW", Address(DeletesFile)},
    {"RemoveDirectoryW", Address(RemovesDirectory)},
    {"SetFileAttributesW", Address(SetsAttributes)},
    {"LockFileEx", Address(LocksFile)},
};

void Replace(IMAGE_THUNK_DATA& entry, void* function) {
    DWORD before = 0;
    VirtualProtect(&entry, sizeof entry, PAGE_READWRITE, &before);
    entry.u1.Function = reinterpret_cast<ULONG_PTR>(function);
    VirtualProtect(&entry, sizeof entry, before, &before);
}

// Replaces the calls in the import table of a module, where each has its name.
void ReplaceIn(const wchar_t* module) {
    auto* const base = reinterpret_cast<char*>(GetModuleHandleW(module));
    if (base == nullptr)
        return;
    const auto* const header = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + header->e_lfanew);
    const auto imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    if (imports == 0)
        return;
    for (const auto* from = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports); from->Name != 0;
         ++from) {
        const auto* name = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + from->OriginalFirstThunk);
        auto* entry = reinterpret_cast<IMAGE_THUNK_DATA*>(base + from->FirstThunk);
        for (; from->OriginalFirstThunk != 0 && name->u1.AddressOfData != 0; ++name, ++entry) {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
                continue;
            const std::string_view called =
                reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData)->Name;
            for (const Replacement& replacement : Replacements)
                if (called == replacement.Name)
                    Replace(*entry, replacement.Function);
        }
    }
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        ReplaceIn(nullptr); // the program
        ReplaceIn(L"msvcrt.dll");
    }
    return TRUE;
}
