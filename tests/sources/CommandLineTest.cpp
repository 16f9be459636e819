// SPDX-License-Identifier: MIT
#include "sources/CommandLine.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

CommandLine Parse(std::string_view line) {
    return ParseCommandLine(
        line, [](std::string_view word) { return word == "/log" || word.find('/', 1) != word.npos; });
}

using Words = std::vector<std::string>;

} // namespace

TEST(CommandLine, WordsAreSources) {
    EXPECT_EQ(Parse("").Sources, Words());
    EXPECT_EQ(Parse("a.log b.log").Sources, (Words{"a.log", "b.log"}));
    EXPECT_EQ(Parse("   a.log    b.log  ").Sources, (Words{"a.log", "b.log"}));
    EXPECT_FALSE(Parse("a.log").ShowUsage);
}

TEST(CommandLine, QuotesHoldBlanks) {
    EXPECT_EQ(Parse("\"C:\\Logs\\my log.log\"").Sources, (Words{"C:\\Logs\\my log.log"}));
    EXPECT_EQ(Parse("\"a b\"\"c d\" e").Sources, (Words{"a b", "c d", "e"}));
    EXPECT_EQ(Parse("\"abc").Sources, (Words{"abc"}));
    EXPECT_EQ(Parse("\"abc def").Sources, (Words{"abc def"}));
}

TEST(CommandLine, EmptyQuotesTakeTheRest) {
    EXPECT_EQ(Parse("\"\"").Sources, (Words{"\""}));
    EXPECT_EQ(Parse("\"\" a.log").Sources, (Words{"\" a.log"}));
    EXPECT_EQ(Parse("\"").Sources, Words());
}

TEST(CommandLine, OptionsWithXArePassedOver) {
    EXPECT_EQ(Parse("-x anything"), (CommandLine{{"anything"}, false, false}));
    EXPECT_EQ(Parse("/X"), CommandLine());
    EXPECT_EQ(Parse("-Xyz"), CommandLine());
}

TEST(CommandLine, EmbeddedNeverShowsTheUsage) {
    for (const char* line : {"-emb", "/EMBEDDED", "-Embx"})
        EXPECT_EQ(Parse(line), (CommandLine{{}, true, false})) << line;
    EXPECT_EQ(Parse("-y"), (CommandLine{{}, false, true}));
    EXPECT_EQ(Parse("-"), (CommandLine{{}, false, true}));
    EXPECT_EQ(Parse("-em"), (CommandLine{{}, false, true}));
    EXPECT_EQ(Parse("-y -emb"), (CommandLine{{}, true, false}));
    EXPECT_EQ(Parse("-emb -y"), (CommandLine{{}, true, false}));
    EXPECT_EQ(Parse("?"), (CommandLine{{}, false, true}));
    EXPECT_EQ(Parse("? -EMB"), (CommandLine{{}, true, false}));
}

TEST(CommandLine, SlashBeginsAFileOrAnOption) {
    EXPECT_EQ(Parse("/home/a.log").Sources, (Words{"/home/a.log"}));
    EXPECT_EQ(Parse("/log").Sources, (Words{"/log"}));
    EXPECT_TRUE(Parse("/logs").ShowUsage);
    const auto none = [](const std::string&) { return false; };
    EXPECT_EQ(ParseArguments({"/home/a.log", "/emb"}, none), (CommandLine{{"/home/a.log"}, true, false}));
    EXPECT_EQ(ParseArguments({"/emb"}, [](const std::string&) { return true; }),
              (CommandLine{{"/emb"}, false, false}));
}

TEST(CommandLine, AnArgumentThatNamesAFileIsThatFile) {
    const Words files = {
        "my \"press\" log.log", " lead.log", "\"a.log", "\"\"", "  ", "trail ", "a \" b", "\"q\"", "b.log"};
    const auto exists = [&](const std::string& name) {
        return std::find(files.begin(), files.end(), name) != files.end();
    };
    EXPECT_EQ(ParseArguments(files, exists), (CommandLine{files, false, false}));
    EXPECT_EQ(ParseArguments({"-emb", "\"\"", "-y", " lead.log"}, exists),
              (CommandLine{{"\"\"", " lead.log"}, true, false}));
}

TEST(CommandLine, OptionsAreNoFilesWhateverThereIs) {
    const auto all = [](const std::string&) { return true; };
    EXPECT_EQ(ParseArguments({"-emb", "./-emb"}, all), (CommandLine{{"./-emb"}, true, false}));
    EXPECT_EQ(ParseArguments({"?"}, all), (CommandLine{{}, false, true}));
}

TEST(CommandLine, OtherArgumentsAreOneCommandLine) {
    const auto exists = [](const std::string& name) { return name == "a.log" || name == "my \" log.log"; };
    const auto parse = [&](const Words& arguments) { return ParseArguments(arguments, exists).Sources; };
    EXPECT_EQ(parse({"no.log", "two words", "", "\"quoted\""}), (Words{"no.log", "two words", "quoted"}));
    EXPECT_EQ(parse({"a.log", "\"\"", "a.log", "my \" log.log"}), (Words{"a.log", "\" a.log my \" log.log"}));
    EXPECT_EQ(parse({"\"no", "a.log\"", "a.log"}), (Words{"no a.log", "a.log"}));
    EXPECT_EQ(parse({"\"-y", "a.log", "end\"", "a.log"}), (Words{"a.log"}));
}

TEST(CommandLine, ArgumentsAreJoinedWithQuotesRestored) {
    EXPECT_EQ(JoinArguments({}), "");
    EXPECT_EQ(JoinArguments({"a.log", "my log.log", "-emb"}), "a.log \"my log.log\" -emb");
    EXPECT_EQ(Parse(JoinArguments({"a.log", "my log.log"})).Sources, (Words{"a.log", "my log.log"}));
}

TEST(CommandLine, UsageHasThreeLines) {
    EXPECT_EQ(
        UsageText({Language::English}),
        "Qorvix command line parameters:\r\n\r\n <file name>: Log/Service file name\r\n -EMB: Embedded mode");
    EXPECT_EQ(UsageText({Language::German}), "Qorvix Kommandozeilenparameter:\r\n\r\n <file name>: "
                                             "Log-/Service-Zip Datiename\r\n -EMB: Embedded mode");
}
