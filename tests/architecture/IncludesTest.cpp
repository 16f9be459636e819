// SPDX-License-Identifier: MIT
// The folders of src/ are the architecture; these tests read the includes of every file and hold them against
// it.
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <sstream>
#include <vector>

namespace {

// In order of dependency: a folder includes files of its own and of folders before it.
constexpr std::array<std::string_view, 16> Folders{
    "base",    "logbook",  "settings", "filter", "rows",    "comments", "sources", "eventinfo",
    "history", "document", "helpbook", "list",   "dialogs", "overview", "app",     "cli"};
constexpr std::array<std::string_view, 4> FoldersWithQt{"list", "dialogs", "overview", "app"};

template <typename Table>
bool Contains(const Table& table, std::string_view name) {
    return std::find(table.begin(), table.end(), name) != table.end();
}

std::size_t Rank(std::string_view folder) {
    return static_cast<std::size_t>(std::find(Folders.begin(), Folders.end(), folder) - Folders.begin());
}

struct SourceFile {
    std::string Folder;
    std::string Name;
    std::vector<std::string> Includes; // as written, with their quotes or angle brackets
};

// What a line includes, with its quotes or angle brackets; "" when it is no include line.
std::string IncludeOf(const std::string& line) {
    const std::size_t hash = line.find_first_not_of(" \t");
    if (hash == std::string::npos || line[hash] != '#')
        return {};
    const std::size_t word = line.find_first_not_of(" \t", hash + 1);
    const std::size_t begin = line.find_first_of("<\"");
    if (word == std::string::npos || line.compare(word, 7, "include") != 0 || begin == std::string::npos)
        return {};
    return line.substr(begin, line.find_first_of(">\"", begin + 1) + 1 - begin);
}

std::vector<SourceFile> SourceFiles() {
    std::vector<SourceFile> files;
    const std::filesystem::path root = QORVIX_SOURCE_FOLDER "/src";
    for (const auto& item : std::filesystem::recursive_directory_iterator(root)) {
        const std::string extension = item.path().extension().string();
        if (extension != ".h" && extension != ".cpp")
            continue;
        SourceFile file{
            item.path().lexically_relative(root).begin()->string(), item.path().filename().string(), {}};
        std::istringstream stream(FileContent(item.path()));
        for (std::string line; std::getline(stream, line);)
            if (const std::string include = IncludeOf(line); !include.empty())
                file.Includes.push_back(include);
        files.push_back(std::move(file));
    }
    return files;
}

// <QString>, <QtGlobal>, <qglobal.h>; not <queue>.
bool IsQt(const std::string& include) {
    return include.starts_with("<Q") || (include.starts_with("<q") && include.ends_with(".h>"));
}

// The headers of C's kind that are no operating system's: those of libraries, and the compiler's own.
constexpr std::array<std::string_view, 6> HeadersOfLibraries{"<chm_lib.h>",  "<emmintrin.h>", "<iconv.h>",
                                                             "<utf8proc.h>", "<xxhash.h>",    "<zip.h>"};

// What base keeps to itself: there the system's numbers for files and signals are seen.
constexpr std::array<std::string_view, 2> HeadersForBaseAlone{"\"base/InterruptionState.h\"",
                                                              "\"base/SystemFile.h\""};

// <unistd.h>, <sys/stat.h>, <windows.h>, <csignal>: whatever is not known to be something else.
bool IsOperatingSystem(const std::string& include) {
    return include == "<csignal>" || (include.starts_with("<") && include.ends_with(".h>") &&
                                      !IsQt(include) && !Contains(HeadersOfLibraries, include));
}

// The files outside base that speak to the operating system themselves.
constexpr std::array<std::string_view, 1> FilesWithOperatingSystem{
    "settings/WindowsSettings.cpp"}; // Windows's registry; for Windows only

} // namespace

TEST(Includes, TheTreeHasItsFolders) {
    const std::vector<SourceFile> files = SourceFiles();
    ASSERT_GT(files.size(), 30U);
    for (const SourceFile& file : files)
        EXPECT_TRUE(Contains(Folders, file.Folder)) << file.Folder << "/" << file.Name;
}

TEST(Includes, CoreIncludesNoQt) {
    for (const SourceFile& file : SourceFiles()) {
        if (Contains(FoldersWithQt, file.Folder))
            continue;
        for (const std::string& include : file.Includes)
            EXPECT_FALSE(IsQt(include)) << file.Folder << "/" << file.Name << " includes " << include;
    }
}

TEST(Includes, NoArrowRunsBack) {
    for (const SourceFile& file : SourceFiles())
        for (const std::string& include : file.Includes) {
            const std::string folder = include.substr(1, include.find('/') - 1);
            if (include.front() != '"')
                continue;
            ASSERT_TRUE(Contains(Folders, folder))
                << file.Folder << "/" << file.Name << " includes " << include;
            EXPECT_LE(Rank(folder), Rank(file.Folder))
                << file.Folder << "/" << file.Name << " includes " << include;
            EXPECT_FALSE(file.Folder == "cli" && Contains(FoldersWithQt, folder))
                << file.Folder << "/" << file.Name << " includes " << include;
        }
}

TEST(Includes, EventInfoAsksSettingsAndLogbookOnly) {
    constexpr std::array<std::string_view, 4> allowed{"eventinfo", "settings", "logbook", "base"};
    std::size_t includes = 0;
    for (const SourceFile& file : SourceFiles())
        for (const std::string& include : file.Includes)
            if (file.Folder == "eventinfo" && include.front() == '"') {
                ++includes;
                EXPECT_TRUE(Contains(allowed, include.substr(1, include.find('/') - 1)))
                    << file.Name << " includes " << include;
            }
    EXPECT_GT(includes, 10U);
}

TEST(Includes, HistoryAsksWhatIsReadAndWrittenByAPersonOnly) {
    constexpr std::array<std::string_view, 6> allowed{"history",  "eventinfo", "comments",
                                                      "settings", "logbook",   "base"};
    std::size_t includes = 0;
    for (const SourceFile& file : SourceFiles())
        for (const std::string& include : file.Includes)
            if (file.Folder == "history" && include.front() == '"') {
                ++includes;
                EXPECT_TRUE(Contains(allowed, include.substr(1, include.find('/') - 1)))
                    << file.Name << " includes " << include;
            }
    EXPECT_GT(includes, 10U);
}

TEST(Includes, OnlyBaseKnowsTheOperatingSystem) {
    std::size_t exceptions = 0;
    for (const SourceFile& file : SourceFiles()) {
        const std::string name = file.Folder + "/" + file.Name;
        if (file.Folder == "base")
            continue;
        const bool isException = Contains(FilesWithOperatingSystem, name);
        exceptions +=
            isException && std::any_of(file.Includes.begin(), file.Includes.end(), IsOperatingSystem);
        for (const std::string& include : file.Includes) {
            EXPECT_FALSE(!isException && IsOperatingSystem(include)) << name << " includes " << include;
            EXPECT_FALSE(Contains(HeadersForBaseAlone, include)) << name << " includes " << include;
        }
    }
    EXPECT_EQ(exceptions, FilesWithOperatingSystem.size()) << "one needs to be no exception any longer";
}

// Whoever includes a header of base sees no more of the system than what the header says.
TEST(Includes, HeadersOfBaseHideTheOperatingSystem) {
    for (const SourceFile& file : SourceFiles()) {
        if (file.Folder != "base" || !file.Name.ends_with(".h") ||
            Contains(HeadersForBaseAlone, "\"base/" + file.Name + "\""))
            continue;
        for (const std::string& include : file.Includes) {
            EXPECT_FALSE(IsOperatingSystem(include)) << file.Name << " includes " << include;
            EXPECT_FALSE(Contains(HeadersForBaseAlone, include)) << file.Name << " includes " << include;
        }
    }
}

TEST(Includes, BaseDoesIncludeTheOperatingSystem) {
    // Without this, a mistake in how the system's headers are told would let the tests above pass.
    const std::vector<SourceFile> files = SourceFiles();
    for (const std::string_view header :
         {"<unistd.h>", "<fcntl.h>", "<sys/stat.h>", "<pwd.h>", "<poll.h>", "<csignal>", "<windows.h>"})
        EXPECT_TRUE(std::any_of(files.begin(), files.end(), [&](const SourceFile& file) {
            return file.Folder == "base" && Contains(file.Includes, header) &&
                   IsOperatingSystem(std::string(header));
        })) << header;
    for (const std::string_view header : HeadersForBaseAlone)
        EXPECT_TRUE(std::any_of(files.begin(), files.end(), [&](const SourceFile& file) {
            return Contains(file.Includes, header);
        })) << header;
}

TEST(Includes, WindowFoldersDoIncludeQt) {
    // Without this, a mistake in how Qt headers are told would let the test above pass.
    const std::vector<SourceFile> files = SourceFiles();
    EXPECT_TRUE(std::any_of(files.begin(), files.end(), [](const SourceFile& file) {
        return file.Folder == "app" && std::any_of(file.Includes.begin(), file.Includes.end(), IsQt);
    }));
}
