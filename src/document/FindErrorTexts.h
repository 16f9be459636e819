// SPDX-License-Identifier: MIT
#pragma once

#include "base/TempFolder.h"
#include "eventinfo/ErrorTextSource.h"

#include <memory>
#include <string>

// Finds the control's language files in a folder (ErrorTextFolder), or in a service archive and the archive
// of the system in it, which is unpacked to the temporary folder for as long as the source lives. Members
// that are no files, as links, are left out, and their paths lead nowhere: only names count.
std::unique_ptr<ErrorTextSource> FindErrorTexts(const std::string& place, const TempFolder& tempFolder,
                                                Language language);
