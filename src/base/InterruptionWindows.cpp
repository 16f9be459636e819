// SPDX-License-Identifier: MIT
#include "base/Interruption.h"

#include "base/InterruptionState.h"
#include "base/StopRequest.h"

#include <windows.h>

namespace {

// In a thread of the system's; a second order that comes later than this ends the process.
constexpr ULONGLONG Patience = 3000; // milliseconds

BOOL WINAPI OnControl(DWORD) {
    static ULONGLONG first = 0;
    if (StopRequest::IsMade())
        return GetTickCount64() - first < Patience ? TRUE : FALSE;
    first = GetTickCount64();
    InterruptionState::Signal = SIGINT;
    return TRUE;
}

} // namespace

Interruption::Interruption() { SetConsoleCtrlHandler(OnControl, TRUE); }

void Interruption::EndBySignal() {
    constexpr UINT EndedByControl = 0xC000013A; // as the system itself ends a process
    if (StopRequest::IsMade())
        ExitProcess(EndedByControl);
}
