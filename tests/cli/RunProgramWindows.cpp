// SPDX-License-Identifier: MIT
#include "cli/RunProgram.h"

#include "base/Paths.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace {

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

// A file for what a program writes, which the program inherits.
HANDLE MakeInherited(const std::string& path) {
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    const HANDLE file = CreateFileW(ToPath(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited,
                                    CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    EXPECT_NE(file, INVALID_HANDLE_VALUE) << path;
    return file;
}

// The user's state, which the runs of a test share, as copies of the program do.
std::string SharedState() {
    static const TemporaryFolder folder;
    return folder / "state";
}

} // namespace

// The settings are in the registry of the user who runs the tests, and stay empty.
ProgramResult RunCommandLineTool(const std::vector<std::string>& arguments, const std::string& configFolder) {
    const TemporaryFolder folder;
    SetEnvironmentVariableW(
        L"APPDATA", ToPath(configFolder.empty() ? folder / "config" : configFolder + "-data").c_str());
    SetEnvironmentVariableW(L"LOCALAPPDATA", ToPath(SharedState()).c_str());
    std::wstring commandLine = Quoted(ToPath(QORVIX_PROGRAM_FOLDER "/qorvix-cli.exe").wstring());
    for (const std::string& argument : arguments)
        commandLine += L" " + Quoted(ToPath(argument).wstring());
    const HANDLE output = MakeInherited(folder / "output");
    const HANDLE errors = MakeInherited(folder / "errors");
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = output;
    startup.hStdError = errors;
    PROCESS_INFORMATION process{};
    DWORD status = 0;
    const bool isStarted = CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE,
                                          CREATE_NO_WINDOW, nullptr, nullptr, &startup, &process) != 0;
    EXPECT_TRUE(isStarted) << GetLastError();
    if (isStarted) {
        EXPECT_EQ(WaitForSingleObject(process.hProcess, 60000), WAIT_OBJECT_0);
        EXPECT_NE(GetExitCodeProcess(process.hProcess, &status), 0);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    CloseHandle(output);
    CloseHandle(errors);
    return {isStarted ? static_cast<int>(status) : -1, FileContent(folder.Path() / "output"),
            FileContent(folder.Path() / "errors")};
}

ProgramResult RunOnTerminal(const std::vector<std::string>&) {
    ADD_FAILURE() << "a console here does not hand out what is written";
    return {};
}
