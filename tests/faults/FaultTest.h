// SPDX-License-Identifier: MIT
#pragma once

#include "faults/RunningProgram.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What fails below a folder, or kills the program there; FailingDisk.cpp and FailingDiskWindows.cpp tell
// how.
struct Fault {
    std::string Folder;
    std::string Calls;       // kinds of calls
    int Error = 0;           // 0 = killed
    int After = 0;           // so many calls are done before
    std::string Bytes = "";  // so many bytes are written before
    std::string While = "";  // only while this file exists
    std::string Record = ""; // every call below the folder becomes a line of this file

    Environment Variables() const;
};

// A call that was done on a disk.
struct DiskCall {
    char Kind;        // as FailingDisk.cpp has them
    unsigned Mode;    // the permissions that the file has then; 0 = there is no file any more
    std::string Path; // for a rename the new one
    std::string From; // for a rename the old one
};
std::vector<DiskCall> ReadRecord(const std::string& file);

// Faults that people meet. All calls that change a folder are "cowrp".
Fault FullDisk(const std::string& folder);
Fault ReadOnlyDisk(const std::string& folder);
Fault KilledAt(const std::string& folder, int call);

// What tests of the real programs share: a user with a home, folders for
// settings and state, a temporary folder and a folder for logbooks and
// archives, all empty at first.
class FaultTest : public testing::Test {
  protected:
    FaultTest();

    // The environment of a program of this user, with a fault or none.
    Environment Variables(const Fault& fault = {}) const;

    static constexpr const char* Tool = QORVIX_PROGRAM_FOLDER "/qorvix-cli";

    // Runs a program to its end; `errors` is what it says on standard error.
    ProgramEnd Run(const std::string& program, const std::vector<std::string>& arguments, const Fault& fault,
                   std::string& errors) const;

    // Runs the command-line tool in the same way.
    ProgramEnd RunTool(const std::vector<std::string>& arguments, const Fault& fault,
                       std::string& errors) const;

    // What a disk of this system answers when it fails, numbers of errno.
    static const std::vector<int> DiskErrors;

    std::string SettingsFile() const { return Config + "/VELTRANDOR/Qorvix.json"; }

    // The names of what lies in a folder, in order.
    static std::vector<std::string> NamesIn(const std::string& folder);

    // A logbook of so many errors, whose data are their numbers.
    static std::string LogbookOf(int errors);

    TemporaryFolder Folder;
    const std::string Config = Folder / "config";
    const std::string State = Folder / "state";
    const std::string Temp = Folder / "temp";
    const std::string Work = Folder / "work";
    const std::string Runtime = Folder / "runtime"; // of the toolkit
};
