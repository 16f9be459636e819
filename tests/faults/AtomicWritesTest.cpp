// SPDX-License-Identifier: MIT
// Files that take their places whole, as a disk sees it that records the calls: flushed before they get their
// names, the folder flushed behind that, and never to be read by more people than the file that is replaced.
#include "faults/FaultTest.h"
#include "faults/ProgramWindow.h"
#include "support/ZipWriter.h"

#include <algorithm>

namespace {

namespace fs = std::filesystem;

constexpr unsigned ForOwner = 0600;

class AtomicWrites : public FaultTest {
  protected:
    // Fails nothing, but records.
    Fault Recording() const { return {.Folder = Folder.Path().string(), .Calls = "", .Record = Record}; }

    std::vector<DiskCall> Run(const std::vector<std::string>& arguments) const {
        fs::remove(Record);
        std::string errors;
        EXPECT_EQ(RunTool(arguments, Recording(), errors), GoodEnd) << errors;
        return ReadRecord(Record);
    }

    // The file got its name by a rename: its content was flushed before, and its folder behind it.
    static void ExpectFlushes(const std::vector<DiskCall>& calls, const std::string& file) {
        const auto renamed = std::find_if(calls.begin(), calls.end(), [&](const DiskCall& call) {
            return call.Kind == 'r' && !call.From.empty() && call.Path == file;
        });
        ASSERT_NE(renamed, calls.end()) << file;
        const auto lastOf = [&](char kind) {
            return std::find_if(std::reverse_iterator(renamed), calls.rend(), [&](const DiskCall& call) {
                return call.Kind == kind && call.Path == renamed->From;
            });
        };
        const auto written = lastOf('w');
        const auto flushed = lastOf('f');
        ASSERT_NE(written, calls.rend()) << file;
        ASSERT_NE(flushed, calls.rend()) << file << " is not flushed";
        EXPECT_LT(flushed - calls.rbegin(), written - calls.rbegin())
            << file << " is written behind its flush";
        const std::string folder = fs::path(file).parent_path();
        EXPECT_TRUE(
            std::any_of(renamed, calls.end(),
                        [&](const DiskCall& call) { return call.Kind == 'f' && call.Path == folder; }))
            << "the folder of " << file << " is not flushed";
    }

    // Nobody but the owner may read the part files of a file before its permissions are given, and these
    // allow no more than `most` either. What is made beside the file is made by the program.
    void ExpectPrivate(const std::vector<DiskCall>& calls, const std::string& file, unsigned most) const {
        int seen = 0;
        for (const DiskCall& call : calls)
            if (call.Path != file && call.Path.starts_with(file)) {
                ++seen;
                EXPECT_EQ(call.Mode & ~most, 0U)
                    << call.Kind << " " << std::oct << call.Mode << " " << call.Path;
                if (call.Kind != 'p' && call.Kind != 'f') {
                    EXPECT_EQ(call.Mode & ~ForOwner, 0U) << call.Kind << " " << call.Path;
                }
            }
        EXPECT_GE(seen, 3) << file;
        EXPECT_EQ(Mode(file), most);
    }

    static unsigned Mode(const std::string& file) {
        return static_cast<unsigned>(fs::status(file).permissions());
    }

    static unsigned ModeOfNewFile() {
        const mode_t mask = umask(0);
        umask(mask);
        return 0666U & ~mask;
    }

    const std::string Record = Runtime + "/record";
    const std::string LogFile = Folder.Write("work/a.log", LogbookOf(500));
};

} // namespace

TEST_F(AtomicWrites, ArchiveAndWhatGoesIntoIt) {
    const std::string archive = Work + "/a.qorvix";
    const std::vector<DiskCall> calls = Run({"pack", LogFile, archive});
    ExpectFlushes(calls, archive);
    int inner = 0;
    for (const DiskCall& call : calls)
        if (call.Kind == 'r' && !call.From.empty() && call.Path != archive) {
            ExpectFlushes(calls, call.Path);
            ++inner;
        }
    EXPECT_EQ(inner, 2); // filters and comments
}

TEST_F(AtomicWrites, PrintedList) {
    const std::string list = Work + "/list.csv";
    ExpectFlushes(Run({"export", LogFile, "--format", "csv", "--output", list}), list);
    ExpectFlushes(Run({"find", LogFile, "1", "--output", list}), list);
}

TEST_F(AtomicWrites, StitchedLogbookAndItsComments) {
    const std::string archive = Work + "/older.qorvix";
    WriteZip(archive, {{"older.log", LogbookOf(500)}, {"older.cmt", "[Comments]\r\n 3 oil\r\n"}});
    const std::string newer = Folder.Write("work/newer.log", LogbookOf(600).substr(LogbookOf(400).size()));
    const std::vector<DiskCall> calls = Run({"stitch", archive, newer, "--output", Work + "/x.log"});
    ExpectFlushes(calls, Work + "/x.log");
    ExpectFlushes(calls, Work + "/x.cmt");
}

TEST_F(AtomicWrites, SettingsArchiveAndJournalOfTheWindow) {
    const std::string archive = Work + "/a.qorvix";
    ProgramWindow window({LogFile}, Variables(Recording()));
    window.UntilShown();
    window.Comment(1, "pump");
    const std::vector<DiskCall> journal = ReadRecord(Record);
    const auto ofJournal = [&](const DiskCall& call) {
        return call.Path.find("/comments-") != std::string::npos;
    };
    const auto written = std::find_if(journal.rbegin(), journal.rend(), [&](const DiskCall& call) {
        return ofJournal(call) && call.Kind == 'w';
    });
    const auto flushed = std::find_if(journal.rbegin(), journal.rend(), [&](const DiskCall& call) {
        return ofJournal(call) && call.Kind == 'f';
    });
    ASSERT_NE(flushed, journal.rend());
    EXPECT_LT(flushed - journal.rbegin(), written - journal.rbegin());
    EXPECT_EQ(flushed->Mode, ForOwner);
    EXPECT_TRUE(std::any_of(journal.begin(), journal.end(), [&](const DiskCall& call) {
        return call.Kind == 'f' && call.Path == fs::path(flushed->Path).parent_path();
    }));

    window.SaveAs(archive);
    window.UntilIdle();
    window.Close();
    EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);
    const std::vector<DiskCall> calls = ReadRecord(Record);
    ExpectFlushes(calls, archive);
    ExpectFlushes(calls, SettingsFile());
}

TEST_F(AtomicWrites, ListAndErrorTextsOfTheWindow) {
    const std::string list = Work + "/list.html";
    const std::string own = Folder / "data/VELTRANDOR/Qorvix/language";
    fs::create_directories(own);
    fs::create_directories(Work + "/control");
    std::ofstream(own + "/A_EN.XMT") << "old";
    std::ofstream(Work + "/control/A_EN.XMT") << "new";
    ProgramWindow window({LogFile}, Variables(Recording()));
    window.UntilShown();
    window.Trigger("mnuAnalysisExport");
    window.ChooseFile(list);
    window.UntilIdle();
    window.Trigger("mnuAnalysisErrorTexts");
    window.Until([](const Sight& sight) { return sight.Front == "frmErrorTexts"; }, "the dialog");
    window.Press("cmdFolder");
    window.ChooseFile(Work + "/control");
    window.Until([](const Sight& sight) { return sight.Front == "frmErrorTexts"; }, "the dialog");
    window.Press("cmdOK");
    window.Message();
    window.Press("OK");
    window.UntilIdle();
    window.Close();
    EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);
    const std::vector<DiskCall> calls = ReadRecord(Record);
    for (const std::string& file : {list, own + "/A_EN.XMT", own + "/A_EN.XMT.bak"})
        ExpectFlushes(calls, file);
    // What the person had is kept before the new one takes its place.
    const auto renamed = [&](const std::string& file) {
        return std::find_if(calls.begin(), calls.end(), [&](const DiskCall& call) {
            return call.Kind == 'r' && !call.From.empty() && call.Path == file;
        });
    };
    EXPECT_LT(renamed(own + "/A_EN.XMT.bak"), renamed(own + "/A_EN.XMT"));
}

TEST_F(AtomicWrites, PartFileIsNeverWiderThanWhatItReplaces) {
    for (const unsigned mode : {0600U, 0640U, 0644U}) {
        const std::string archive = Folder.Write("work/a.qorvix", "old");
        const std::string list = Folder.Write("work/list", "old");
        for (const std::string& file : {archive, list})
            fs::permissions(file, fs::perms(mode));
        ExpectPrivate(Run({"pack", LogFile, archive, "--drop-comments"}), archive, mode);
        ExpectPrivate(Run({"export", LogFile, "--output", list}), list, mode);
    }
}

TEST_F(AtomicWrites, NewFileHasTheUsualPermissions) {
    ExpectPrivate(Run({"pack", LogFile, Work + "/a.qorvix"}), Work + "/a.qorvix", ModeOfNewFile());
    ExpectPrivate(Run({"export", LogFile, "--output", Work + "/list"}), Work + "/list", ModeOfNewFile());
}

TEST_F(AtomicWrites, DiskThatCannotFlushIsWrittenTo) {
    for (const int error : {EINVAL, ENOSYS, EOPNOTSUPP}) {
        const std::string archive = Work + "/a.qorvix";
        std::string errors;
        EXPECT_EQ(RunTool({"pack", LogFile, archive}, {Folder.Path().string(), "f", error}, errors), GoodEnd);
        EXPECT_EQ(errors, "");
        EXPECT_TRUE(fs::exists(archive));
        fs::remove(archive);

        ProgramWindow window({LogFile}, Variables({Folder.Path().string(), "f", error}));
        window.UntilShown();
        window.Comment(1, "pump");
        EXPECT_EQ(window.See().Status, "Ready");
        window.SaveAs(archive);
        window.UntilIdle();
        window.Close();
        EXPECT_EQ(window.Program().WaitForEnd(), GoodEnd);
        EXPECT_TRUE(fs::exists(archive));
        EXPECT_NE(FileContent(SettingsFile()).find("MainIsMaximized"), std::string::npos);
        fs::remove(archive);
        fs::remove(SettingsFile());
    }
}

TEST_F(AtomicWrites, DiskWhoseFlushFailsLeavesTheOldFile) {
    const std::string archive = Folder.Write("work/a.qorvix", "old");
    std::string errors;
    EXPECT_EQ(RunTool({"pack", LogFile, archive, "--drop-comments"}, {Work, "f", EIO}, errors),
              (ProgramEnd{1, 0}));
    EXPECT_NE(errors.find("Input/output error"), std::string::npos) << errors;
    EXPECT_EQ(FileContent(archive), "old");
    EXPECT_EQ(NamesIn(Work), (std::vector<std::string>{"a.log", "a.qorvix"}));
}
