// SPDX-License-Identifier: MIT
#include "support/OtherProcess.h"

#include "base/Paths.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

#include <windows.h>

namespace {

// The name of the function, and its words behind it, each on a line.
constexpr const wchar_t* Order = L"QORVIX_TEST_FUNCTION";

constexpr UINT KilledStatus = 0x4B494C4C;

HANDLE HandleOf(std::intptr_t process) { return reinterpret_cast<HANDLE>(process); }

// Before the first test of a program: runs the one function that was ordered, if any.
class OrderedFunction : public testing::Environment {
  public:
    void SetUp() override {
        const wchar_t* const order = ::_wgetenv(Order);
        if (order == nullptr)
            return;
        std::vector<std::string> words;
        std::string line;
        for (const char c : PathText(order) + "\n")
            if (c == '\n')
                words.push_back(std::exchange(line, {}));
            else
                line += c;
        const OtherProcess::Function function = OtherProcessFunctions::Named(words.front());
        words.erase(words.begin());
        TerminateProcess(GetCurrentProcess(), function == nullptr ? 127 : static_cast<UINT>(function(words)));
    }
};

const testing::Environment* const Ordered = testing::AddGlobalTestEnvironment(new OrderedFunction);

} // namespace

OtherProcess::OtherProcess(const std::string& name, const std::vector<std::string>& words) {
    EXPECT_NE(OtherProcessFunctions::Named(name), nullptr) << name;
    std::wstring order = ToPath(name).wstring();
    for (const std::string& word : words)
        order += L"\n" + std::wstring(ToPath(word).native());
    SetEnvironmentVariableW(Order, order.c_str());
    std::array<wchar_t, 32768> program{};
    GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
    std::wstring commandLine = L"\"" + std::wstring(program.data()) + L"\" --gtest_brief=1";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    EXPECT_NE(CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                             nullptr, &startup, &process),
              0)
        << GetLastError();
    SetEnvironmentVariableW(Order, nullptr);
    CloseHandle(process.hThread);
    process_ = reinterpret_cast<std::intptr_t>(process.hProcess);
}

std::int64_t OtherProcess::Number() const { return GetProcessId(HandleOf(process_)); }

int OtherProcess::End() {
    EXPECT_EQ(WaitForSingleObject(HandleOf(process_), INFINITE), WAIT_OBJECT_0);
    DWORD status = 0;
    EXPECT_NE(GetExitCodeProcess(HandleOf(process_), &status), 0);
    CloseHandle(HandleOf(process_));
    process_ = 0;
    return status == KilledStatus ? Killed : static_cast<int>(status);
}

void OtherProcess::Kill() {
    TerminateProcess(HandleOf(process_), KilledStatus);
    End();
}
