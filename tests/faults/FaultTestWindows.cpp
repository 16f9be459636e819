// SPDX-License-Identifier: MIT
#include "faults/FaultTest.h"

#include <cerrno>

#include <windows.h>

namespace {

// What the system says where others have a number of errno.
DWORD SystemError(int error) {
    switch (error) {
    case 0:
        return ERROR_SUCCESS;
    case ENOSPC:
        return ERROR_DISK_FULL;
    case EROFS:
        return ERROR_WRITE_PROTECT;
    case EACCES:
        return ERROR_ACCESS_DENIED;
    case EIO:
        return ERROR_IO_DEVICE;
    case ENOLCK:
        return ERROR_NOT_SUPPORTED;
    default:
        ADD_FAILURE() << "an error that is not known here: " << error;
        return ERROR_GEN_FAILURE;
    }
}

} // namespace

const std::vector<int> FaultTest::DiskErrors{ENOSPC, EROFS, EACCES};

// Only what FailingDiskWindows.cpp has; calls are not recorded here.
Environment Fault::Variables() const {
    EXPECT_EQ(While + Record, "");
    if (Folder.empty())
        return {};
    return {{"FAILING_LIBRARY", QORVIX_FAILING_DISK},
            {"FAILING_FOLDER", Folder},
            {"FAILING_CALLS", Calls},
            {"FAILING_WITH", std::to_string(SystemError(Error))},
            {"FAILING_AFTER", std::to_string(After)},
            {"FAILING_BYTES", Bytes}};
}

// The settings are in the registry of the user who runs the tests; the tool does not write them.
Environment FaultTest::Variables(const Fault& fault) const {
    Environment variables = fault.Variables();
    variables.insert({{"APPDATA", Config}, {"LOCALAPPDATA", State}, {"TMP", Temp}, {"TEMP", Temp}});
    return variables;
}
