// SPDX-License-Identifier: MIT
// The completion for bash, asked as bash asks it. What bash would do with names of files is shown as the
// option that is set for that.
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace {

using testing::HasSubstr;

// What completes the last word of a command line, each followed by a line end. bash parts words at "=" too.
std::string CompletionsOf(const std::vector<std::string>& words) {
    const TemporaryFolder folder;
    std::string script = "compopt() { echo \"$@\"; }\n"
                         "source '" QORVIX_SOURCE_FOLDER "/packaging/linux/qorvix-cli.bash'\n"
                         "COMP_WORDS=(qorvix-cli";
    for (const std::string& word : words)
        script += " '" + word + "'";
    script += ")\nCOMP_CWORD=" + std::to_string(words.size()) +
              "\n_qorvix_cli\n[ ${#COMPREPLY[@]} -eq 0 ] || printf '%s\\n' \"${COMPREPLY[@]}\"\n";
    const std::string command =
        "bash --norc '" + folder.Write("script", script) + "' >'" + folder / "output" + "' 2>&1";
    const int status = std::system(command.c_str());
    return status == 0 ? FileContent(folder / "output") : "status " + std::to_string(status);
}

} // namespace

TEST(Completion, Commands) {
    EXPECT_EQ(CompletionsOf({""}),
              "export\nfind\nsessions\nerrors\nlookup\npack\nstitch\n--help\n--version\n");
    EXPECT_EQ(CompletionsOf({"exp"}), "export\n");
}

TEST(Completion, OptionsAreThoseOfTheCommand) {
    EXPECT_EQ(CompletionsOf({"find", "--w"}), "--whole-word\n");
    EXPECT_EQ(CompletionsOf({"export", "--w"}), "");
    EXPECT_EQ(CompletionsOf({"lookup", "--l"}), "--language\n--language-folder\n");
    EXPECT_THAT(CompletionsOf({"pack", "-"}), HasSubstr("--comments\n"));
    EXPECT_EQ(CompletionsOf({"errors", "--t"}), "--top\n--type\n");
    EXPECT_EQ(CompletionsOf({"sessions", "--p"}), "--partial\n");
    EXPECT_EQ(CompletionsOf({"stitch", "--o"}), "--output\n");
}

TEST(Completion, ValuesOfOptionsInBothForms) {
    EXPECT_EQ(CompletionsOf({"export", "--language", ""}), "en\nde\n");
    EXPECT_EQ(CompletionsOf({"export", "--language", "="}), "en\nde\n");
    EXPECT_EQ(CompletionsOf({"export", "--language", "=", "d"}), "de\n");
    EXPECT_EQ(CompletionsOf({"find", "--format", "c"}), "csv\n");
    EXPECT_EQ(CompletionsOf({"find", "--format", "=", "j"}), "jsonl\n");
    EXPECT_EQ(CompletionsOf({"find", "--format", "h"}), "html\n");
    EXPECT_EQ(CompletionsOf({"sessions", "--format", ""}), "text\njsonl\ncsv\n");
    EXPECT_EQ(CompletionsOf({"errors", "--type", "w"}), "warning\n");
    EXPECT_EQ(CompletionsOf({"stitch", "--format", ""}), "text\njsonl\n");
    EXPECT_EQ(CompletionsOf({"export", "--separator", ""}), "comma\nsemicolon\ntab\n");
    EXPECT_EQ(CompletionsOf({"export", "--b"}), "--bom\n");
}

TEST(Completion, NamesOfFilesAreLeftToTheShell) {
    EXPECT_EQ(CompletionsOf({"export", "my lo"}), "-o default\n");
    EXPECT_EQ(CompletionsOf({"export", "--filters", "=", "my lo"}), "-o default\n");
    EXPECT_EQ(CompletionsOf({"lookup", "--language-folder", ""}), "-o dirnames\n");
    EXPECT_EQ(CompletionsOf({"lookup", "--language-folder", "=", "my"}), "-o dirnames\n");
}
