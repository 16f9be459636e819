// SPDX-License-Identifier: MIT
#include "base/FileState.h"

#include "base/Paths.h"

#include <windows.h>

FileState StateOf(const std::string& path) {
    const HANDLE handle =
        CreateFileW(ToPath(path).c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return {};
    BY_HANDLE_FILE_INFORMATION now{};
    const bool isKnown = GetFileInformationByHandle(handle, &now) != 0;
    CloseHandle(handle);
    if (!isKnown)
        return {};
    const auto joined = [](DWORD high, DWORD low) { return std::uint64_t{high} << 32U | low; };
    constexpr std::int64_t ASecond = 10'000'000; // in the units of the system's times
    const auto written = static_cast<std::int64_t>(
        joined(now.ftLastWriteTime.dwHighDateTime, now.ftLastWriteTime.dwLowDateTime));
    return {now.dwVolumeSerialNumber, joined(now.nFileIndexHigh, now.nFileIndexLow), written / ASecond,
            written % ASecond * 100, static_cast<std::int64_t>(joined(now.nFileSizeHigh, now.nFileSizeLow))};
}
