// SPDX-License-Identifier: MIT
#include "faults/FaultTest.h"

#include <cerrno>
#include <cstdlib>

const std::vector<int> FaultTest::DiskErrors{EIO, ENOSPC, EDQUOT};

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
