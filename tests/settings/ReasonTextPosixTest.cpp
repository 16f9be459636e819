// SPDX-License-Identifier: MIT
// The reasons and the words of the system itself.
#include "settings/ReasonText.h"

#include "support/GermanSystem.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <set>

namespace {

std::string WordsOf(int number, Language language) { return SystemReason(number, language); }

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

TEST(ReasonText, EveryReasonOfTheSystemForFilesHasWords) {
    std::set<std::string> german;
    for (const int number : OfFiles) {
        EXPECT_NE(WordsOf(number, {Language::German}), "Unbekannter Fehler " + std::to_string(number))
            << std::strerror(number);
        EXPECT_NE(WordsOf(number, {Language::German}), WordsOf(number, {Language::English}));
        german.insert(WordsOf(number, {Language::German}));
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

// A system that speaks German does not make the program's English half German.
TEST(ReasonText, LocaleOfTheProcessDoesNotCount) {
    const GermanSystem system;
    const std::error_code error = std::make_error_code(std::errc::no_such_file_or_directory);
    ASSERT_EQ(error.message(), GermanSystem::NoSuchFile);
    EXPECT_EQ(ReasonText(error, {Language::English}), "No such file or directory");
    EXPECT_EQ(ReasonText(error, {Language::German}), "Datei oder Ordner nicht gefunden");
}
