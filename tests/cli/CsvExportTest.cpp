// SPDX-License-Identifier: MIT
// CSV as spreadsheets take it apart, whatever they think the separator is.
#include "cli/RunProgram.h"
#include "support/ReadText.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

using testing::HasSubstr;
using testing::StartsWith;

namespace {

class CsvExport : public testing::Test {
  protected:
    // The list of a logbook with one entry of each of these data texts.
    std::string Export(const std::vector<std::string>& data, std::vector<std::string> options = {}) {
        std::vector<std::string> lines;
        for (const std::string& text : data)
            lines.push_back(Header("BERR:    " + text));
        options.insert(options.begin(), {"export", Folder.Write("a.log", Lines(lines)), "--format", "csv"});
        const ProgramResult result = RunCommandLineTool(options);
        EXPECT_EQ(result.ExitStatus, 0);
        EXPECT_EQ(result.Errors, "");
        return result.Output;
    }

    // The data field of an entry as it stands in the file.
    std::string Field(const std::string& data, const std::vector<std::string>& options = {}) {
        const std::string list = Export({data, "end"}, options);
        const std::size_t begin = list.find("Fatal") + 6;
        return list.substr(begin, list.find(std::string(3, list[begin - 1]) + "04.01.", begin) - begin);
    }

    TemporaryFolder Folder;
};

// The cells that a program makes of the text. With `quotes`, a cell that begins with a quotation mark goes on
// to the next single one, and what stands behind that is added to it.
std::vector<std::string> Cells(const std::string& text, char separator, bool quotes) {
    std::vector<std::string> cells(1);
    bool inQuotes = false;
    bool begins = true;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (quotes && c == '"' && (begins || inQuotes)) {
            const bool isDoubled = inQuotes && i + 1 < text.size() && text[i + 1] == '"';
            if (isDoubled)
                cells.back() += text[++i];
            else
                inQuotes = !inQuotes;
            begins = false;
        } else if (!inQuotes && (c == separator || c == '\r' || c == '\n')) {
            cells.emplace_back();
            begins = true;
        } else {
            cells.back() += c;
            begins = false;
        }
    }
    return cells;
}

bool IsFormula(std::string cell) {
    cell.erase(0, cell.find_first_not_of(" \"\v\u00A0"));
    return !cell.empty() && std::string("=+-@").find(cell.front()) != std::string::npos;
}

} // namespace

TEST_F(CsvExport, FormulasAreGuardedWhereverACellMayBegin) {
    EXPECT_EQ(Field(";=1+1;"), "\";'=1+1;\"");
    EXPECT_EQ(Field("a; =1"), "\"a; '=1\"");
    EXPECT_EQ(Field("a;\"=1\""), "\"a;\"\"'=1\"\"\"");
    EXPECT_EQ(Field("a,+1"), "\"a,'+1\"");
    EXPECT_EQ(Field("a\t-1"), "\"a\t'-1\"");
    EXPECT_EQ(Field("a;;\t @b"), "\"a;;'\t '@b\"");
    EXPECT_EQ(Field("a;\v=1"), "\"a;\v'=1\"");
    EXPECT_EQ(Field("a;\xA0=1"), "\"a;\u00A0'=1\"");
    EXPECT_EQ(Field("\"=1\""), "\"\"\"'=1\"\"\"");
    EXPECT_EQ(Field("a;b=1-2"), "\"a;b=1-2\"") << "no formula in the middle of a cell";
    EXPECT_EQ(Field("a=1 -2 @c"), "a=1 -2 @c");
}

TEST_F(CsvExport, RawLeavesFormulasButQuotesSeparators) {
    EXPECT_EQ(Field(";=1+1;", {"--raw"}), "\";=1+1;\"");
    EXPECT_EQ(Field("=1", {"--raw"}), "=1");
    EXPECT_EQ(Field("\tx", {"--raw"}), "\"\tx\"");
}

TEST_F(CsvExport, NoCellIsAFormulaHoweverTheListIsTakenApart) {
    const std::vector<std::string> data = {
        "=1",        ";=1+1;",      "a;=1",       ",=1",        "a,b,-c,=d", "\t=1",
        "x\t+1",     "a; =1",       "a;\"=1\"",   "a;\"\"=1",   "\"a\";=1",  "\"a;=1\"",
        "\";=1",     "a\",\"=1\"",  "a\"\t\"+b",  "\"=1\"",     "a;\v-1",    ";;=1",
        ",;\t@x",    "a;\xA0=1",    "a\";\"\"=1", "'=1",        "a;'=1",     "@x;@y,@z\t@0",
        "a\";=1;\"", "\",=1,\"\t+", "\"\"\"=",    "\"\"\";\"=", "x"};
    for (const std::string option : {"comma", "semicolon", "tab"}) {
        const std::string list = Export(data, {"--separator", option});
        for (const char separator : {',', ';', '\t'})
            for (const bool quotes : {true, false})
                for (const std::string& cell : Cells(list, separator, quotes))
                    EXPECT_FALSE(IsFormula(cell))
                        << testing::PrintToString(cell) << " with " << option << " as '" << separator << "'";
        // Taken apart as it was written, nothing but the guards is new.
        const std::string raw = Export(data, {"--separator", option, "--raw"});
        const char separator = option == "tab" ? '\t' : option == "comma" ? ',' : ';';
        const std::vector<std::string> cells = Cells(raw, separator, true);
        std::size_t found = 0;
        for (const std::string& text : data)
            found += std::count(cells.begin(), cells.end(), text == "a;\xA0=1" ? "a;\u00A0=1" : text) != 0;
        EXPECT_EQ(found, data.size());
        EXPECT_EQ(std::count_if(cells.begin(), cells.end(), IsFormula) != 0, true) << "the check can fail";
    }
}

TEST_F(CsvExport, SeparatorStandsBetweenAllFields) {
    EXPECT_EQ(Export({"a,b"}, {"--separator", "semicolon"}),
              "index;type;event;data;sender;name;time;icon;highlighted;comment\r\n"
              "0;4;Fatal;\"a,b\";;;04.01.2010 12:34:56.789;4;false;\r\n");
    EXPECT_EQ(Export({"a;b"}, {"--separator", "tab"}),
              "index\ttype\tevent\tdata\tsender\tname\ttime\ticon\thighlighted\tcomment\r\n"
              "0\t4\tFatal\t\"a;b\"\t\t\t04.01.2010 12:34:56.789\t4\tfalse\t\r\n");
    EXPECT_EQ(Export({"a"}, {"--separator", "comma"}), Export({"a"}));
}

TEST_F(CsvExport, ByteOrderMarkIsTheBeginning) {
    EXPECT_EQ(Export({"a"}, {"--bom"}), "\xEF\xBB\xBF" + Export({"a"}));
}

TEST_F(CsvExport, OptionsOfCsvAreWrongWithoutIt) {
    const std::string file = Folder.Write("a.log", Lines({Header("RESET:")}));
    const std::vector<std::string> wrong[] = {{"--bom"},
                                              {"--bom", "--format", "jsonl"},
                                              {"--separator", "tab"},
                                              {"--format", "jsonl", "--separator", "comma"}};
    for (std::vector<std::string> arguments : wrong)
        for (const bool finds : {false, true}) {
            std::vector<std::string> all = arguments;
            all.insert(all.begin(), {finds ? "find" : "export", file});
            if (finds)
                all.push_back("x");
            const ProgramResult result = RunCommandLineTool(all);
            EXPECT_EQ(result.ExitStatus, 2);
            EXPECT_EQ(result.Output, "");
            EXPECT_THAT(result.Errors, HasSubstr(" is for --format csv only\n"));
        }
    EXPECT_EQ(RunCommandLineTool({"export", file, "--format", "csv", "--separator", ";"}).ExitStatus, 2);
    EXPECT_THAT(
        RunCommandLineTool({"find", file, "Restart", "--separator", "semicolon", "--format", "csv"}).Output,
        StartsWith("index;type;"));
}
