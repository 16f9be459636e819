// SPDX-License-Identifier: MIT
#include "cli/RunProgram.h"
#include "support/ReadText.h"
#include "support/TemporaryFolder.h"
#include "support/ZipWriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;

namespace {

class PackCommand : public testing::Test {
  protected:
    std::string Logbook() const {
        return Folder.Write("lb.log", Lines({Header("BERR:    a"), Header("BERR:    b"), Header("RESET:")}));
    }

    ProgramResult Pack(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), "pack");
        return RunCommandLineTool(arguments);
    }

    std::string Exported(const std::string& archive) const {
        return RunCommandLineTool({"export", archive, "--format", "csv", "--use-archive-filters"}).Output;
    }

    TemporaryFolder Folder;
    std::string Out = Folder / "out.qorvix";
};

} // namespace

TEST_F(PackCommand, ArchiveHoldsLogbookFiltersAndComments) {
    const std::string filters = Folder.Write("x.fil", "[Filters]\r\nI|8|0-1|||1\r\nH|8|1|||1\r\n");
    const std::string comments = Folder.Write("x.cmt", "[Comments]\r\n 1 \"gepr\xFC"
                                                       "ft, gut\"\r\n");
    const ProgramResult result = Pack({Logbook(), Out, "--filters", filters, "--comments", comments});
    EXPECT_EQ(result.ExitStatus, 0) << result.Errors;
    EXPECT_EQ(result.Output + result.Errors, "");
    EXPECT_EQ(Exported(Out), "index,type,event,data,sender,name,time,icon,highlighted,comment\r\n"
                             "0,4,Fatal,a,,,04.01.2010 12:34:56.789,4,false,\r\n"
                             "1,4,Fatal,b,,,04.01.2010 12:34:56.789,18,true,\"geprüft, gut\"\r\n");

    // An own archive passes on what it has.
    EXPECT_EQ(Pack({Out, Folder / "again.qorvix"}).ExitStatus, 0);
    EXPECT_EQ(Exported(Folder / "again.qorvix"), Exported(Out));
}

TEST_F(PackCommand, ServiceArchivesArePackedToo) {
    WriteZip(Folder / "service1.zip",
             {{"logbook\\lb_act.log", Lines({Header("BERR:    x"), Header("RESET:")})}});
    EXPECT_EQ(Pack({Folder / "service1.zip", Out}).ExitStatus, 0);
    EXPECT_THAT(Exported(Out), HasSubstr("0,4,Fatal,x,"));
}

TEST_F(PackCommand, FailuresAreTold) {
    const std::string damaged = Folder.Write("bad.cmt", "no header\r\n");

    EXPECT_EQ(Pack({Folder / "missing.log", Out}).ExitStatus, 1);
    EXPECT_THAT(Pack({Logbook(), Out, "--comments", damaged}).Errors,
                HasSubstr("File includes no comment information!"));
    EXPECT_THAT(Pack({Logbook(), Out, "--comments", Folder / "none.cmt", "--language", "de"}).Errors,
                HasSubstr("Fehler beim Zugriff auf das Logbuch"));
    EXPECT_THAT(Pack({Logbook(), Out, "--filters", damaged}).Errors,
                HasSubstr("File includes no filter informaion!"));
    EXPECT_THAT(Pack({Logbook(), Folder / "none/out.qorvix"}).Errors,
                HasSubstr("The archive could not be written"));
    EXPECT_FALSE(std::filesystem::exists(Out));
    EXPECT_EQ(Pack({Logbook()}).ExitStatus, 2);
}
