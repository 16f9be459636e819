// SPDX-License-Identifier: MIT
#include "support/WindowTest.h"

#include <QDir>
#include <QFileInfo>

#include <iostream>
#include <map>
#include <string>
#include <vector>

namespace {
std::map<std::string, WindowTestRun>& WindowTests() {
    static std::map<std::string, WindowTestRun> tests;
    return tests;
}
} // namespace

bool AddWindowTest(const char* name, WindowTestRun run) { return WindowTests().emplace(name, run).second; }

void UseDataFolder(const std::string& folder) {
    qputenv("XDG_DATA_HOME", folder.c_str());
    // Windows takes only a path with its drive.
    qputenv("APPDATA",
            QDir::toNativeSeparators(QFileInfo(QString::fromStdString(folder)).absoluteFilePath()).toUtf8());
}

int main(int argc, char** argv) {
    const auto test = WindowTests().find(argc > 1 ? argv[1] : "");
    if (test == WindowTests().end()) {
        std::cerr << "usage: " << argv[0] << " TEST [option of Qt Test...]; the tests are:\n";
        for (const auto& [name, run] : WindowTests())
            std::cerr << "  " << name << '\n';
        return 2;
    }
    // What the person at this machine has given the program is no part of a test.
    UseDataFolder(NoFolder);
    std::vector<char*> arguments(argv, argv + argc);
    arguments.erase(arguments.begin() + 1);
    arguments.push_back(nullptr);
    return test->second(argc - 1, arguments.data());
}
