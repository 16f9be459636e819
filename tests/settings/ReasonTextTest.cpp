// SPDX-License-Identifier: MIT
#include "settings/ReasonText.h"

#include "logbook/FileProblem.h"

#include <gtest/gtest.h>

#include <set>

TEST(ReasonText, ProblemsOfFilesAreToldInBothLanguages) {
    std::set<std::string> texts;
    for (const FileProblem problem : {FileProblem::NoRegularFile, FileProblem::TooLarge,
                                      FileProblem::LineTooLong, FileProblem::TooManyLines}) {
        const std::error_code error = problem;
        EXPECT_EQ(ReasonText(error, {Language::English}), error.message());
        texts.insert(ReasonText(error, {Language::English}));
        texts.insert(ReasonText(error, {Language::German}));
    }
    EXPECT_EQ(texts.size(), 8U);
    EXPECT_EQ(ReasonText(FileProblem::NoRegularFile, {Language::German}), "keine gewöhnliche Datei");
}

TEST(ReasonText, OtherErrorsAreToldInTheWordsOfTheSystem) {
    const std::error_code error = std::make_error_code(std::errc::no_such_file_or_directory);
    EXPECT_EQ(ReasonText(error, {Language::German}), error.message());
}
