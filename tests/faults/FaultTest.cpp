// SPDX-License-Identifier: MIT
#include "faults/FaultTest.h"

#include "support/ReadText.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <sstream>

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

ProgramEnd FaultTest::Run(const std::string& program, const std::vector<std::string>& arguments,
                          const Fault& fault, std::string& errors) const {
    RunningProgram running(program, arguments, Variables(fault));
    const ProgramEnd end = running.WaitForEnd();
    errors = running.Errors();
    return end;
}

ProgramEnd FaultTest::RunTool(const std::vector<std::string>& arguments, const Fault& fault,
                              std::string& errors) const {
    return Run(Tool, arguments, fault, errors);
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
