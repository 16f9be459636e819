// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/frmAbout.h"

#include <vector>

// The libraries that the window's program runs with, in the order of the about box, with the versions that
// the running libraries report. The parts of Qt count as one. Libraries that only the command-line tool uses
// are left out.
std::vector<LibraryVersion> LibraryVersions();
