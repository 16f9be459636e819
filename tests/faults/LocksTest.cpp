// SPDX-License-Identifier: MIT
// Disks that have other locks than the local one, or none: of a network, which locks only what is open for
// writing, or answers that it knows no locks.
#include "faults/FaultTest.h"
#include "faults/ProgramWindow.h"
#include "support/ZipReader.h"
#include "support/ZipWriter.h"

#include <nlohmann/json.hpp>

#include <cerrno>

#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr const char* Question = "Comments on this logbook were not saved the last time. Restore them?";

class Locks : public FaultTest, public testing::WithParamInterface<std::pair<std::string, int>> {
  protected:
    // Locks fail everywhere, as the parameter has it.
    Fault WithoutLocks() const { return {Folder.Path().string(), GetParam().first, GetParam().second}; }

    void EnterAndKill(const std::string& comment) const {
        ProgramWindow window({LogFile}, Variables(WithoutLocks()));
        window.UntilShown();
        window.Comment(1, comment);
        EXPECT_EQ(window.See().Status, "Ready");
        window.Program().Kill();
        EXPECT_EQ(window.Program().WaitForEnd(), KilledEnd);
    }

    const std::string LogFile = Folder.Write("work/a.log", LogbookOf(3));
    const std::string Journal = State + "/VELTRANDOR/Qorvix";
};

} // namespace

TEST_P(Locks, SettingsAreSaved) {
    ProgramWindow window({LogFile}, Variables(WithoutLocks()));
    window.UntilShown();
    window.Select(0);
    window.Trigger("mnuPopupRemove");
    window.UntilRows(2);
    window.Close();
    EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);
    const auto settings = nlohmann::json::parse(FileContent(SettingsFile()));
    EXPECT_EQ(settings["Logbook"]["MainIsMaximized"], 0);
    EXPECT_EQ(settings["Logbook"]["Filters"]["FilterCount"], 2);
    EXPECT_EQ(NamesIn(Temp), std::vector<std::string>());
}

TEST_P(Locks, LostCommentsAreOffered) {
    EnterAndKill("pump");
    ProgramWindow window({LogFile}, Variables(WithoutLocks()));
    EXPECT_EQ(window.Message(), Question);
    window.Press("Yes");
    EXPECT_EQ(window.UntilIdle().Column(6), (std::vector<std::string>{"", "pump", ""}));
    window.SaveAs(Work + "/a.qorvix");
    window.UntilIdle();
    EXPECT_EQ(NamesIn(Journal), std::vector<std::string>());
}

TEST_P(Locks, CommentsOfACopyThatRunsAreNotOffered) {
    ProgramWindow first({LogFile}, Variables(WithoutLocks()));
    first.UntilShown();
    first.Comment(2, "mine");
    ProgramWindow second({LogFile}, Variables(WithoutLocks()));
    EXPECT_EQ(second.UntilShown().Column(6), std::vector<std::string>(3));
    EXPECT_EQ(NamesIn(Journal).size(), 1U);
}

TEST_P(Locks, FilesOfACopyThatRunsStay) {
    const std::string archive = Work + "/a.qorvix";
    WriteZip(archive, {{"a.log", LogbookOf(3)}});
    ProgramWindow first({archive}, Variables(WithoutLocks()));
    first.UntilRows(3);
    const std::vector<std::string> before = NamesIn(Temp + "/Qorvix");
    std::string errors;
    EXPECT_EQ(RunTool({"pack", archive, Work + "/b.qorvix"}, WithoutLocks(), errors), GoodEnd);
    EXPECT_EQ(errors, "");
    EXPECT_EQ(NamesIn(Temp), std::vector<std::string>{"Qorvix"});
    EXPECT_EQ(NamesIn(Temp + "/Qorvix"), before);
    first.Close();
    EXPECT_EQ(first.Program().WaitForEnd(), GoodEnd);
    EXPECT_EQ(NamesIn(Temp), std::vector<std::string>());
}

INSTANTIATE_TEST_SUITE_P(Disks, Locks,
                         testing::Values(std::pair("n", EBADF), std::pair("k", ENOLCK),
                                         std::pair("k", EOPNOTSUPP), std::pair("k", ENOSYS),
                                         std::pair("k", EINVAL)));

// A part file of a copy that may be running must not be removed where nobody can tell.
class PartFilesWithoutLocks : public FaultTest {};

TEST_F(PartFilesWithoutLocks, StayWhereNobodyCanTellWhoseTheyAre) {
    const std::string log = Folder.Write("work/a.log", LogbookOf(3));
    const std::string part = Folder.Write("work/a.qorvix.qorvix-part-0123456789abcdef", "half");
    std::string errors;
    EXPECT_EQ(RunTool({"pack", log, Work + "/a.qorvix"}, {Work, "k", ENOLCK}, errors), GoodEnd);
    EXPECT_EQ(FileContent(part), "half");
    // With locks it is one that a killed program left.
    EXPECT_EQ(RunTool({"pack", log, Work + "/a.qorvix"}, {}, errors), GoodEnd);
    EXPECT_EQ(NamesIn(Work), (std::vector<std::string>{"a.log", "a.qorvix"}));
}

// Signals that come without an end.
TEST_F(PartFilesWithoutLocks, LockThatIsInterruptedEachTimeIsGivenUp) {
    const std::string log = Folder.Write("work/a.log", LogbookOf(3));
    std::string errors;
    EXPECT_EQ(RunTool({"pack", log, Work + "/a.qorvix"}, {Work, "k", EINTR}, errors), GoodEnd);
    EXPECT_EQ(NamesIn(Work), (std::vector<std::string>{"a.log", "a.qorvix"}));
}
