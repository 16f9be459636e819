// SPDX-License-Identifier: MIT
#include "base/ProgramOutput.h"

#include <algorithm>
#include <thread>
#include <vector>

#include <windows.h>

namespace {

// A handle that is closed when its owner ends.
class OwnHandle {
  public:
    explicit OwnHandle(HANDLE handle = nullptr)
        : handle_(handle == INVALID_HANDLE_VALUE ? nullptr : handle) {}
    ~OwnHandle() { Close(); }
    OwnHandle(const OwnHandle&) = delete;
    OwnHandle& operator=(const OwnHandle&) = delete;

    void Close() {
        if (handle_ != nullptr)
            CloseHandle(handle_);
        handle_ = nullptr;
    }
    explicit operator bool() const { return handle_ != nullptr; }
    HANDLE Get() const { return handle_; }
    HANDLE* Place() { return &handle_; }

  private:
    HANDLE handle_;
};

// The group that the program runs in: it ends with its owner, and a crash asks nobody anything.
HANDLE MakeJob() {
    const HANDLE job = CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    limits.BasicLimitInformation.LimitFlags =
        JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE | JOB_OBJECT_LIMIT_DIE_ON_UNHANDLED_EXCEPTION;
    if (job != nullptr)
        SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
    return job;
}

// A list with the handles that the new program gets, and no others of this one.
class HandleList {
  public:
    explicit HandleList(std::vector<HANDLE> handles) : handles_(std::move(handles)) {
        SIZE_T size = 0;
        InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
        bytes_.resize(size);
        isMade_ = InitializeProcThreadAttributeList(Get(), 1, 0, &size) != 0 &&
                  UpdateProcThreadAttribute(Get(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, handles_.data(),
                                            handles_.size() * sizeof(HANDLE), nullptr, nullptr) != 0;
    }
    ~HandleList() {
        if (isMade_)
            DeleteProcThreadAttributeList(Get());
    }
    HandleList(const HandleList&) = delete;
    HandleList& operator=(const HandleList&) = delete;

    explicit operator bool() const { return isMade_; }
    LPPROC_THREAD_ATTRIBUTE_LIST Get() {
        return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(bytes_.data());
    }

  private:
    std::vector<HANDLE> handles_;
    std::vector<char> bytes_;
    bool isMade_ = false;
};

// Starts the program in the job, with its output in a pipe; null when it cannot be started.
HANDLE Start(const std::filesystem::path& program, const std::filesystem::path& argument, HANDLE output,
             HANDLE job) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    const OwnHandle nothing(CreateFileW(L"NUL", GENERIC_READ | GENERIC_WRITE,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, OPEN_EXISTING, 0,
                                        nullptr));
    HandleList handles({output, nothing.Get()});
    if (!nothing || !handles)
        return nullptr;
    STARTUPINFOEXW start{};
    start.StartupInfo.cb = sizeof start;
    start.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
    start.StartupInfo.hStdInput = nothing.Get();
    start.StartupInfo.hStdOutput = output;
    start.StartupInfo.hStdError = nothing.Get();
    start.lpAttributeList = handles.Get();
    // No path holds a quotation mark, and none of a file ends in a backslash.
    std::wstring line = L'"' + program.native() + L"\" \"" + argument.native() + L'"';
    PROCESS_INFORMATION process{};
    if (CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE,
                       CREATE_NO_WINDOW | CREATE_SUSPENDED | EXTENDED_STARTUPINFO_PRESENT, nullptr, nullptr,
                       &start.StartupInfo, &process) == 0)
        return nullptr;
    AssignProcessToJobObject(job, process.hProcess);
    ResumeThread(process.hThread);
    CloseHandle(process.hThread);
    return process.hProcess;
}

// Everything from the pipe until its other end is closed; less when that takes too long. A pipe of this kind
// cannot be waited for together with the time, so it is looked at.
std::string Receive(HANDLE pipe, std::size_t mostBytes, std::chrono::milliseconds mostTime) {
    constexpr std::chrono::milliseconds Pause{2};
    const auto deadline = std::chrono::steady_clock::now() + mostTime;
    std::string bytes;
    char block[64 * 1024];
    while (bytes.size() <= mostBytes && std::chrono::steady_clock::now() < deadline) {
        DWORD available = 0;
        if (PeekNamedPipe(pipe, nullptr, 0, nullptr, &available, nullptr) == 0)
            break;
        if (available == 0) {
            std::this_thread::sleep_for(Pause);
            continue;
        }
        DWORD count = 0;
        if (ReadFile(pipe, block, std::min<DWORD>(available, sizeof block), &count, nullptr) == 0 ||
            count == 0)
            break;
        bytes.append(block, count);
    }
    return bytes;
}

} // namespace

std::string ProgramOutput(const std::filesystem::path& program, const std::filesystem::path& argument,
                          std::size_t mostBytes, std::chrono::milliseconds mostTime) {
    constexpr DWORD PipeBytes = 1024 * 1024;
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    OwnHandle reading;
    OwnHandle writing;
    const OwnHandle job(MakeJob());
    if (!job || CreatePipe(reading.Place(), writing.Place(), &inherited, PipeBytes) == 0)
        return {};
    const OwnHandle process(Start(program, argument, writing.Get(), job.Get()));
    writing.Close();
    if (!process)
        return {};
    std::string bytes = Receive(reading.Get(), mostBytes, mostTime);
    TerminateProcess(process.Get(), 1); // in vain, when it has ended by itself
    return bytes;
}

void LimitThisProcess(int processorSeconds) {
    constexpr LONGLONG TicksPerSecond = 10'000'000;
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    const HANDLE job = CreateJobObjectW(nullptr, nullptr); // stays open as long as the process runs
    if (job == nullptr)
        return;
    JOBOBJECT_BASIC_LIMIT_INFORMATION limits{};
    limits.PerProcessUserTimeLimit.QuadPart = processorSeconds * TicksPerSecond;
    limits.LimitFlags = JOB_OBJECT_LIMIT_PROCESS_TIME;
    SetInformationJobObject(job, JobObjectBasicLimitInformation, &limits, sizeof limits);
    AssignProcessToJobObject(job, GetCurrentProcess());
}

bool WriteToStandardOutput(const void* data, std::size_t size) {
    constexpr std::size_t Most = 1024 * 1024;
    const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
    const char* bytes = static_cast<const char*>(data);
    while (size > 0) {
        DWORD written = 0;
        if (WriteFile(output, bytes, static_cast<DWORD>(std::min(size, Most)), &written, nullptr) == 0 ||
            written == 0)
            return false;
        bytes += written;
        size -= written;
    }
    return true;
}

void EndThisProcess(int status) {
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(status));
    std::abort();
}
