// SPDX-License-Identifier: MIT
#include "base/ProgramFolder.h"

#include "base/Paths.h"

#include <system_error>

std::string ProgramFolder() {
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::string() : PathText(program.parent_path());
}

std::string ProgramFolderWithSeparator() { return ProgramFolder() + '/'; }

std::string ProgramFileName(std::string_view program) { return std::string(program); }
