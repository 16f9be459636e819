// SPDX-License-Identifier: MIT
#include "base/SystemHelpViewer.h"

bool ShowHelpContents(std::uintptr_t, const std::filesystem::path&) { return false; }
bool ShowHelpSearch(std::uintptr_t, const std::filesystem::path&) { return false; }
void CloseSystemHelp() {}
