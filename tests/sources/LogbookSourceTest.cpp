// SPDX-License-Identifier: MIT
#include "sources/LogbookSource.h"

#include "base/Paths.h"
#include "base/UnicodeCase.h" // IsUtf8
#include "support/ScriptedUser.h"
#include "support/TemporaryFolder.h"
#include "support/ZipWriter.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <vector>

namespace {

using Members = std::vector<std::pair<std::string, std::string>>;

class LogbookSourceTest : public testing::Test {
  protected:
    std::string Zip(const std::string& name, const Members& members) {
        WriteZip(Folder / name, members);
        return Folder / name;
    }

    std::optional<LogbookSource> Resolve(const std::string& path) {
        const auto source = ResolveSource(path, Temp, User, Language{Language::English});
        EXPECT_EQ(User.StatusDepth, 0);
        return source;
    }

    std::string InTemp(const std::string& name) const { return (Temp.Path() / name).string(); }

    // The archive, with a member that claims to be so large.
    std::string Claiming(const std::string& archive, const std::string& member, std::uint32_t size) const {
        std::string bytes = FileContent(archive);
        constexpr std::size_t SizeInHeader = 24;
        constexpr std::size_t NameInHeader = 46;
        std::size_t header = bytes.find("PK\1\2");
        while (bytes.compare(header + NameInHeader, member.size(), member) != 0)
            header = bytes.find("PK\1\2", header + 1);
        for (std::size_t i = 0; i < sizeof size; ++i)
            bytes[header + SizeInHeader + i] = static_cast<char>(size >> 8U * i);
        return Folder.Write("claiming.qorvix", bytes);
    }

    // Says a message or asks a question only in the ways that opening does.
    void TearDown() override {
        for (const UserInterface::MessageIcon icon : User.Icons)
            EXPECT_EQ(icon, UserInterface::MessageIcon::Exclamation);
        for (const TextId question : User.Questions)
            EXPECT_EQ(question, TextId::AskReplaceFilters);
        for (const TextId status : User.Statuses)
            EXPECT_EQ(status, TextId::StatusExtracting);
    }

    // The content of the resolved logbook file; "(none)" when it does not exist.
    static std::string Logbook(const std::optional<LogbookSource>& source) {
        return FileExists(source->LogbookFile) ? FileContent(source->LogbookFile) : "(none)";
    }

    TemporaryFolder Folder;
    TempFolder Temp{Folder.Path()};
    ScriptedUser User;
};

} // namespace

TEST(IsArchive, IsToldByTheNamesEnd) {
    for (const char* name : {"SERVICE1.ZIP", "a.zip", "a.qorvix", "a.QorVix", ".zip"})
        EXPECT_TRUE(IsArchive(name)) << name;
    for (const char* name : {"x.zip.bak", "a.log", "zip", "qorvix", "a.zi", ""})
        EXPECT_FALSE(IsArchive(name)) << name;
}

TEST_F(LogbookSourceTest, MessagesNameTheArchiveAndTheMember) {
    const std::string plain = Folder.Write("a.log", "plain");
    EXPECT_EQ(Resolve(plain)->LogbookName, plain);
    const std::string own =
        Zip("own.qorvix", {{"x.LOG", "own"}, {"X.fil", "[Filters]"}, {"other/x.cmt", "[Comments]"}});
    User.Answers = {UserInterface::Answer::Yes};
    const std::optional<LogbookSource> source = Resolve(own);
    EXPECT_EQ(source->LogbookName, own + ": x.LOG");
    EXPECT_EQ(source->FilterName, own + ": X.fil");
    EXPECT_EQ(source->CommentsName, own + ": other\\x.cmt");
    const std::string older = Zip("service1.zip", {{"logbook/lb_act.log", "older"}});
    EXPECT_EQ(Resolve(older)->LogbookName, older + ": logbook\\lb_act.log");
    const std::string newer =
        Zip("service2.zip",
            {{"SysRoot.zip", FileContent(Zip("inner.zip", {{"runtime/operation.log", "newer"}}))}});
    EXPECT_EQ(Resolve(newer)->LogbookName, newer + ": SysRoot.zip: runtime\\operation.log");
}

TEST_F(LogbookSourceTest, PlainFileIsItsOwnLogbook) {
    Folder.Write("lb.act.cmt", "[Comments]");
    const std::string path = Folder.Write("lb.act.log", "text");
    const auto source = Resolve(path);
    EXPECT_EQ(source->Name, "lb");
    EXPECT_EQ(source->LogbookFile, path);
    EXPECT_EQ(source->CommentsFile, "");
    EXPECT_EQ(source->FilterFile, "");
    EXPECT_EQ(Resolve("name")->Name, "name");
}

TEST_F(LogbookSourceTest, NewerServiceArchiveHoldsAnArchive) {
    for (const std::string inner : {"runtime/operation.log", "runtime\\operation.log"})
        for (const std::string outer : {"sysroot.zip", "SysRoot.ZIP"}) {
            WriteZip(Folder / "inner.zip", {{"other", "x"}, {inner, "operation text"}});
            const auto source =
                Resolve(Zip("service1.zip", {{"readme", "x"}, {outer, FileContent(Folder / "inner.zip")}}));
            EXPECT_EQ(source->Name, "operation");
            EXPECT_EQ(source->LogbookFile, InTemp("operation.log"));
            EXPECT_EQ(Logbook(source), "operation text");
        }
    EXPECT_TRUE(User.Messages.empty());
}

TEST_F(LogbookSourceTest, OlderServiceArchiveHoldsTheLogbook) {
    for (const std::string member : {"logbook/lb_act.log", "logbook\\lb_act.log"}) {
        const auto source = Resolve(Zip("SERVICE2.ZIP", {{member, "classic text"}}));
        EXPECT_EQ(source->Name, "lb_act");
        EXPECT_EQ(source->LogbookFile, InTemp("lb_act.log"));
        EXPECT_EQ(Logbook(source), "classic text");
        EXPECT_EQ(source->CommentsFile, "");
    }
}

TEST_F(LogbookSourceTest, ServiceArchiveWithBothEndsAsTheClassicLogbook) {
    WriteZip(Folder / "inner.zip", {{"runtime/operation.log", "operation text"}});
    const auto source = Resolve(Zip("service.zip", {{"sysroot.zip", FileContent(Folder / "inner.zip")},
                                                    {"logbook/lb_act.log", "classic text"}}));
    EXPECT_EQ(source->Name, "lb_act");
    EXPECT_EQ(Logbook(source), "classic text");
}

TEST_F(LogbookSourceTest, OwnArchiveBringsCommentsAndFilters) {
    const Members members{{"base.log", "text"}, {"base.fil", "[Filters]"}, {"base.cmt", "[Comments]"}};
    User.Answers = {UserInterface::Answer::Yes, UserInterface::Answer::No};
    auto source = Resolve(Zip("my.qorvix", members));
    EXPECT_EQ(source->Name, "base");
    EXPECT_EQ(Logbook(source), "text");
    EXPECT_EQ(FileContent(source->FilterFile), "[Filters]");
    EXPECT_EQ(FileContent(source->CommentsFile), "[Comments]");
    source = Resolve(Zip("my.qorvix", members));
    EXPECT_EQ(source->FilterFile, "");
    EXPECT_EQ(FileContent(source->CommentsFile), "[Comments]");
    EXPECT_EQ(User.Questions.size(), 2U);
}

TEST_F(LogbookSourceTest, CancelLeavesEverythingAsItWas) {
    User.Answers = {UserInterface::Answer::Yes};
    const auto first = Resolve(Zip("a.qorvix", {{"base.log", "first"}, {"base.fil", "[Filters]"}}));
    User.Answers = {UserInterface::Answer::Cancel};
    EXPECT_FALSE(Resolve(Zip("b.qorvix", {{"base.log", "second"}, {"base.fil", "other"}})).has_value());
    EXPECT_EQ(Logbook(first), "first");
    EXPECT_EQ(FileContent(first->FilterFile), "[Filters]");
}

TEST_F(LogbookSourceTest, FilesOfAnEarlierArchiveNeverCount) {
    User.Answers = {UserInterface::Answer::Yes};
    Resolve(Zip("a.qorvix", {{"base.log", "first"}, {"base.fil", "[Filters]"}, {"base.cmt", "[Comments]"}}));
    const auto second = Resolve(Zip("b.qorvix", {{"base.log", "second"}}));
    EXPECT_EQ(Logbook(second), "second");
    EXPECT_EQ(second->CommentsFile, "");
    EXPECT_EQ(second->FilterFile, "");
    EXPECT_EQ(User.Questions.size(), 1U);
    EXPECT_FALSE(std::filesystem::exists(InTemp("base.fil")));
}

TEST_F(LogbookSourceTest, NoMemberNameLeadsOutsideTheFolder) {
    for (const std::string name :
         {"../../outside.log", "/etc/outside.log", "..\\..\\outside.log", "a/b/outside.log"}) {
        const auto source = Resolve(Zip("a.qorvix", {{name, "text"}}));
        EXPECT_EQ(source->LogbookFile, InTemp("outside.log"));
        EXPECT_EQ(Logbook(source), "text");
    }
    EXPECT_FALSE(std::filesystem::exists(Folder.Path().parent_path() / "outside.log"));
}

TEST_F(LogbookSourceTest, UpperCaseMembersOfOwnArchivesAreFound) {
    User.Answers = {UserInterface::Answer::Yes};
    const auto source = Resolve(Zip("a.qorvix", {{"BASE.LOG", "text"}, {"BASE.FIL", "[Filters]"}}));
    EXPECT_EQ(source->LogbookFile, InTemp("BASE.log"));
    EXPECT_EQ(FileContent(source->FilterFile), "[Filters]");
}

TEST_F(LogbookSourceTest, ArchiveWithoutLogbookIsToldOnce) {
    WriteZip(Folder / "inner.zip", {{"other", "x"}});
    const std::string paths[] = {Zip("a.zip", {{"readme", "x"}}),
                                 Zip("b.qorvix", {{"base.fil", "[Filters]"}}),
                                 Zip("c.zip", {{"sysroot.zip", FileContent(Folder / "inner.zip")}}),
                                 Zip("d.zip", {{"Logbook/lb_act.txt", "x"}})};
    for (const std::string& path : paths) {
        User.Messages.clear();
        const auto source = Resolve(path);
        EXPECT_EQ(Logbook(source), "(none)");
        EXPECT_EQ(User.Messages,
                  (std::vector<std::string>{"The archive contains no logbook file (" + path + ")"}));
    }
    EXPECT_TRUE(User.Questions.empty());
}

TEST_F(LogbookSourceTest, DamagedArchivesAreToldWithTheReason) {
    const std::string whole =
        FileContent(Zip("whole.qorvix", {{"base.log", std::string(5000, 'x') + "end"}}));
    std::string damaged = whole;
    damaged[50] = static_cast<char>(damaged[50] + 1);
    const std::string paths[] = {Folder.Write("none.zip", ""),
                                 Folder.Write("text.zip", "no archive"),
                                 Folder.Write("cut.qorvix", whole.substr(0, whole.size() - 10)),
                                 Folder.Write("damaged.qorvix", damaged),
                                 Folder / "missing.zip",
                                 Zip("inner.zip", {{"sysroot.zip", "no archive"}})};
    for (const std::string& path : paths) {
        User.Messages.clear();
        const auto source = Resolve(path);
        EXPECT_EQ(Logbook(source), "(none)") << path;
        ASSERT_EQ(User.Messages.size(), 1U) << path;
        EXPECT_TRUE(User.Messages[0].starts_with("The archive contains no logbook file (" + path + ": "))
            << User.Messages[0];
    }
}

TEST_F(LogbookSourceTest, MemberThatClaimsTooMuchIsRefused) {
    // 70 MiB of the same byte pack to far less than a thousandth.
    const auto source = Resolve(Zip("bomb.qorvix", {{"base.log", std::string(70U << 20U, 'x')}}));
    EXPECT_EQ(Logbook(source), "(none)");
    ASSERT_EQ(User.Messages.size(), 1U);
    EXPECT_TRUE(User.Messages[0].ends_with("claims more than a thousand times its packed size)"))
        << User.Messages[0];
    const auto small = Resolve(Zip("small.qorvix", {{"base.log", std::string(60U << 20U, 'x')}}));
    EXPECT_EQ(std::filesystem::file_size(small->LogbookFile), 60U << 20U);
}

TEST_F(LogbookSourceTest, FiltersAndCommentsHaveBoundsOfTheirOwn) {
    const std::string archive =
        Zip("a.qorvix", {{"base.log", "text"}, {"base.FIL", "[Filters]"}, {"base.cmt", "[Comments]"}});
    const auto refusal = [&](const std::string& member, std::uint32_t size, std::int32_t language) {
        User.Messages.clear();
        const std::string path = Claiming(archive, member, size);
        EXPECT_EQ(Logbook(ResolveSource(path, Temp, User, Language{language})), "(none)");
        const std::string begin =
            std::string(Text(TextId::ArchiveWithoutLogbook, {language})) + " (" + path + ": ";
        const std::string message = User.Messages.empty() ? "" : User.Messages[0];
        return message.starts_with(begin) ? message.substr(begin.size()) : message;
    };
    EXPECT_EQ(refusal("base.FIL", (64U << 20U) + 1, Language::English),
              "its filter list is larger than 64 MiB)");
    EXPECT_EQ(refusal("base.FIL", (64U << 20U) + 1, Language::German),
              "seine Filterliste ist größer als 64 MiB)");
    EXPECT_EQ(refusal("base.cmt", (2U << 30U) + 1, Language::English), "its comments are larger than 2 GiB)");
    EXPECT_EQ(refusal("base.cmt", (2U << 30U) + 1, Language::German),
              "seine Kommentare sind größer als 2 GiB)");
    // Below the bounds it is their content that is not as claimed.
    EXPECT_EQ(refusal("base.FIL", 60U << 20U, Language::English), "the archive is damaged)");
    EXPECT_EQ(refusal("base.cmt", 60U << 20U, Language::English), "the archive is damaged)");
    EXPECT_EQ(refusal("base.FIL", 5, Language::English), "the archive is damaged)");
}

TEST_F(LogbookSourceTest, NameThatNoFileCanHaveIsCutInTheTemporaryFolder) {
    std::string umlauts;
    for (int i = 0; i < 150; ++i)
        umlauts += "ü";
    for (const std::string& base : {std::string(300, 'x'), std::string(252, 'x'), umlauts, "x" + umlauts}) {
        User.Answers = {UserInterface::Answer::Yes};
        const auto source = Resolve(
            Zip("a.qorvix",
                {{base + ".log", "text"}, {base + ".fil", "[Filters]"}, {base + ".cmt", "[Comments]"}}));
        ASSERT_TRUE(source);
        EXPECT_EQ(source->Name, base);
        EXPECT_EQ(Logbook(source), "text");
        EXPECT_EQ(FileContent(source->FilterFile), "[Filters]");
        EXPECT_EQ(FileContent(source->CommentsFile), "[Comments]");
        const std::string name = PathText(ToPath(source->LogbookFile).stem());
        EXPECT_TRUE(base.starts_with(name)) << name;
        EXPECT_TRUE(IsUtf8(name)) << name;
    }
    EXPECT_TRUE(User.Messages.empty());
}

TEST_F(LogbookSourceTest, LongestNameOfAFileStays) {
    const std::string base(251, 'x');
    EXPECT_EQ(Resolve(Zip("a.qorvix", {{base + ".log", "text"}}))->LogbookFile, InTemp(base + ".log"));
}

TEST_F(LogbookSourceTest, WithoutATemporaryFolderNothingIsUnpacked) {
    const std::string path = Zip("service.zip", {{"logbook/lb_act.log", "text"}});
    const TempFolder none(Folder.Path() / "missing");
    ASSERT_TRUE(none.Path().empty());
    const auto source = ResolveSource(path, none, User, Language{Language::English});
    EXPECT_EQ(User.Messages, (std::vector<std::string>{"The archive contains no logbook file (" + path +
                                                       ": there is no temporary folder)"}));
    EXPECT_EQ(source->LogbookFile, "");
    EXPECT_FALSE(std::filesystem::exists("lb_act.log"));
}

TEST_F(LogbookSourceTest, NothingIsLeftBesideTheLogbook) {
    Resolve(Zip("a.qorvix", {{"base.log", "text"}, {"other", "x"}}));
    std::vector<std::string> names;
    for (const auto& item : std::filesystem::directory_iterator(Temp.Path()))
        names.push_back(item.path().filename().string());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{TempFolderMark::FileName, "base.log"}));
}

TEST_F(LogbookSourceTest, FileThatAPersonPutIntoTheTemporaryFolderStays) {
    Folder.Write("Qorvix/base.cmt", "the person's");
    const auto source = Resolve(Zip("a.qorvix", {{"base.log", "text"}, {"base.cmt", "[Comments]\r\n"}}));
    EXPECT_EQ(Logbook(source), "text");
    EXPECT_EQ(FileContent(source->CommentsFile), "[Comments]\r\n");
    EXPECT_EQ(FileContent(InTemp("base.cmt")), "the person's");
    // What does not come in its way does not.
    EXPECT_EQ(Resolve(Zip("b.qorvix", {{"base.log", "other"}}))->LogbookFile, InTemp("base.log"));
    EXPECT_EQ(FileContent(InTemp("base.cmt")), "the person's");
}

TEST_F(LogbookSourceTest, FilesOfAnEarlierArchiveGo) {
    Resolve(Zip("a.qorvix", {{"base.log", "text"}, {"base.cmt", "[Comments]\r\n"}}));
    EXPECT_TRUE(std::filesystem::exists(InTemp("base.cmt")));
    Resolve(Zip("b.qorvix", {{"base.log", "other"}}));
    EXPECT_FALSE(std::filesystem::exists(InTemp("base.cmt")));
}

TEST_F(LogbookSourceTest, MemberOfTheSystemArchiveIsFoundInAnyCase) {
    WriteZip(Folder / "SYSROOT.ZIP", {{"RUNTIME/OPERATION.LOG", "log"}});
    const std::string inner = FileContent(Folder / "SYSROOT.ZIP");
    EXPECT_EQ(Logbook(Resolve(Zip("service9.zip", {{"SYSROOT.ZIP", inner}}))), "log");
}

TEST_F(LogbookSourceTest, WhatLiesBesideTheLogbookBelongsToIt) {
    const auto source =
        Resolve(Zip("own9.qorvix", {{"a.log", "log"}, {"B/a.cmt", "other folder"}, {"a.cmt", "right"}}));
    ASSERT_TRUE(source);
    EXPECT_EQ(FileContent(source->CommentsFile), "right");
    const auto below =
        Resolve(Zip("own10.qorvix", {{"a.cmt", "above"}, {"B/a.log", "log"}, {"B/a.cmt", "right, too"}}));
    ASSERT_TRUE(below);
    EXPECT_EQ(FileContent(below->CommentsFile), "right, too");
}

TEST_F(LogbookSourceTest, ReasonsAreGermanToo) {
    const std::string path = Folder.Write("text.zip", "no archive at all, but long enough to be read as one");
    EXPECT_TRUE(ResolveSource(path, Temp, User, Language{Language::German}));
    EXPECT_EQ(User.Messages, (std::vector<std::string>{"Das Archiv enthält keine Logbuchdatei (" + path +
                                                       ": kein ZIP-Archiv)"}));
}
