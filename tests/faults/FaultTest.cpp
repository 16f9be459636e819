// SPDX-License-Identifier: MIT
#include "faults/FaultTest.h"

#include "support/ReadText.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <sstream>

Environment Fault::Variables() const {
    if (Folder.empty())
        return {};
    // The sanitizers' own library is content to come second.
    const char* const sanitizers = std::getenv("ASAN_OPTIONS");
    return {
        {"LD_PRELOAD", QORVIX_FAILING_DISK},
        {"FAILING_FOLDER", Folder},
        {"FAILING_CALLS", Calls},
        {"FAILING_WITH", std::to_string(Error)},
        {"FAILING_AFTER", std::to_string(After)},
        {"FAILING_BYTES", Bytes},
        {"FAILING_WHILE", While},
        {"FAILING_RECORD", Record},
        {"ASAN_OPTIONS", std::string(sanitizers == nullptr ? "" : sanitizers) + ":verify_asan_link_order=0"}};
}

std::vector<DiskCall> ReadRecord(const std::string& file) {
    std::vector<DiskCall> calls;
    std::istringstream lines(FileContent(file));
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::string kind;
        std::string mode;
        DiskCall call{};
        std::getline(fields, kind, '\t');
        std::getline(fields, mode, '\t');
        std::getline(fields, call.Path, '\t');
        std::getline(fields, call.From);
        call.Kind = kind.at(0);
        call.Mode = mode == "-" ? 0 : static_cast<unsigned>(std::stoul(mode, nullptr, 8));
        calls.push_back(std::move(call));
    }
    return calls;
}

Fault FullDisk(const std::string& folder) { return {folder, "cw", ENOSPC}; }
Fault ReadOnlyDisk(const std::string& folder) { return {folder, "cowrp", EROFS}; }
Fault KilledAt(const std::string& folder, int call) { return {folder, "cowrp", 0, call}; }

FaultTest::FaultTest() {
    for (const std::string& folder : {Config, State, Temp, Work, Runtime})
        std::filesystem::create_directory(folder);
    std::filesystem::permissions(Runtime, std::filesystem::perms::owner_all);
}

Environment FaultTest::Variables(const Fault& fault) const {
    Environment variables = fault.Variables();
    variables.insert({{"LC_ALL", "C.UTF-8"},
                      {"HOME", Folder.Path().string()},
                      {"XDG_CONFIG_HOME", Config},
                      {"XDG_DATA_HOME", Folder / "data"},
                      {"XDG_STATE_HOME", State},
                      {"XDG_RUNTIME_DIR", Runtime},
                      {"TMPDIR", Temp}});
    return variables;
}

ProgramEnd FaultTest::RunTool(const std::vector<std::string>& arguments, const Fault& fault,
                              std::string& errors) const {
    RunningProgram tool(Tool, arguments, Variables(fault));
    const ProgramEnd end = tool.WaitForEnd();
    errors = tool.Errors();
    return end;
}

std::vector<std::string> FaultTest::NamesIn(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& item : std::filesystem::directory_iterator(folder))
        names.push_back(item.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string FaultTest::LogbookOf(int errors) {
    std::vector<std::string> lines;
    for (int i = 0; i < errors; ++i)
        lines.push_back(Header("BERR:    " + std::to_string(i)));
    return Lines(lines);
}
