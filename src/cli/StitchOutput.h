// SPDX-License-Identifier: MIT
#pragma once

#include "base/CodePage.h"
#include "base/TempFolder.h"
#include "cli/StitchSources.h"
#include "filter/FilterDefinition.h"
#include "history/StitchCounts.h"

#include <string>
#include <vector>

// What becomes of stitched exports.
struct StitchedResult {
    std::vector<StitchCounts> Counts;
    std::vector<CommentOfExport> Unplaced;
};

// What is stitched.
struct StitchInput {
    const StitchSources& Sources;
    const StitchPlan& Plan;
    std::vector<CommentOfExport> Comments; // of newer exports first
    // For an own archive: the filters of the export FiltersOf. None = the filter that shows all.
    std::vector<FilterDefinition> Filters;
    std::size_t FiltersOf = 0;
    const CodePage& FileCodePage;
    const TempFolder& Temp;
    Language MessageLanguage;
};

// Writes a plain logbook and, if there are comments, a comments file beside it. Both files are replaced or
// none, unless the disk fails between the two. Refuses to replace a comments file that has comments which the
// result lacks, and one without a logbook. False after a failure, which has then been reported.
bool WriteStitchedLog(const std::string& path, const StitchInput& input, StitchedResult& result);

// Writes an own archive. Refuses to replace one whose comments would be lost. False after a failure, which
// has then been reported.
bool WriteStitchedArchive(const std::string& path, const StitchInput& input, StitchedResult& result);
