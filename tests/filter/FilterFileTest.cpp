// SPDX-License-Identifier: MIT
#include "filter/FilterFile.h"

#include "base/FileProblem.h"
#include "filter/FilterText.h"
#include "support/Abilities.h"
#include "support/LittleMemory.h"
#include "support/OddFiles.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

using Outcome = FilterFileContent::Outcome;

class FilterFile : public testing::Test {
  protected:
    FilterFileContent Import(std::string_view content) const {
        return ImportFilterFile(Folder.Write("a.fil", content), CodePage());
    }

    // The filters in their text form, one a line.
    static std::string Texts(const FilterFileContent& content) {
        std::string texts;
        for (const FilterDefinition& filter : content.Filters)
            texts += FormatFilter(filter) + "\n";
        return texts;
    }

    // A file of so many filters.
    std::string Many(std::size_t count, const std::string& filter) const {
        std::string text = "[Filters]\r\n";
        for (std::size_t i = 0; i < count; ++i)
            text += filter + "\r\n";
        return Folder.Write("many.fil", text);
    }

    void ExpectCannotRead(const std::string& path, const std::error_code& error) const {
        const FilterFileContent content = ImportFilterFile(path, CodePage());
        EXPECT_EQ(content.Result, Outcome::CannotRead) << path;
        EXPECT_EQ(content.Error, error) << path;
    }

    TemporaryFolder Folder;
};

const FilterDefinition Numbered{FilterActions::Exclude, FilterTypes::Numbers, "1,3,5", "", "", true};
const FilterDefinition WithText{FilterActions::Exclude, 3, "N938", "", "", true};

} // namespace

TEST_F(FilterFile, ExportWritesHeaderAndLines) {
    const std::string path = Folder / "a.fil";
    const std::vector<FilterDefinition> filters{{FilterActions::Include, 0, "Kühlung", "", "", true},
                                                {FilterActions::Highlight, 8, "1-3", "", "", false}};
    EXPECT_FALSE(ExportFilterFile(path, filters, CodePage()));
    EXPECT_EQ(FileContent(path), "[Filters]\r\nI|0|K\xFChlung|||1\r\nH|8|1-3|||0\r\n");
    const FilterFileContent content = ImportFilterFile(path, CodePage());
    EXPECT_EQ(content.Result, Outcome::Read);
    EXPECT_EQ(content.Filters, filters);
}

TEST_F(FilterFile, BothLineEndsAreRead) {
    EXPECT_EQ(Texts(Import("[Filters]\r\nI|0||||1\r\nX|3|a|||1")), "I|0||||1\nX|3|a|||1\n");
    EXPECT_EQ(Texts(Import("[Filters]\nI|0||||1\nX|3|a|||1\n")), "I|0||||1\nX|3|a|||1\n");
    EXPECT_EQ(Import("[Filters]").Result, Outcome::Read);
}

TEST_F(FilterFile, EmptyFileIsAnEmptyList) {
    const FilterFileContent content = Import("");
    EXPECT_EQ(content.Result, Outcome::Read);
    EXPECT_TRUE(content.Filters.empty());
}

TEST_F(FilterFile, HeaderIsExact) {
    for (const char* content :
         {"[filters]\r\nI|0||||1\r\n", "I|0||||1\r\n", " [Filters]\r\n", "[Filters] \r\n", "\r\n"})
        EXPECT_EQ(Import(content).Result, Outcome::NoHeader) << content;
}

TEST_F(FilterFile, InvalidLineStopsAndIsNamed) {
    const FilterFileContent content = Import("[Filters]\r\nI|0||||1\r\nnonsense\r\nX|3||||1\r\n");
    EXPECT_EQ(content.Result, Outcome::InvalidLine);
    EXPECT_EQ(content.Line, 3U);
    EXPECT_EQ(Texts(content), "I|0||||1\n");
    EXPECT_EQ(Import("[Filters]\r\n\r\n").Line, 2U);
}

TEST_F(FilterFile, UnreadableFilesAreToldWithTheReason) {
    const std::string missing = Folder / "missing.fil";
    const FilterFileContent content = ImportFilterFile(missing, CodePage());
    EXPECT_EQ(content.Result, Outcome::CannotRead);
    EXPECT_EQ(FilterFileMessage(missing, content, {Language::English}),
              "Cannot read filter file  \"" + missing + "\" (No such file or directory)");
    EXPECT_EQ(FilterFileMessage(missing, content, {Language::German}),
              "Filterdatei \"" + missing + "\" kann nicht gelesen werden (Datei oder Ordner nicht gefunden)");
    const FilterFileContent folder = ImportFilterFile(Folder.Path().string(), CodePage());
    EXPECT_EQ(folder.Result, Outcome::CannotRead);
    EXPECT_EQ(folder.Error, std::errc::is_a_directory);
}

TEST_F(FilterFile, NameThatNoFileCanHaveIsUnreadable) {
    const FilterFileContent content = ImportFilterFile(Folder / std::string(5000, 'x'), CodePage());
    EXPECT_EQ(content.Result, Outcome::CannotRead);
    EXPECT_EQ(content.Error, NoPossibleName);
}

TEST_F(FilterFile, LosingFiltersAreNamedBeforeTheExport) {
    const std::vector<FilterDefinition> filters{{FilterActions::Include, 0, "ü€", "", "", true},
                                                {FilterActions::Include, 0, "Ω", "", "", true},
                                                {FilterActions::Include, 1, "", "ř", "", true}};
    EXPECT_EQ(FiltersThatLose(filters, CodePage()), (std::vector<std::size_t>{1, 2}));
    EXPECT_FALSE(ExportFilterFile(Folder / "a.fil", filters, CodePage()));
    EXPECT_EQ(FileContent(Folder / "a.fil"), "[Filters]\r\nI|0|\xFC\x80|||1\r\nI|0|?|||1\r\nI|1||?||1\r\n");
}

TEST_F(FilterFile, LineBreakInAFilterIsLost) {
    const std::vector<FilterDefinition> filters{{FilterActions::Include, 0, "a\nb\rc", "", "", true}};
    EXPECT_EQ(FiltersThatLose(filters, CodePage()), std::vector<std::size_t>{0});
    EXPECT_FALSE(ExportFilterFile(Folder / "a.fil", filters, CodePage()));
    EXPECT_EQ(FileContent(Folder / "a.fil"), "[Filters]\r\nI|0|a?b?c|||1\r\n");
}

TEST_F(FilterFile, ExportThatFailsKeepsTheOldFile) {
    EXPECT_EQ(ExportFilterFile(Folder / "no/such/a.fil", DefaultFilters(), CodePage()),
              std::errc::no_such_file_or_directory);
}

TEST_F(FilterFile, WhatIsNoFileIsNotOpened) {
    const std::vector<std::string> paths = NoFiles(Folder);
    for (const std::string& path : paths)
        ExpectCannotRead(path, FileProblem::NoRegularFile);
    const std::string& pipe = paths.front();
    const FilterFileContent content = ImportFilterFile(pipe, CodePage());
    EXPECT_EQ(FilterFileMessage(pipe, content, {Language::English}),
              "Cannot read filter file  \"" + pipe + "\" (not a regular file)");
    EXPECT_EQ(FilterFileMessage(pipe, content, {Language::German}),
              "Filterdatei \"" + pipe + "\" kann nicht gelesen werden (keine gewöhnliche Datei)");
}

TEST_F(FilterFile, LongListsAreRead) {
    const std::string numbers(1000000, '7');
    const FilterFileContent content = Import("[Filters]\r\nX|8|" + numbers + "|||1\r\n");
    EXPECT_EQ(content.Result, Outcome::Read);
    ASSERT_EQ(content.Filters.size(), 1U);
    EXPECT_EQ(content.Filters[0].StringFilter, numbers);
}

TEST_F(FilterFile, SizeAndLinesHaveABound) {
    const std::string path = Folder.Write("a.fil", "[Filters]\r\n");
    std::filesystem::resize_file(path, FilterFileBounds::Bytes.File + 1);
    ExpectCannotRead(path, FileProblem::TooLarge);
    std::filesystem::resize_file(path, FilterFileBounds::Bytes.File);
    ExpectCannotRead(path, FileProblem::LineTooLong);
}

TEST_F(FilterFile, NumberOfFiltersHasABound) {
    const std::string number = FormatFilter(Numbered);
    const std::string text = FormatFilter(WithText);
    EXPECT_EQ(ImportFilterFile(Many(FilterFileBounds::Filters, number), CodePage()).Filters.size(),
              FilterFileBounds::Filters);
    ExpectCannotRead(Many(FilterFileBounds::Filters + 1, number), FileProblem::TooManyLines);
    EXPECT_EQ(ImportFilterFile(Many(FilterFileBounds::FiltersWithText, text), CodePage()).Filters.size(),
              FilterFileBounds::FiltersWithText);
    ExpectCannotRead(Many(FilterFileBounds::FiltersWithText + 1, text), FileProblem::TooManyLines);
}

TEST_F(FilterFile, WhatCouldNotBeReadAgainIsNotWritten) {
    const std::string path = Folder.Write("a.fil", "old");
    const auto expect = [&](std::vector<FilterDefinition> filters, FileProblem problem) {
        EXPECT_EQ(ExportFilterFile(path, filters, CodePage()), problem);
        EXPECT_EQ(FileContent(path), "old");
    };
    FilterDefinition longest = WithText;
    longest.StringFilter.resize(FilterFileBounds::Bytes.Line, 'x');
    expect({longest}, FileProblem::LineTooLong);
    longest.StringFilter.resize(FilterFileBounds::Bytes.Line / 2);
    expect(std::vector(10, longest), FileProblem::TooLarge);
    expect(std::vector(FilterFileBounds::Filters + 1, Numbered), FileProblem::TooManyLines);
    expect(std::vector(FilterFileBounds::FiltersWithText + 1, WithText), FileProblem::TooManyLines);
    EXPECT_FALSE(ExportFilterFile(path, std::vector(FilterFileBounds::Filters, Numbered), CodePage()));
    EXPECT_EQ(ImportFilterFile(path, CodePage()).Result, Outcome::Read);
}

TEST_F(FilterFile, LargestFileIsWrittenAndReadAgain) {
    const std::string path = Folder / "a.fil";
    constexpr std::size_t Lines = 8;
    constexpr std::size_t HeaderLine = 11; // in bytes, with its end
    std::vector<FilterDefinition> filters(Lines, Numbered);
    for (FilterDefinition& filter : filters) {
        filter.StringFilter.clear();
        filter.StringFilter.resize(FilterFileBounds::Bytes.File / Lines - FormatFilter(filter).size() - 2,
                                   '7');
    }
    filters.front().StringFilter.resize(filters.front().StringFilter.size() - HeaderLine);
    ASSERT_FALSE(ExportFilterFile(path, filters, CodePage()));
    EXPECT_EQ(std::filesystem::file_size(path), FilterFileBounds::Bytes.File);
    EXPECT_EQ(ImportFilterFile(path, CodePage()).Result, Outcome::Read);
    filters.front().StringFilter += '7';
    EXPECT_EQ(ExportFilterFile(path, filters, CodePage()), FileProblem::TooLarge);
}

TEST_F(FilterFile, WithoutMemoryItCannotBeRead) {
    if (!MemoryCanBeLittle)
        GTEST_SKIP() << "memory cannot be limited here";
    const std::string path = Many(FilterFileBounds::Filters, FormatFilter(Numbered));
    EXPECT_TRUE(HoldsWithLittleMemory(4U << 20U, [&] {
        const FilterFileContent content = ImportFilterFile(path, CodePage());
        return content.Result == Outcome::CannotRead && content.Filters.empty() &&
               content.Error == std::errc::not_enough_memory;
    }));
}
