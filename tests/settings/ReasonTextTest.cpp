// SPDX-License-Identifier: MIT
#include "settings/ReasonText.h"

#include "base/FileProblem.h"
#include "support/GermanSystem.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <ios>
#include <set>

namespace {

constexpr int MostNumbers = 4096; // above all that the system has

std::string InEnglish(int number) { return SystemReason(number, {Language::English}); }
std::string InGerman(int number) { return SystemReason(number, {Language::German}); }

// What opening, reading, writing, flushing, locking, renaming, removing and listing can give, also over a
// network.
constexpr int OfFiles[] = {
    EPERM,   ENOENT,    EINTR,       EIO,         ENXIO,        EBADF,        EAGAIN,     ENOMEM,
    EACCES,  EFAULT,    EBUSY,       EEXIST,      EXDEV,        ENODEV,       ENOTDIR,    EISDIR,
    EINVAL,  ENFILE,    EMFILE,      ENOTTY,      ETXTBSY,      EFBIG,        ENOSPC,     ESPIPE,
    EROFS,   EMLINK,    EPIPE,       ERANGE,      EDEADLK,      ENAMETOOLONG, ENOLCK,     ENOSYS,
    ELOOP,   ENOTEMPTY, EOVERFLOW,   EILSEQ,      ENODATA,      EOPNOTSUPP,   ECANCELED,  EDQUOT,
    ESTALE,  ETIMEDOUT, ECONNRESET,  EHOSTDOWN,   ENOTCONN,     EHOSTUNREACH, EREMOTEIO,  EUCLEAN,
    EBADMSG, ENOKEY,    EKEYEXPIRED, EKEYREVOKED, EKEYREJECTED, ENOMEDIUM,    EMEDIUMTYPE};

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

TEST(ReasonText, EveryReasonOfTheSystemForFilesHasWords) {
    std::set<std::string> german;
    for (const int number : OfFiles) {
        EXPECT_NE(InGerman(number), "Unbekannter Fehler " + std::to_string(number)) << std::strerror(number);
        EXPECT_NE(InGerman(number), InEnglish(number));
        german.insert(InGerman(number));
    }
    EXPECT_EQ(german.size(), std::size(OfFiles));
}

TEST(ReasonText, EnglishIsInTheWordsOfTheSystem) {
    // The locale of a test is that of C, whose words are English.
    for (const SystemReasonRow& row : SystemReasonTable()) {
        EXPECT_EQ(row.English, std::strerror(row.Number));
        EXPECT_NE(row.German, row.English);
    }
    EXPECT_GE(SystemReasonTable().size(), std::size(OfFiles));
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

// A system that speaks German does not make the program's English half German.
TEST(ReasonText, LocaleOfTheProcessDoesNotCount) {
    const GermanSystem system;
    const std::error_code error = std::make_error_code(std::errc::no_such_file_or_directory);
    ASSERT_EQ(error.message(), GermanSystem::NoSuchFile);
    EXPECT_EQ(ReasonText(error, {Language::English}), "No such file or directory");
    EXPECT_EQ(ReasonText(error, {Language::German}), "Datei oder Ordner nicht gefunden");
}
