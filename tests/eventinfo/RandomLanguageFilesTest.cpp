// SPDX-License-Identifier: MIT
// Language files of random bytes, and of pieces of the right ones in a random order: the readers give some
// text or none.
#include "eventinfo/ClassicNcErrorText.h"
#include "eventinfo/ClassicPlcErrorText.h"
#include "eventinfo/CsvErrorText.h"
#include "eventinfo/FacilityFile.h"
#include "eventinfo/XmlErrorText.h"
#include "eventinfo/iZEKEventInfo.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <random>

namespace {

constexpr std::string_view Pieces[] = {"\n",
                                       "\r\n",
                                       "\r",
                                       " ",
                                       "5",
                                       "005",
                                       "\n5\n",
                                       "\n005 -\n",
                                       "0x5",
                                       ";",
                                       "|",
                                       "\"",
                                       "-",
                                       "\xFC",
                                       "\xC3\x9F",
                                       "text",
                                       "<string id=\"a\" value=\"5\"",
                                       " class=\"Ev_class_1\"",
                                       ">",
                                       "class=",
                                       "id=",
                                       "</string>",
                                       "<text>",
                                       "</text>",
                                       "<text1>",
                                       "</text1>",
                                       "<text2>",
                                       "</text2>",
                                       "&#10;",
                                       "&gt;",
                                       "&quot;",
                                       "\nCause of error:\n",
                                       "\nFehlerbehebung:\n",
                                       "\nCorrective action:\n",
                                       "\nFehlerursache:\n"};

class RandomLanguageFiles : public testing::Test {
  protected:
    std::size_t Pick(std::size_t count) { return Random() % count; }

    std::string RandomBytes() {
        std::string bytes(Pick(400), '\0');
        for (char& c : bytes)
            c = static_cast<char>(static_cast<unsigned char>(1 + Pick(255)));
        return bytes;
    }

    std::string RandomPieces() {
        std::string text;
        for (std::size_t left = Pick(60); left != 0; --left)
            text.append(Pieces[Pick(std::size(Pieces))]);
        return text;
    }

    void ReadAll(const std::string& content) {
        const std::string file = Folder.Write("error.a", content);
        Folder.Write("reason.a", content);
        Folder.Write("fix.a", content);
        const std::optional<EventTextRecord> records[] = {
            ReadXmlErrorText(file, 5), ReadCsvErrorText(file, 5), ReadClassicNcErrorText(file, 5),
            ReadClassicPlcErrorText(Folder.Path().string(), 5)};
        for (const auto& record : records)
            if (record)
                ++Found;
        ReadFacilityFile(file);
    }

    std::mt19937 Random{2010};
    TemporaryFolder Folder;
    int Found = 0;
};

} // namespace

TEST_F(RandomLanguageFiles, BytesAreReadWithoutHarm) {
    for (int round = 0; round < 300; ++round)
        ASSERT_NO_THROW(ReadAll(RandomBytes()));
}

TEST_F(RandomLanguageFiles, PiecesAreReadWithoutHarm) {
    for (int round = 0; round < 1000; ++round)
        ASSERT_NO_THROW(ReadAll(RandomPieces()));
    EXPECT_GT(Found, 300); // else the pieces would miss what is behind a hit
}

TEST_F(RandomLanguageFiles, DataTextsAreReadWithoutHarm) {
    std::filesystem::create_directory(Folder / "ENGLISH");
    Folder.Write("ENGLISH/qx_error_help.txt", "0\nfound\n");
    Folder.Write("ENGLISH/ErrorText.csv", "h\n0;found;;\n");
    for (int round = 0; round < 2000; ++round) {
        const char* const begins[] = {"N", "P", "Event: ", "Event: 300-", "Event: 0-", ""};
        const std::string data =
            begins[Pick(std::size(begins))] + (Pick(2) == 0 ? RandomBytes() : RandomPieces());
        ASSERT_NO_THROW(Found += AutoFillComment(data, {}, Folder.Path().string()).Text.has_value());
    }
    EXPECT_GT(Found, 100);
}
