// SPDX-License-Identifier: MIT
#include "rows/ListPlace.h"

#include "support/Abilities.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

TEST(ListPlace, SourcesAreNotReplaced) {
    NEEDS_LINKS();
    const TemporaryFolder folder;
    const std::vector<std::string> sources{"", folder.Write("a.log", "x"), folder.Write("b.zip", "x")};
    EXPECT_EQ(RefusalOfListPlace(sources[1], sources), TextId::ListInPlaceOfSource);
    std::filesystem::create_symlink(sources[2], folder / "link.csv");
    EXPECT_EQ(RefusalOfListPlace(folder / "link.csv", sources), TextId::ListInPlaceOfSource);
    EXPECT_EQ(RefusalOfListPlace(folder / "list.csv", sources), std::nullopt);
    EXPECT_EQ(RefusalOfListPlace(folder.Write("old.csv", "x"), sources), std::nullopt);
}

TEST(ListPlace, TheyAreNotReplacedThroughLinksEither) {
    NEEDS_LINKS();
    const TemporaryFolder folder;
    for (const char* const name : {"a.qorvix", "b.CMT", "c.fil"}) {
        folder.Write(name, "precious");
        std::filesystem::create_symlink(name, folder.Path() / "first");
        std::filesystem::create_symlink("first", folder.Path() / "list.csv");
        EXPECT_EQ(RefusalOfListPlace(folder / "list.csv", {}), TextId::ListInPlaceOfOther) << name;
        std::filesystem::remove(folder.Path() / "first");
        std::filesystem::remove(folder.Path() / "list.csv");
    }
}

TEST(ListPlace, ArchivesCommentsAndFiltersAreNotReplaced) {
    const TemporaryFolder folder;
    for (const char* const name : {"a.qorvix", "A.CMT", "a.fil"}) {
        EXPECT_EQ(RefusalOfListPlace(folder / name, {}), std::nullopt) << name;
        folder.Write(name, "x");
        EXPECT_EQ(RefusalOfListPlace(folder / name, {}), TextId::ListInPlaceOfOther) << name;
    }
}
