// SPDX-License-Identifier: MIT
#pragma once

#include "history/StitchOrder.h"
#include "support/TemporaryFolder.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Exports of a test, written to files, and what becomes of them.
class Stitches {
  public:
    explicit Stitches(const std::vector<std::string>& exports);

    const std::vector<ExportLines>& Exports() const { return exports_; }
    const StitchPlan& Plan() const { return plan_; }
    const std::string& Folder() const { return folderPath_; }

    // The stitched logbook; nothing when it was refused.
    std::optional<std::string> Log() const;

    // Writes it to a file and returns its path.
    std::string WriteLog() const;

  private:
    TemporaryFolder folder_;
    std::string folderPath_;
    std::vector<ExportLines> exports_;
    StitchPlan plan_;
};

// A numbered line with a stamp: "BERR:    7 ... 04.01.2010 12:34:07". Each number has its own second.
std::string StampedLine(int number);

// The lines with numbers from `begin` to before `end`, each ended by CR LF.
std::string StampedLines(int begin, int end);
