// SPDX-License-Identifier: MIT
#include "history/Stitches.h"

#include "history/StitchedLog.h"
#include "support/ReadText.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <sstream>

Stitches::Stitches(const std::vector<std::string>& exports) : folderPath_(folder_.Path().string()) {
    for (std::size_t i = 0; i < exports.size(); ++i) {
        std::error_code error;
        exports_.emplace_back(folder_.Write(std::to_string(i) + ".log", exports[i]), error);
        EXPECT_FALSE(error);
    }
    plan_ = PlanStitch(exports_);
}

std::optional<std::string> Stitches::Log() const {
    if (plan_.Refused)
        return std::nullopt;
    const StitchedLog log(exports_, plan_);
    std::ostringstream stream;
    log.Write(stream);
    EXPECT_EQ(stream.str().size(), log.Size());
    return stream.str();
}

std::string Stitches::WriteLog() const { return folder_.Write("stitched.log", Log().value_or("")); }

std::string StampedLine(int number) {
    char stamp[32];
    std::snprintf(stamp, sizeof stamp, "04.01.2010 %02d:%02d:%02d", number / 3600 % 24, number / 60 % 60,
                  number % 60);
    return Header("BERR:    " + std::to_string(number), stamp);
}

std::string StampedLines(int begin, int end) {
    std::string lines;
    for (int number = begin; number < end; ++number)
        lines += StampedLine(number) + "\r\n";
    return lines;
}
