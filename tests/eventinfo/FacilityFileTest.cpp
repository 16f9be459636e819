// SPDX-License-Identifier: MIT
#include "eventinfo/FacilityFile.h"

#include "support/ReadText.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <vector>

using Outcome = FacilityFileContent::Outcome;

namespace {

FacilityFileContent Read(const std::string& content) {
    const TemporaryFolder folder;
    return ReadFacilityFile(folder.Write("facilities.csv", content));
}

std::string Rows(int count) {
    std::string rows;
    for (int i = 1; i <= count; ++i)
        rows += std::to_string(i) + ";P" + std::to_string(i) + ";M\n";
    return rows;
}

} // namespace

TEST(FacilityFile, RowsFillTheTableInOrder) {
    const FacilityFileContent content =
        Read(Lines({"0x108;SOFTKEY;SOFTKEY", "561;KERNEL;NCKERNEL", "0X2fF;??;"}));
    ASSERT_EQ(content.Result, Outcome::Read);
    EXPECT_EQ(content.Table[0], (FacilityRecord{0x108, "SOFTKEY", "SOFTKEY"}));
    EXPECT_EQ(content.Table[1], (FacilityRecord{561, "KERNEL", "NCKERNEL"}));
    EXPECT_EQ(content.Table[2], (FacilityRecord{0x2FF, "??", ""}));
    EXPECT_EQ(content.Table[3], FacilityRecord());
    EXPECT_EQ(content.Table[300], FacilityRecord());
}

TEST(FacilityFile, BlanksAroundFieldsAndEmptyLinesArePassedOver) {
    const FacilityFileContent content = Read("\n 1 ; A ; M 1 \n   \n2;B;M\n\n");
    ASSERT_EQ(content.Result, Outcome::Read);
    EXPECT_EQ(content.Table[0], (FacilityRecord{1, "A", "M 1"}));
    EXPECT_EQ(content.Table[1], (FacilityRecord{2, "B", "M"}));
}

TEST(FacilityFile, IsWindows1252) {
    EXPECT_EQ(Read("1;T\xDCR;K\xDCHLUNG").Table[0], (FacilityRecord{1, "TÜR", "KÜHLUNG"}));
}

TEST(FacilityFile, LineThatIsWrongIsNamed) {
    for (const char* line : {"x;A;M", ";A;M", "1;A", "1", "1;A;M;more", "1;;M", "-1;A;M", "0x;A;M",
                             "0x-1;A;M", "1A;A;M", "0x1G;A;M", "1.5;A;M", "2147483648;A;M", "0x80000000;A;M",
                             "1;../A;M", "1;..\\A;M", "1;C:A;M", "Number;Prefix;Name"}) {
        const FacilityFileContent content = Read("5;A;M\n\n" + std::string(line) + "\n6;A;M\n");
        EXPECT_EQ(content.Result, Outcome::InvalidLine) << line;
        EXPECT_EQ(content.Line, 3U) << line;
    }
    using namespace std::string_literals;
    const FacilityFileContent binary = Read("5;A;M\n6;A\0;M\n"s);
    EXPECT_EQ(binary.Result, Outcome::InvalidLine);
    EXPECT_EQ(binary.Line, 2U);
}

TEST(FacilityFile, LargestNumber) {
    EXPECT_EQ(Read("2147483647;A;M").Table[0].Number, 2147483647);
    EXPECT_EQ(Read("0x7FFFFFFF;A;M").Table[0].Number, 2147483647);
}

TEST(FacilityFile, Has220RowsAtMost) {
    const FacilityFileContent full = Read(Rows(220));
    ASSERT_EQ(full.Result, Outcome::Read);
    EXPECT_EQ(full.Table[219], (FacilityRecord{220, "P220", "M"}));
    EXPECT_EQ(full.Table[220], FacilityRecord());
    EXPECT_EQ(Read(Rows(220) + "\n\n").Result, Outcome::Read);
    const FacilityFileContent over = Read(Rows(220) + "\n" + "221;A;M\n");
    EXPECT_EQ(over.Result, Outcome::TooManyRows);
    EXPECT_EQ(over.Line, 222U);
}

TEST(FacilityFile, MissingAndEmptyFilesAreNotThere) {
    const TemporaryFolder folder;
    EXPECT_EQ(ReadFacilityFile(folder / "facilities.csv").Result, Outcome::NotThere);
    EXPECT_EQ(ReadFacilityFile(folder.Path().string()).Result, Outcome::NotThere);
    EXPECT_EQ(ReadFacilityFile("").Result, Outcome::NotThere);
    EXPECT_EQ(Read("").Result, Outcome::NotThere);
    EXPECT_EQ(Read("\r\n  \r\n").Result, Outcome::NotThere);
}

TEST(FacilityFile, MessageNamesFileAndLine) {
    FacilityFileMistake mistake{.Path = "/l/facilities.csv"};
    const auto message = [&](std::int32_t language) { return FacilityFileMessage(mistake, {language}); };
    mistake.Result = Outcome::InvalidLine;
    mistake.Line = 3;
    EXPECT_EQ(message(Language::English), "/l/facilities.csv: invalid facility in line 3");
    EXPECT_EQ(message(Language::German), "/l/facilities.csv: ungültiges Modul in Zeile 3");
    mistake.Result = Outcome::TooManyRows;
    mistake.Line = 221;
    EXPECT_EQ(message(Language::English), "/l/facilities.csv: one facility too many in line 221");
    EXPECT_EQ(message(Language::German), "/l/facilities.csv: ein Modul zu viel in Zeile 221");
    for (const Outcome silent : {Outcome::Read, Outcome::NotThere}) {
        mistake.Result = silent;
        EXPECT_EQ(message(Language::English), "");
    }
}
