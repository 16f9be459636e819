// SPDX-License-Identifier: MIT
// Archives that other programs made open here, and those made here open there. A test whose program is not
// installed is skipped.
#include "sources/LogbookArchive.h"
#include "sources/LogbookSource.h"
#include "support/ScriptedUser.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

bool IsInstalled(const std::string& program) {
    return std::system(("command -v " + program + " >/dev/null").c_str()) == 0;
}

class OtherZipPrograms : public testing::Test {
  protected:
    // Runs a command in the test's folder; false when it failed. Its output is in the file "output".
    bool Run(const std::string& command) const {
        const std::string in = "cd '" + Folder.Path().string() + "' && { ";
        return std::system((in + command + "; } >output 2>&1").c_str()) == 0;
    }

    std::string Output() const { return FileContent(Folder.Path() / "output"); }

    // The text of the logbook in an archive.
    std::string LogbookOf(const std::string& archive) {
        const auto source = ResolveSource(Folder / archive, Temp, User, {});
        return source ? FileContent(source->LogbookFile) : "(cancelled)";
    }

    void Save(const std::string& archive) {
        EntryTable entries;
        const CodePage codePage;
        const ArchiveContent content{.LogbookFile = Folder.Write("text", Text),
                                     .LogbookStamp = std::nullopt,
                                     .Filters = {},
                                     .Entries = entries,
                                     .FileCodePage = codePage};
        ASSERT_EQ(SaveLogbookArchive(Folder / archive, content, Temp, {}), "");
    }

    const std::string Text = std::string(5000, 'x') + "\r\nend";
    TemporaryFolder Folder;
    TempFolder Temp{std::filesystem::path(Folder.Path())};
    ScriptedUser User;
};

} // namespace

TEST_F(OtherZipPrograms, UnzipOpensWhatIsSavedHere) {
    if (!IsInstalled("unzip"))
        GTEST_SKIP() << "there is no unzip";
    Save("case 7.qorvix");
    EXPECT_TRUE(Run("unzip -t 'case 7.qorvix'")) << Output();
    EXPECT_TRUE(Run("unzip -o 'case 7.qorvix' -d unpacked")) << Output();
    EXPECT_EQ(FileContent(Folder / "unpacked/case 7.log"), Text);
    EXPECT_EQ(FileContent(Folder / "unpacked/case 7.fil"), "[Filters]\r\n");
    EXPECT_EQ(FileContent(Folder / "unpacked/case 7.cmt"), "[Comments]\r\n");
}

TEST_F(OtherZipPrograms, PythonOpensWhatIsSavedHere) {
    if (!IsInstalled("python3"))
        GTEST_SKIP() << "there is no python3";
    Save("K\xC3\xBChlung.qorvix");
    Folder.Write("list.py",
                 "import sys, zipfile\n"
                 "archive = zipfile.ZipFile(sys.argv[1])\n"
                 "assert archive.testzip() is None\n"
                 "for member in archive.infolist():\n"
                 "    utf8 = bool(member.flag_bits & 0x800)\n"
                 "    print(ascii(member.filename), member.compress_type, utf8, member.file_size)\n");
    EXPECT_TRUE(Run("python3 list.py K*.qorvix")) << Output();
    EXPECT_EQ(Output(), "'K\\xfchlung.log' 8 True 5005\n"
                        "'K\\xfchlung.fil' 8 True 11\n"
                        "'K\\xfchlung.cmt' 8 True 12\n");
}

TEST_F(OtherZipPrograms, ArchivesOfZipOpenHere) {
    if (!IsInstalled("zip"))
        GTEST_SKIP() << "there is no zip";
    for (const std::string method : {"-0", "-9"})
        for (const std::string name : {"a.log", "A.LOG", "logbook\\lb_act.log", "logbook/lb_act.log"}) {
            std::filesystem::create_directories(Folder / "logbook");
            Folder.Write(name, Text);
            EXPECT_TRUE(Run("rm -f made.qorvix && zip " + method + " made.qorvix '" + name + "'"))
                << Output();
            EXPECT_EQ(LogbookOf("made.qorvix"), Text) << method << " " << name;
        }
    EXPECT_TRUE(User.Messages.empty());
}

TEST_F(OtherZipPrograms, ServiceArchiveOfZipOpensHere) {
    if (!IsInstalled("zip"))
        GTEST_SKIP() << "there is no zip";
    std::filesystem::create_directories(Folder / "runtime");
    Folder.Write("runtime/operation.log", Text);
    EXPECT_TRUE(Run("zip -r sysroot.zip runtime && zip -0 SERVICE1.ZIP sysroot.zip")) << Output();
    EXPECT_EQ(LogbookOf("SERVICE1.ZIP"), Text);
}

TEST_F(OtherZipPrograms, ArchiveWrittenToAPipeOpensHere) {
    if (!IsInstalled("zip"))
        GTEST_SKIP() << "there is no zip";
    // Its members' sizes stand behind their data.
    Folder.Write("a.log", Text);
    EXPECT_TRUE(Run("zip - a.log 2>/dev/null | cat >made.qorvix")) << Output();
    EXPECT_EQ(LogbookOf("made.qorvix"), Text);
}
