// SPDX-License-Identifier: MIT
#pragma once

#include "cli/StitchOutput.h"
#include "history/StitchOrder.h"

#include <string>

// Says on standard error why exports cannot be stitched. Returns the exit status of a command that failed.
int TellRefusal(const StitchPlan& plan, const StitchSources& sources, Language language);

// Says on standard error which exports add nothing.
void TellDuplicates(const StitchPlan& plan, const StitchSources& sources, Language language);

// Lists the comments without a place on standard error.
void TellUnplaced(const StitchedResult& result, const StitchSources& sources, Language language);

// Prints the pairs on standard output, from the oldest to the newest, a pair a line. "text":
//
//     a.log, b.log: common lines: 120; entries: 48; shift of entry numbers: +310
//
// "jsonl": an object with the fields older, newer, overlap_lines, overlap_entries and shift. The shift is
// what is added to the number of an entry of the newer export. What is not known is null. False when it could
// not be printed.
bool PrintPairs(const StitchedResult& result, const StitchPlan& plan, const StitchSources& sources,
                const std::string& format, Language language);
