// SPDX-License-Identifier: MIT
#include "settings/ReasonText.h"

#include "base/FileProblem.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <ios>
#include <set>

namespace {

constexpr int MostNumbers = 4096; // above all that the system has

std::string InEnglish(int number) { return SystemReason(number, {Language::English}); }
std::string InGerman(int number) { return SystemReason(number, {Language::German}); }

} // namespace

TEST(ReasonText, ProblemsOfFilesAreToldInBothLanguages) {
    std::set<std::string> texts;
    for (const FileProblem problem :
         {FileProblem::NoRegularFile, FileProblem::TooLarge, FileProblem::LineTooLong,
          FileProblem::TooManyLines, FileProblem::ForeignLink}) {
        const std::error_code error = problem;
        EXPECT_EQ(ReasonText(error, {Language::English}), error.message());
        texts.insert(ReasonText(error, {Language::English}));
        texts.insert(ReasonText(error, {Language::German}));
    }
    EXPECT_EQ(texts.size(), 10U);
    EXPECT_EQ(ReasonText(FileProblem::NoRegularFile, {Language::German}), "keine gewöhnliche Datei");
}

TEST(ReasonText, NoNumberGivesGermanAndEnglishTheSameWords) {
    for (int number = -1; number <= MostNumbers; ++number) {
        EXPECT_NE(InGerman(number), InEnglish(number));
        EXPECT_FALSE(InGerman(number).empty());
    }
    EXPECT_EQ(InEnglish(MostNumbers), "Unknown error 4096");
    EXPECT_EQ(InGerman(MostNumbers), "Unbekannter Fehler 4096");
}

TEST(ReasonText, CategoriesOfTheSystemAreOne) {
    const Language german{Language::German};
    const std::string full = "Auf dem Datenträger ist kein Platz mehr";
    EXPECT_EQ(ReasonText({ENOSPC, std::generic_category()}, german), full);
    EXPECT_EQ(ReasonText({ENOSPC, std::system_category()}, german), full);
    EXPECT_EQ(ReasonText(std::make_error_code(std::errc::no_space_on_device), german), full);
    EXPECT_EQ(ReasonText(std::make_error_code(std::io_errc::stream), german), "Unbekannter Fehler 1");
    EXPECT_EQ(ReasonText({99, FileProblems()}, german), "Unbekannter Fehler 99");
}
