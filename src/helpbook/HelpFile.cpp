// SPDX-License-Identifier: MIT
#include "helpbook/HelpFile.h"

#include "base/ProgramFolder.h"

std::filesystem::path HelpFile(const std::filesystem::path& programFolder, Language language) {
    return programFolder / "language" / LanguageCode(language) / "Qorvix.chm";
}

std::filesystem::path HelpReader(const std::filesystem::path& programFolder) {
    return programFolder / ProgramFileName("qorvix-helpreader");
}
