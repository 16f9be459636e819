// SPDX-License-Identifier: MIT
#include "base/StandardStreams.h"

// A program without a console has no numbers for them that a file could get.
void OpenMissingStandardStreams() {}
