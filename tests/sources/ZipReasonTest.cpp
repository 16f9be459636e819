// SPDX-License-Identifier: MIT
#include "sources/ZipReason.h"

#include "sources/ZipArchive.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <zip.h>

#include <cerrno>
#include <set>
#include <string>
#include <vector>

namespace {

std::string Reason(int code, int systemCode, int language) {
    zip_error_t error;
    zip_error_init(&error);
    zip_error_set(&error, code, systemCode);
    std::string reason = ZipReason(error, {language});
    zip_error_fini(&error);
    return reason;
}

// What the library itself says; "" where it does not know the code.
std::string WordsOfLibrary(int code, int systemCode) {
    zip_error_t error;
    zip_error_init(&error);
    zip_error_set(&error, code, systemCode);
    std::string words = zip_error_strerror(&error);
    zip_error_fini(&error);
    return words.starts_with("Unknown error") ? "" : words;
}

constexpr int MostCodes = 200;
const std::vector<int> SystemCodes{ENOSPC, EIO, EACCES, ENOENT};
const std::vector<int> ZlibCodes{-2, -3, -4, -5};

} // namespace

TEST(ZipReason, EveryErrorOfTheLibraryHasWordsInBothLanguages) {
    std::set<std::string> german;
    int known = 0;
    for (int code = 0; code < MostCodes; ++code) {
        const std::string words = WordsOfLibrary(code, 0);
        if (words.empty())
            continue;
        ++known;
        const std::string text = Reason(code, 0, Language::German);
        EXPECT_FALSE(text.starts_with("Unbekannter Fehler")) << code << " is " << words;
        EXPECT_NE(text, Reason(code, 0, Language::English)) << code;
        EXPECT_EQ(text.find("rror"), std::string::npos) << text;
        german.insert(text);
    }
    EXPECT_GE(known, 33);
    EXPECT_GE(german.size(), 33U);
}

TEST(ZipReason, EnglishIsInTheWordsOfTheLibrary) {
    for (int code = 0; code < MostCodes; ++code)
        for (const int systemCode : code == ZIP_ER_ZLIB ? ZlibCodes : SystemCodes)
            if (const std::string words = WordsOfLibrary(code, systemCode); !words.empty()) {
                EXPECT_EQ(Reason(code, systemCode, Language::English), words);
            }
}

TEST(ZipReason, ReasonOfTheSystemStandsBehindIt) {
    EXPECT_EQ(Reason(ZIP_ER_WRITE, ENOSPC, Language::English), "Write error: No space left on device");
    EXPECT_EQ(Reason(ZIP_ER_WRITE, ENOSPC, Language::German),
              "Schreibfehler: Auf dem Datenträger ist kein Platz mehr");
    EXPECT_EQ(Reason(ZIP_ER_ZLIB, -3, Language::German), "Fehler beim Packen oder Entpacken");
}

TEST(ZipReason, CodeOfALaterLibraryIsToldByItsNumber) {
    EXPECT_EQ(Reason(4711, 0, Language::English), "Unknown error 4711");
    EXPECT_EQ(Reason(4711, 0, Language::German), "Unbekannter Fehler 4711");
}

TEST(ZipReason, ArchiveThatIsNotThereIsToldInTheLanguage) {
    const TemporaryFolder folder;
    EXPECT_EQ(ZipArchive(folder / "none.zip", {Language::English}, {}).Error(), "No such file");
    EXPECT_EQ(ZipArchive(folder / "none.zip", {Language::German}, {}).Error(), "Datei nicht gefunden");
}
