// SPDX-License-Identifier: MIT
#include "document/FindErrorTexts.h"

#include "eventinfo/LanguageFile.h"
#include "support/Abilities.h"
#include "support/TemporaryFolder.h"
#include "support/ZipWriter.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>

namespace {

using testing::ElementsAre;
using Members = std::vector<std::pair<std::string, std::string>>;

class FindErrorTextsTest : public testing::Test {
  protected:
    // A service archive with these members, and in it that of the system with those.
    std::string Archive(Members outer, const Members& inner = {}) const {
        if (!inner.empty()) {
            WriteZip(Folder / "inner.zip", inner);
            outer.emplace_back("data/SYSROOT.zip", FileContent(Folder.Path() / "inner.zip"));
        }
        WriteZip(Folder / "service1.zip", outer);
        return Folder / "service1.zip";
    }

    // "place: content" of each file.
    std::vector<std::string> Found(const std::string& place) const {
        const auto source = FindErrorTexts(place, Temp, {});
        EXPECT_EQ(source->Problem(), "");
        std::vector<std::string> found;
        for (std::size_t file = 0; file < source->Files().size(); ++file) {
            std::string reason;
            found.push_back(source->Files()[file].PlaceName() + ": " +
                            source->Content(file, reason).value_or(reason));
        }
        return found;
    }
    std::string Problem(const std::string& place, Language language = {}) const {
        const auto source = FindErrorTexts(place, Temp, language);
        EXPECT_TRUE(source->Files().empty());
        return source->Problem();
    }

    TemporaryFolder Folder;
    TemporaryFolder TempParent;
    TempFolder Temp{TempParent.Path()};
};

TEST_F(FindErrorTextsTest, ArchiveAndTheSystemsArchiveInItAreSearched) {
    const std::string archive =
        Archive({{"logbook/lb_act.log", "x"}, {"texts\\GERMAN\\error.a", "outer"}, {"z/B_EN.XMT", "z"}},
                {{"texts/GERMAN/error.a", "inner"}, {"texts/A_DE.XMT", "a"}, {"b_en.xmt", "b"}});
    EXPECT_THAT(Found(archive), ElementsAre("B_EN.XMT: z", "GERMAN/error.a: outer", "A_DE.XMT: a"));
}

TEST_F(FindErrorTextsTest, WhatWasUnpackedGoesWithTheSource) {
    const std::string archive = Archive({}, {{"A_DE.XMT", "a"}});
    const auto items = [&] {
        return std::distance(std::filesystem::recursive_directory_iterator(Temp.Path()), {});
    };
    const auto before = items();
    auto source = FindErrorTexts(archive, Temp, {});
    EXPECT_GT(items(), before);
    source.reset();
    EXPECT_EQ(items(), before);
}

TEST_F(FindErrorTextsTest, PathsInAnArchiveLeadNowhere) {
    EXPECT_THAT(Found(Archive({{"../../A_DE.XMT", "a"}, {"/etc/GERMAN/fix.a", "b"}, {"C:\\B_EN.XMT", "c"}})),
                ElementsAre("B_EN.XMT: c", "A_DE.XMT: a", "GERMAN/fix.a: b"));
}

TEST_F(FindErrorTextsTest, LinksInAnArchiveAreLeft) {
    NEEDS_LINKS();
    std::filesystem::create_directory(Folder / "linked");
    std::filesystem::create_symlink("/etc/passwd", Folder / "linked/A_DE.XMT");
    Folder.Write("linked/B_DE.XMT", "b");
    const std::string command = "cd '" + Folder.Path().string() + "' && zip -qry linked.zip linked";
    ASSERT_EQ(std::system(command.c_str()), 0);
    EXPECT_THAT(Found(Folder / "linked.zip"), ElementsAre("B_DE.XMT: b"));
}

TEST_F(FindErrorTextsTest, LargerMembersThanTheControlsAreLeft) {
    const auto largest = static_cast<std::size_t>(LanguageFile::LargestSize);
    const std::string archive =
        Archive({{"A_DE.XMT", std::string(largest, 'a')}, {"B_DE.XMT", std::string(largest + 1, 'b')}});
    const auto source = FindErrorTexts(archive, Temp, {});
    ASSERT_EQ(source->Files().size(), 1U);
    EXPECT_EQ(source->Files()[0].Name, "A_DE.XMT");
    EXPECT_THAT(source->TooLarge(), ElementsAre("B_DE.XMT"));
    std::string reason;
    EXPECT_EQ(source->Content(0, reason)->size(), largest);
}

TEST_F(FindErrorTextsTest, FolderIsSearchedToo) {
    std::filesystem::create_directories(Folder / "texts/GERMAN");
    Folder.Write("texts/GERMAN/error.a", "a");
    EXPECT_THAT(Found(Folder.Path().string()), ElementsAre("GERMAN/error.a: a"));
}

TEST_F(FindErrorTextsTest, ArchiveThatCannotBeReadIsTold) {
    const std::string broken = Folder.Write("broken.zip", "no archive");
    EXPECT_EQ(Problem(broken), "not a zip archive");
    EXPECT_EQ(Problem(broken, {Language::German}), "kein ZIP-Archiv");
    EXPECT_EQ(Problem(Archive({{"A_EN.XMT", "a"}, {"sysroot.zip", "no archive"}})), "not a zip archive");
    EXPECT_NE(Problem(Folder / "missing"), "");
}

} // namespace
