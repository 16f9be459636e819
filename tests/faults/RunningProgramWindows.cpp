// SPDX-License-Identifier: MIT
#include "faults/RunningProgram.h"

#include "base/Paths.h"

#include <gtest/gtest.h>

#include <thread>

#include <windows.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr UINT KilledStatus = 137; // as FailingDiskWindows.cpp has it
constexpr std::chrono::milliseconds Pause{1};

HANDLE HandleOf(std::intptr_t number) { return reinterpret_cast<HANDLE>(number); }
std::intptr_t NumberOf(HANDLE handle) { return reinterpret_cast<std::intptr_t>(handle); }

// A word of a command line, as programs take it apart again.
std::wstring Quoted(const std::wstring& word) {
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : word) {
        if (c == L'"')
            quoted.append(backslashes + 1, L'\\');
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        quoted += c;
    }
    return quoted.append(backslashes, L'\\') + L"\"";
}

struct NamesDiffer {
    bool operator()(const std::wstring& a, const std::wstring& b) const {
        return _wcsicmp(a.c_str(), b.c_str()) < 0;
    }
};

// The variables of this process and those that are set besides, as the system takes them.
std::wstring Block(const Environment& environment) {
    std::map<std::wstring, std::wstring, NamesDiffer> variables;
    wchar_t* const own = GetEnvironmentStringsW();
    for (const wchar_t* variable = own; *variable != L'\0'; variable += std::wcslen(variable) + 1) {
        const std::wstring text = variable;
        if (const std::size_t end = text.find(L'=', 1); end != std::wstring::npos)
            variables[text.substr(0, end)] = text.substr(end + 1);
    }
    FreeEnvironmentStringsW(own);
    for (const auto& [name, value] : environment)
        variables[ToPath(name).wstring()] = ToPath(value).wstring();
    std::wstring block;
    for (const auto& [name, value] : variables)
        block.append(name).append(L"=").append(value).append(1, L'\0');
    return block.append(1, L'\0');
}

// Loads a library into a program that has not begun yet.
void Load(const std::wstring& library, HANDLE process) {
    const std::size_t size = (library.size() + 1) * sizeof(wchar_t);
    void* const name = VirtualAllocEx(process, nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    ASSERT_NE(name, nullptr) << GetLastError();
    ASSERT_NE(WriteProcessMemory(process, name, library.c_str(), size, nullptr), 0) << GetLastError();
    // The system's own library lies at the same place in all programs.
    const FARPROC load = GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "LoadLibraryW");
    const HANDLE thread = CreateRemoteThread(
        process, nullptr, 0, reinterpret_cast<LPTHREAD_START_ROUTINE>(reinterpret_cast<void*>(load)), name, 0,
        nullptr);
    ASSERT_NE(thread, nullptr) << GetLastError();
    EXPECT_EQ(WaitForSingleObject(thread, 60000), WAIT_OBJECT_0);
    DWORD loaded = 0;
    EXPECT_NE(GetExitCodeThread(thread, &loaded), 0);
    EXPECT_NE(loaded, 0U) << "the library could not be loaded";
    CloseHandle(thread);
}

} // namespace

RunningProgram::RunningProgram(const std::string& program, const std::vector<std::string>& arguments,
                               const Environment& environment) {
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    HANDLE input[2];
    HANDLE output[2];
    EXPECT_NE(CreatePipe(&input[0], &input[1], &inherited, 0), 0);
    EXPECT_NE(CreatePipe(&output[0], &output[1], &inherited, 0), 0);
    SetHandleInformation(input[1], HANDLE_FLAG_INHERIT, 0);
    SetHandleInformation(output[0], HANDLE_FLAG_INHERIT, 0);
    const HANDLE errors =
        CreateFileW(ToPath(folder_ / "errors").c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE,
                    &inherited, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    EXPECT_NE(errors, INVALID_HANDLE_VALUE);

    std::wstring commandLine = Quoted(ToPath(program).make_preferred().wstring() + L".exe");
    for (const std::string& argument : arguments)
        commandLine += L" " + Quoted(ToPath(argument).wstring());
    std::wstring block = Block(environment);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = input[0];
    startup.hStdOutput = output[1];
    startup.hStdError = errors;
    PROCESS_INFORMATION process{};
    // Among thousands of programs, Wine fails to start one now and then. No line of it has run then.
    constexpr int Attempts = 3;
    bool isStarted = false;
    for (int i = 0; i < Attempts && !isStarted; ++i)
        isStarted = CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE,
                                   CREATE_NO_WINDOW | CREATE_SUSPENDED | CREATE_UNICODE_ENVIRONMENT,
                                   block.data(), nullptr, &startup, &process) != 0;
    if (!isStarted) {
        ADD_FAILURE() << "the program does not start: " << GetLastError();
        end_ = ProgramEnd{127, 0};
    }
    if (const auto library = environment.find("FAILING_LIBRARY"); isStarted && library != environment.end())
        Load(ToPath(library->second).make_preferred().wstring(), process.hProcess);
    ResumeThread(process.hThread);
    CloseHandle(process.hThread);
    CloseHandle(input[0]);
    CloseHandle(output[1]);
    CloseHandle(errors);
    process_ = NumberOf(process.hProcess);
    input_ = NumberOf(input[1]);
    output_ = NumberOf(output[0]);
}

RunningProgram::~RunningProgram() {
    if (IsRunning()) {
        Kill();
        WaitForSingleObject(HandleOf(process_), 10000);
    }
    for (const std::intptr_t handle : {process_, input_, output_})
        CloseHandle(HandleOf(handle));
}

void RunningProgram::Say(const std::string& line) {
    const std::string text = line + '\n';
    DWORD written = 0;
    WriteFile(HandleOf(input_), text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

std::optional<std::string> RunningProgram::Hear() {
    const auto limit = Clock::now() + LongestWait;
    for (;;) {
        if (const std::size_t end = heard_.find('\n'); end != std::string::npos) {
            std::string line = heard_.substr(0, end);
            heard_.erase(0, end + 1);
            return line;
        }
        DWORD size = 0;
        if (Clock::now() > limit ||
            PeekNamedPipe(HandleOf(output_), nullptr, 0, nullptr, &size, nullptr) == 0)
            return std::nullopt;
        char part[4096];
        if (size == 0)
            std::this_thread::sleep_for(Pause);
        else if (ReadFile(HandleOf(output_), part, sizeof part, &size, nullptr) != 0)
            heard_.append(part, size);
    }
}

void RunningProgram::Kill() { TerminateProcess(HandleOf(process_), KilledStatus); }

bool RunningProgram::IsRunning() {
    DWORD status = 0;
    if (!end_ && WaitForSingleObject(HandleOf(process_), 0) == WAIT_OBJECT_0 &&
        GetExitCodeProcess(HandleOf(process_), &status) != 0)
        end_ = status == KilledStatus ? KilledEnd : ProgramEnd{static_cast<int>(status), 0};
    return !end_;
}

ProgramEnd RunningProgram::WaitForEnd() {
    // Its output ends with it; what it still says is not wanted.
    while (!end_ && Hear()) {
    }
    const auto limit = Clock::now() + LongestWait;
    while (IsRunning()) {
        if (Clock::now() > limit) {
            ADD_FAILURE() << "the program hangs";
            Kill();
            end_ = KilledEnd;
        }
        std::this_thread::sleep_for(Pause);
    }
    return *end_;
}

std::string RunningProgram::Errors() const {
    std::string errors = FileContent(folder_.Path() / "errors");
    std::erase(errors, '\r');
    return errors;
}
