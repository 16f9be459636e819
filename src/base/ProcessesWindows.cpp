// SPDX-License-Identifier: MIT
#include "base/Processes.h"

#include "base/Paths.h"

#include <windows.h>

ProcessNumber ThisProcess() { return static_cast<ProcessNumber>(GetCurrentProcessId()); }

bool MayRun(ProcessNumber process) {
    const HANDLE handle = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process));
    if (handle == nullptr)
        return GetLastError() != ERROR_INVALID_PARAMETER;
    const bool hasEnded = WaitForSingleObject(handle, 0) == WAIT_OBJECT_0;
    CloseHandle(handle);
    return !hasEnded;
}

std::string ComputerName() {
    wchar_t name[MAX_COMPUTERNAME_LENGTH + 1] = {};
    DWORD size = MAX_COMPUTERNAME_LENGTH + 1;
    return GetComputerNameW(name, &size) != 0 ? PathText(std::wstring(name, size)) : "";
}
