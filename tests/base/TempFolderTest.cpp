// SPDX-License-Identifier: MIT
#include "base/TempFolder.h"

#include "base/Paths.h"
#include "support/Abilities.h"
#include "support/OtherProcess.h"
#include "support/OwnerAlone.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <memory>

namespace {

namespace fs = std::filesystem;
using testing::IsEmpty;
using testing::StartsWith;

constexpr const char* Mark = TempFolderMark::FileName;

// A file that is noted, as the program makes it.
void MakeFile(const TempFolder& folder, const fs::path& file) {
    if (!folder.Note({file}) || !std::ofstream(file).put('x').flush())
        std::_Exit(1);
}

// What a left folder has: an unpacked logbook, and one that is being unpacked.
void LeaveFiles(const TempFolder& folder) {
    MakeFile(folder, folder.Path() / "a.log");
    const fs::path sub = folder.MakeSubfolder();
    MakeFile(folder, sub / "b.log");
    std::ofstream(sub / "b.log.qorvix-part-0123456789abcdef") << "half";
}

// A folder as a copy of the program leaves it that is killed: without its end.
const OtherProcess::Known LeavesAFolder("LeavesAFolder", [](const std::vector<std::string>& parent) {
    static const TempFolder* const folder = new TempFolder(ToPath(parent.front()));
    return folder->Path().empty() ? 1 : 0;
});
const OtherProcess::Known LeavesFiles("LeavesFiles", [](const std::vector<std::string>& parent) {
    static const TempFolder* const folder = new TempFolder(ToPath(parent.front()));
    LeaveFiles(*folder);
    return 0;
});

void LeaveFolder(const TemporaryFolder& parent, const char* name = "LeavesAFolder") {
    ASSERT_EQ(OtherProcess(name, {PathText(parent.Path())}).End(), 0);
}

constexpr int Rounds = 2000;
const OtherProcess::Known ComesAndGoes("ComesAndGoes", [](const std::vector<std::string>& parent) {
    int without = 0;
    for (int i = 0; i < Rounds; ++i) {
        const TempFolder folder(ToPath(parent.front()));
        without += !fs::is_directory(folder.Path());
    }
    return without == 0 ? 0 : 1;
});

std::vector<std::string> NamesIn(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& item : fs::directory_iterator(folder))
        names.push_back(item.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

TEST(TempFolder, IsMadeForItsOwnerAndRemoved) {
    const TemporaryFolder parent;
    {
        const TempFolder folder(parent.Path());
        EXPECT_EQ(folder.Path(), parent.Path() / "Qorvix");
        EXPECT_TRUE(IsForOwnerAlone(folder.Path()));
        EXPECT_TRUE(IsForOwnerAlone(folder.Path() / Mark));
        EXPECT_TRUE(fs::is_directory(folder.MakeSubfolder()));
        MakeFile(folder, folder.Path() / "a.log");
        MakeFile(folder, folder.MakeSubfolder() / "b.log");
    }
    EXPECT_FALSE(fs::exists(parent.Path() / "Qorvix"));
}

TEST(TempFolder, SubfolderIsRemovedWithWhatIsNotedThere) {
    const TemporaryFolder parent;
    const TempFolder folder(parent.Path());
    const fs::path first = folder.MakeSubfolder();
    const fs::path second = folder.MakeSubfolder();
    MakeFile(folder, first / "a.log");
    MakeFile(folder, second / "a.log");
    parent.Write(second.lexically_relative(parent.Path()).string() + "/mine", "x");
    folder.RemoveSubfolder(first);
    folder.RemoveSubfolder(second);
    EXPECT_FALSE(fs::exists(first));
    EXPECT_EQ(NamesIn(second), std::vector<std::string>{"mine"});
    folder.RemoveSubfolder({});
    EXPECT_TRUE(fs::exists(folder.Path() / Mark));
}

TEST(TempFolder, WhatOthersPutThereStays) {
    const TemporaryFolder parent;
    {
        const TempFolder folder(parent.Path());
        MakeFile(folder, folder.Path() / "a.log");
        parent.Write("Qorvix/mine.log", "mine");
        fs::create_directories(folder.Path() / "notes");
        fs::create_directory(folder.Path() / "empty");
        EXPECT_FALSE(folder.Note({folder.Path() / "b.log", folder.Path() / "mine.log"}));
        parent.Write("Qorvix/b.log", "mine, too");
        folder.RemoveFile(folder.Path() / "mine.log");
    }
    EXPECT_EQ(NamesIn(parent.Path() / "Qorvix"),
              (std::vector<std::string>{"b.log", "empty", "mine.log", "notes"}));
    // It is no folder of the program any more.
    {
        const TempFolder next(parent.Path());
        EXPECT_THAT(next.Path().filename().string(), StartsWith("Qorvix-temp-"));
    }
    EXPECT_EQ(FileContent(parent.Path() / "Qorvix/mine.log"), "mine");
}

TEST(TempFolder, WhatACrashedCopyLeftIsRemoved) {
    const TemporaryFolder parent;
    LeaveFolder(parent, "LeavesFiles");
    EXPECT_EQ(NamesIn(parent.Path() / "Qorvix").size(), 3U);
    const TempFolder folder(parent.Path());
    EXPECT_EQ(folder.Path(), parent.Path() / "Qorvix");
    EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{Mark});
}

TEST(TempFolder, FolderWithoutAWholeMarkStays) {
    NEEDS_LINKS();
    const std::vector<std::pair<const char*, std::function<void(const fs::path&)>>> changes{
        {"no mark", [](const fs::path& folder) { fs::remove(folder / Mark); }},
        {"another text", [](const fs::path& folder) { std::ofstream(folder / Mark) << "Qorvix"; }},
        {"text behind",
         [](const fs::path& folder) { std::ofstream(folder / Mark) << "Qorvix made this folder, and more"; }},
        {"for others", [](const fs::path& folder) { fs::permissions(folder, fs::perms(0755)); }},
        {"mark for others", [](const fs::path& folder) { fs::permissions(folder / Mark, fs::perms(0644)); }},
        {"mark is a link",
         [](const fs::path& folder) {
             fs::rename(folder / Mark, folder.parent_path() / "mark");
             fs::create_symlink("../mark", folder / Mark);
         }},
        {"mark has two names",
         [](const fs::path& folder) { fs::create_hard_link(folder / Mark, folder.parent_path() / "mark"); }},
        {"a file", [](const fs::path& folder) { std::ofstream(folder / "mine") << "x"; }},
        {"a folder", [](const fs::path& folder) { fs::create_directory(folder / "mine"); }},
        {"a link", [](const fs::path& folder) { fs::create_symlink("a.log", folder / "mine"); }},
        {"a link for a file",
         [](const fs::path& folder) {
             fs::remove(folder / "a.log");
             fs::create_symlink("elsewhere", folder / "a.log");
         }},
        {"a folder for a file",
         [](const fs::path& folder) {
             fs::remove(folder / "a.log");
             fs::create_directory(folder / "a.log");
         }},
        {"a file in a subfolder",
         [](const fs::path& folder) {
             for (const auto& item : fs::directory_iterator(folder))
                 if (item.is_directory())
                     std::ofstream(item.path() / "mine") << "x";
         }},
    };
    for (const auto& [name, change] : changes) {
        SCOPED_TRACE(name);
        const TemporaryFolder parent;
        LeaveFolder(parent, "LeavesFiles");
        const fs::path left = parent.Path() / "Qorvix";
        change(left);
        const std::vector<std::string> before = NamesIn(left);
        for (int i = 0; i < 2; ++i) {
            const TempFolder folder(parent.Path());
            EXPECT_THAT(folder.Path().filename().string(), StartsWith("Qorvix-temp-"));
        }
        EXPECT_EQ(NamesIn(left), before);
        std::size_t files = 0;
        for (const auto& item : fs::recursive_directory_iterator(left))
            files += item.is_regular_file() && item.path().filename() == "b.log";
        EXPECT_EQ(files, 1U);
    }
}

TEST(TempFolder, WhatACopyLeftThatWasKilledWhileItMarkedIsRemoved) {
    for (const char* written : {"", "Qorvix made"}) {
        const TemporaryFolder parent;
        LeaveFolder(parent);
        parent.Write("Qorvix/.qorvix-temp", written);
        EXPECT_EQ(TempFolder(parent.Path()).Path(), parent.Path() / "Qorvix");
        EXPECT_THAT(NamesIn(parent.Path()), IsEmpty());
        // It had made nothing then.
        LeaveFolder(parent, "LeavesFiles");
        parent.Write("Qorvix/.qorvix-temp", written);
        EXPECT_THAT(TempFolder(parent.Path()).Path().filename().string(), StartsWith("Qorvix-temp-"));
        EXPECT_EQ(NamesIn(parent.Path() / "Qorvix").size(), 3U);
    }
}

TEST(TempFolder, NameThatWasCutOffCountsAsNone) {
    const TemporaryFolder parent;
    LeaveFolder(parent, "LeavesFiles");
    const std::string mark = FileContent(parent.Path() / "Qorvix" / Mark);
    parent.Write("Qorvix/.qorvix-temp", mark + "mine.lo");
    parent.Write("Qorvix/mine.lo", "x");
    EXPECT_THAT(TempFolder(parent.Path()).Path().filename().string(), StartsWith("Qorvix-temp-"));
    fs::remove(parent / "Qorvix/mine.lo");
    EXPECT_EQ(TempFolder(parent.Path()).Path(), parent.Path() / "Qorvix");
    EXPECT_THAT(NamesIn(parent.Path()), IsEmpty());
}

TEST(TempFolder, FolderWithWhatIsKeptStays) {
    NEEDS_LINKS();
    const TemporaryFolder parent;
    LeaveFolder(parent, "LeavesFiles");
    fs::create_directory(parent.Path() / "elsewhere");
    fs::create_symlink("../Qorvix/a.log", parent.Path() / "elsewhere/link.log");
    for (const char* kept : {"Qorvix/a.log", "Qorvix", "Qorvix/to be made/b.log", "elsewhere/link.log"}) {
        const TempFolder folder(parent.Path(), {"", parent / kept});
        EXPECT_THAT(folder.Path().filename().string(), StartsWith("Qorvix-temp-")) << kept;
        EXPECT_TRUE(fs::exists(parent.Path() / "Qorvix/a.log")) << kept;
    }
    const TempFolder folder(parent.Path(),
                            {parent / "Qorvix-other/a.log", parent.Path().string(), "Qorvix/a.log"});
    EXPECT_EQ(folder.Path(), parent.Path() / "Qorvix");
}

TEST(TempFolder, FolderThatWasOpenToOthersIsClosed) {
    NEEDS_PERMISSIONS();
    const TemporaryFolder parent;
    fs::create_directory(parent.Path() / "Qorvix");
    fs::permissions(parent.Path() / "Qorvix", fs::perms::all);
    const TempFolder folder(parent.Path());
    EXPECT_TRUE(IsForOwnerAlone(folder.Path()));
}

TEST(TempFolder, RunningCopyKeepsItsFolder) {
    const TemporaryFolder parent;
    const TempFolder first(parent.Path());
    MakeFile(first, first.Path() / "a.log");
    fs::path own;
    {
        const TempFolder second(parent.Path());
        own = second.Path();
        EXPECT_NE(own, first.Path());
        EXPECT_EQ(own.filename().string().size(), std::string("Qorvix-temp-XXXXXX").size());
        EXPECT_TRUE(own.filename().string().starts_with("Qorvix-temp-"));
        EXPECT_TRUE(IsForOwnerAlone(own));
    }
    EXPECT_FALSE(fs::exists(own));
    EXPECT_EQ(FileContent(parent.Path() / "Qorvix/a.log"), "x");
}

TEST(TempFolder, WhatCopiesLeftThatCrashedBesideOthersIsRemoved) {
    const TemporaryFolder parent;
    const TempFolder first(parent.Path());
    const TempFolder second(parent.Path());
    LeaveFolder(parent, "LeavesFiles");
    const std::vector<std::string> names = NamesIn(parent.Path());
    ASSERT_EQ(names.size(), 3U);
    const std::string left = parent.Path() / names[1] == second.Path() ? names[2] : names[1];
    for (const char* other :
         {"Qorvix-backup", "Qorvix-temp-AbCdEf", "Qorvix-temp-AbCdE", "Qorvix-temp-AbCdEfG"}) {
        fs::create_directory(parent.Path() / other);
        parent.Write(std::string(other) + "/a.log", "x");
    }
    // Another name, whatever is in there.
    fs::copy(parent.Path() / left, parent.Path() / "Qorvix-temp-Ab.dEf", fs::copy_options::recursive);
    fs::permissions(parent.Path() / "Qorvix-temp-Ab.dEf", fs::perms::owner_all);
    parent.Write("Qorvix-temp-file", "x");
    const TempFolder third(parent.Path());
    EXPECT_FALSE(fs::exists(parent.Path() / left));
    for (const char* other : {"Qorvix-backup/a.log", "Qorvix-temp-AbCdEf/a.log", "Qorvix-temp-AbCdE/a.log",
                              "Qorvix-temp-AbCdEfG/a.log", "Qorvix-temp-Ab.dEf/a.log", "Qorvix-temp-file"})
        EXPECT_TRUE(fs::exists(parent.Path() / other)) << other;
    for (const TempFolder* running : {&first, &second, &third})
        EXPECT_TRUE(fs::is_directory(running->MakeSubfolder()));
}

TEST(TempFolder, LinkIsNotFollowed) {
    NEEDS_LINKS();
    const TemporaryFolder parent;
    LeaveFolder(parent, "LeavesFiles");
    fs::rename(parent.Path() / "Qorvix", parent.Path() / "elsewhere");
    fs::create_symlink("elsewhere", parent.Path() / "Qorvix");
    {
        const TempFolder folder(parent.Path());
        EXPECT_TRUE(folder.Path().filename().string().starts_with("Qorvix-temp-"));
    }
    EXPECT_EQ(FileContent(parent.Path() / "elsewhere/a.log"), "x");
    EXPECT_TRUE(fs::is_symlink(parent.Path() / "Qorvix"));
}

TEST(TempFolder, FileInItsPlaceIsLeftAlone) {
    const TemporaryFolder parent;
    parent.Write("Qorvix", "x");
    const TempFolder folder(parent.Path());
    EXPECT_TRUE(folder.Path().filename().string().starts_with("Qorvix-temp-"));
    EXPECT_EQ(FileContent(parent.Path() / "Qorvix"), "x");
}

TEST(TempFolder, NoParentGivesNoFolder) {
    const TempFolder folder{std::filesystem::path()};
    EXPECT_TRUE(folder.Path().empty());
    EXPECT_FALSE(folder.Note({"a.log"}));
    EXPECT_FALSE(fs::exists("Qorvix"));
}

TEST(TempFolder, MissingParentGivesNoFolder) {
    const TemporaryFolder parent;
    const TempFolder folder(parent.Path() / "missing");
    EXPECT_TRUE(folder.Path().empty());
    EXPECT_TRUE(folder.MakeSubfolder().empty());
}

TEST(TempFolder, RemovedFolderIsMadeAnew) {
    NEEDS_REMOVING_OPEN_FILES();
    const TemporaryFolder parent;
    {
        const TempFolder folder(parent.Path());
        fs::remove_all(folder.Path());
        EXPECT_TRUE(fs::is_directory(folder.MakeSubfolder()));
        EXPECT_EQ(folder.Path(), parent.Path() / "Qorvix");
        // Held as the first was.
        EXPECT_NE(TempFolder(parent.Path()).Path(), folder.Path());
    }
    EXPECT_FALSE(fs::exists(parent.Path() / "Qorvix"));
}

TEST(TempFolder, FolderThatIsMadeAnewClearsNothing) {
    NEEDS_REMOVING_OPEN_FILES();
    const TemporaryFolder parent;
    const TempFolder folder(parent.Path());
    fs::remove_all(folder.Path());
    // A logbook in there may be shown now.
    LeaveFolder(parent, "LeavesFiles");
    EXPECT_TRUE(fs::is_directory(folder.MakeSubfolder()));
    EXPECT_THAT(folder.Path().filename().string(), StartsWith("Qorvix-temp-"));
    EXPECT_EQ(FileContent(parent.Path() / "Qorvix/a.log"), "x");
}

TEST(TempFolder, FolderOfAnotherCopyIsNotTakenForTheRemovedOne) {
    NEEDS_REMOVING_OPEN_FILES();
    const TemporaryFolder parent;
    auto first = std::make_unique<TempFolder>(parent.Path());
    fs::remove_all(first->Path());
    const TempFolder second(parent.Path());
    MakeFile(second, second.Path() / "a.log");
    EXPECT_EQ(second.Path(), parent.Path() / "Qorvix");
    const fs::path made = first->MakeSubfolder();
    EXPECT_TRUE(fs::is_directory(made));
    EXPECT_EQ(made.parent_path(), first->Path());
    EXPECT_NE(first->Path(), second.Path());
    first.reset();
    EXPECT_FALSE(fs::exists(made.parent_path()));
    EXPECT_EQ(FileContent(parent.Path() / "Qorvix/a.log"), "x");
}

TEST(TempFolder, EndLeavesTheFolderOfAnotherCopyAlone) {
    NEEDS_REMOVING_OPEN_FILES();
    const TemporaryFolder parent;
    auto first = std::make_unique<TempFolder>(parent.Path());
    MakeFile(*first, first->Path() / "a.log");
    fs::remove_all(first->Path());
    const TempFolder second(parent.Path());
    MakeFile(second, second.Path() / "a.log");
    first.reset();
    EXPECT_EQ(FileContent(parent.Path() / "Qorvix/a.log"), "x");
}

TEST(TempFolder, ParentThatComesBackGivesAFolder) {
    const TemporaryFolder parent;
    const TempFolder folder(parent.Path() / "missing");
    fs::create_directory(parent.Path() / "missing");
    EXPECT_TRUE(fs::is_directory(folder.MakeSubfolder()));
}

TEST(TempFolder, CopiesThatComeAndGoAlwaysHaveAFolder) {
    constexpr int Copies = 3;
    const TemporaryFolder parent;
    std::vector<OtherProcess> copies;
    for (int i = 0; i < Copies; ++i)
        copies.emplace_back("ComesAndGoes", std::vector<std::string>{PathText(parent.Path())});
    for (OtherProcess& copy : copies)
        EXPECT_EQ(copy.End(), 0);
    EXPECT_TRUE(fs::is_empty(parent.Path()));
}
