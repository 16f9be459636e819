// SPDX-License-Identifier: MIT
#include "sources/ZipArchive.h"

#include "comments/Comments.h"
#include "filter/FilterFile.h"
#include "sources/OwnArchive.h"
#include "support/Abilities.h"
#include "support/SmallFiles.h"
#include "support/TemporaryFolder.h"
#include "support/ZipWriter.h"

#include <gtest/gtest.h>

namespace {

constexpr Language English{Language::English};

std::string Refusal(const std::string& name, std::uint64_t size, std::uint64_t packed) {
    return std::string(ZipMember{name, size, packed}.Refusal(English, BoundsBesideLogbook()));
}

std::string Reason(TextId id) { return std::string(Text(id, English)); }

} // namespace

TEST(ZipMember, EachBoundIsTheLargestThatIsTaken) {
    constexpr std::uint64_t Most = std::uint64_t{4} << 30U;
    EXPECT_EQ(Refusal("a.log", Most, Most), "");
    EXPECT_EQ(Refusal("a.log", Most + 1, Most), Reason(TextId::ZipTooLarge));
    constexpr std::uint64_t Filters = FilterFileBounds::Bytes.File;
    EXPECT_EQ(Refusal("a.FIL", Filters, Filters), "");
    EXPECT_EQ(Refusal("a.FIL", Filters + 1, Filters), Reason(TextId::ZipFiltersTooLarge));
    constexpr std::uint64_t Comments = CommentsFileBounds.File;
    EXPECT_EQ(Refusal("a.cmt", Comments, Comments), "");
    EXPECT_EQ(Refusal("a.cmt", Comments + 1, Comments), Reason(TextId::ZipCommentsTooLarge));
}

TEST(ZipMember, WithoutBoundsEveryExtensionIsTheSame) {
    constexpr std::uint64_t Large = std::uint64_t{3} << 30U;
    EXPECT_EQ((ZipMember{"a.fil", Large, Large}.Refusal(English, {})), "");
    EXPECT_EQ((ZipMember{"a.cmt", Large, Large}.Refusal(English, {})), "");
}

TEST(ZipMember, DenseOnesAreTakenWhenSmall) {
    constexpr std::uint64_t Small = std::uint64_t{64} << 20U;
    EXPECT_EQ(Refusal("a.log", Small, 0), "");
    EXPECT_EQ(Refusal("a.log", Small + 1, 0), Reason(TextId::ZipTooDense));
    constexpr std::uint64_t Packed = 100'000;
    EXPECT_EQ(Refusal("a.log", 1000 * Packed, Packed), "");
    EXPECT_EQ(Refusal("a.log", 1000 * Packed + 1, Packed), Reason(TextId::ZipTooDense));
}

TEST(ZipArchive, MemberThatTheDiskHasNoRoomForLeavesNoFile) {
    NEEDS_FILE_SIZE_LIMIT();
    const TemporaryFolder folder;
    WriteZip(folder / "a.zip", {{"a.log", std::string(100'000, 'x')}});
    ZipArchive archive(folder / "a.zip", English, {});
    const std::string target = folder / "a.log";
    {
        const SmallFiles full(50'000);
        EXPECT_FALSE(archive.Unpack(0, target));
    }
    EXPECT_EQ(archive.Error(), Reason(TextId::ZipNotUnpacked));
    EXPECT_FALSE(std::filesystem::exists(target));
    EXPECT_TRUE(archive.Unpack(0, target));
    EXPECT_EQ(std::filesystem::file_size(target), 100'000U);
}
