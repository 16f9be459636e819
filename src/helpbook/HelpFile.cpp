// SPDX-License-Identifier: MIT
#include "helpbook/HelpFile.h"

std::filesystem::path HelpFile(const std::filesystem::path& programFolder, Language language) {
    return programFolder / "language" / LanguageCode(language) / "Qorvix.chm";
}
