// SPDX-License-Identifier: MIT
#include "helpbook/ChmFile.h"

#include "helpbook/HelpBook.h"
#include "helpbook/HelpFile.h"
#include "helpbook/HelpMemberStream.h"
#include "support/Abilities.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <random>
#include <thread>
#include <vector>

namespace {

const std::filesystem::path EnglishHelp = QORVIX_PROGRAM_FOLDER "/language/en/Qorvix.chm";
const std::filesystem::path Reader = HelpReader(QORVIX_PROGRAM_FOLDER);
const std::filesystem::path SourceFolder = QORVIX_SOURCE_FOLDER "/help";

std::string Bytes(const MemberHead& head) { return {reinterpret_cast<const char*>(&head), sizeof head}; }

std::string Member(const std::string& path, const std::string& content) {
    return Bytes({path.size(), content.size()}) + path + content;
}

// Opens and walks through the whole book, whatever is in it.
void ReadAll(const std::string& file) {
    const std::optional<HelpBook> book = OpenHelpBook(file, Reader);
    if (!book)
        return;
    EXPECT_TRUE(MemberOf(*book, book->FirstPage));
    for (const std::string& page : PagesOf(*book))
        EXPECT_FALSE(TitleOf(*book, page).empty());
}

} // namespace

TEST(ChmFile, HoldsEverythingAsItWasCompiled) {
    for (const std::string code : {"en", "de"}) {
        const auto members = ReadChmFile(QORVIX_PROGRAM_FOLDER "/language/" + code + "/Qorvix.chm", Reader);
        ASSERT_TRUE(members);
        int pages = 0;
        for (const auto& item : std::filesystem::recursive_directory_iterator(SourceFolder / code)) {
            const std::string name =
                '/' + item.path().lexically_relative(SourceFolder / code).generic_string();
            if (!item.is_regular_file() || name.starts_with("/Qorvix."))
                continue;
            ASSERT_TRUE(members->contains(name)) << name;
            EXPECT_EQ(members->at(name), FileContent(item.path())) << name;
            ++pages;
        }
        EXPECT_GT(pages, 20);
        for (const auto& [name, content] : *members)
            EXPECT_FALSE(name.ends_with('/')) << "a folder is no member: " << name;
    }
}

TEST(ChmFile, MissingFileIsNone) {
    const TemporaryFolder folder;
    EXPECT_FALSE(ReadChmFile(folder / "Qorvix.chm", Reader));
    EXPECT_FALSE(ReadChmFile(folder.Path(), Reader));
    EXPECT_FALSE(ReadChmFile("", Reader));
}

TEST(ChmFile, FileOfAnotherKindIsNone) {
    const TemporaryFolder folder;
    EXPECT_FALSE(ReadChmFile(folder.Write("empty.chm", ""), Reader));
    EXPECT_FALSE(ReadChmFile(folder.Write("text.chm", "This is no help file."), Reader));
    EXPECT_FALSE(ReadChmFile(folder.Write("head.chm", "ITSF"), Reader));
    EXPECT_FALSE(ReadChmFile(folder.Write("zeros.chm", std::string(10'000, '\0')), Reader));
}

TEST(ChmFile, TruncatedFileNeverHarms) {
    const TemporaryFolder folder;
    const std::string whole = FileContent(EnglishHelp);
    ASSERT_GT(whole.size(), 10'000U);
    for (std::size_t size = 0; size < whole.size(); size += whole.size() / 60)
        ReadAll(folder.Write("cut.chm", whole.substr(0, size)));
    EXPECT_FALSE(OpenHelpBook(folder.Write("half.chm", whole.substr(0, 2'000)), Reader));
}

TEST(ChmFile, RandomBytesNeverHarm) {
    const TemporaryFolder folder;
    std::mt19937 random(20100104);
    for (int i = 0; i < 40; ++i) {
        std::string bytes = "ITSF";
        for (auto n = random() % 5'000; n > 0; --n)
            bytes += static_cast<char>(random());
        ReadAll(folder.Write("random.chm", bytes));
    }
}

TEST(ChmFile, DamagedBytesNeverHarm) {
    const TemporaryFolder folder;
    const std::string whole = FileContent(EnglishHelp);
    std::mt19937 random(975);
    for (int i = 0; i < 150; ++i) {
        std::string bytes = whole;
        for (auto n = 1 + random() % 20; n > 0; --n)
            bytes[random() % std::min<std::size_t>(bytes.size(), i % 2 == 0 ? 10'000 : bytes.size())] =
                static_cast<char>(random() % 4 == 0 ? 0xFF : random());
        ReadAll(folder.Write("damaged.chm", bytes));
    }
}

// A window of no size makes libchm divide by zero; one that is too large, write beyond its memory.
TEST(ChmFile, DamagedControlDataIsNone) {
    const TemporaryFolder folder;
    const std::string whole = FileContent(EnglishHelp);
    const std::size_t control = whole.find("LZXC");
    ASSERT_NE(control, std::string::npos);
    for (const std::size_t place : {control + 8, control + 12, control + 16})
        for (const char byte : {'\0', '\1', '\x7F', '\xFF'})
            for (std::size_t i = 0; i < 4; ++i) {
                std::string bytes = whole;
                bytes[place + i] = byte;
                ReadAll(folder.Write("control.chm", bytes));
            }
    std::string bytes = whole;
    bytes.replace(control + 8, 12, 12, '\0');
    EXPECT_FALSE(OpenHelpBook(folder.Write("control.chm", bytes), Reader));
}

TEST(ChmFile, WithoutItsReaderIsNone) {
    EXPECT_FALSE(ReadChmFile(EnglishHelp, QORVIX_PROGRAM_FOLDER "/qorvix-noreader"));
    EXPECT_FALSE(ReadChmFile(EnglishHelp, QORVIX_PROGRAM_FOLDER));
    EXPECT_FALSE(ReadChmFile(EnglishHelp, "/bin/true"));
    EXPECT_FALSE(ReadChmFile(EnglishHelp, "/bin/cat")); // something else than members
}

// "cat" hands over what a file holds: the reader's stream, as a test writes it.
TEST(ChmFile, StreamThatIsNotWholeIsNone) {
    NEEDS_SHELL(); // and its programs
    const TemporaryFolder folder;
    const auto read = [&](const std::string& stream) {
        return ReadChmFile(folder.Write("stream", stream), "/bin/cat");
    };
    const std::string stream = Member("/a.htm", "first") + Member("/b.htm", "") + Bytes(MemberHead{});
    const auto members = read(stream);
    ASSERT_TRUE(members);
    EXPECT_EQ(*members, (HelpMembers{{"/a.htm", "first"}, {"/b.htm", ""}}));
    for (std::size_t size = 0; size < stream.size(); ++size)
        EXPECT_FALSE(read(stream.substr(0, size))) << size;
    // Lengths that no stream has.
    EXPECT_FALSE(read(Bytes(MemberHead{6, ~std::uint64_t{0}}) + "/a.htm" + Bytes(MemberHead{})));
    EXPECT_FALSE(read(Bytes(MemberHead{1000, 0}) + "/a.htm" + Bytes(MemberHead{})));
}

// What is handed over of the largest help is larger than its content.
TEST(ChmFile, LargestHelpIsRead) {
    NEEDS_SHELL(); // and its programs
    const TemporaryFolder folder;
    constexpr int EmptyMembers = 9'000;
    std::string stream = Member("/a.htm", std::string(MostHelpBytes, 'x'));
    for (int i = 0; i < EmptyMembers; ++i)
        stream += Member('/' + std::to_string(i) + ".htm", "");
    stream += Bytes(MemberHead{});
    const auto members = ReadChmFile(folder.Write("stream", stream), "/bin/cat");
    ASSERT_TRUE(members);
    EXPECT_EQ(members->size(), EmptyMembers + 1U);
    EXPECT_EQ(members->at("/a.htm").size(), MostHelpBytes);
}

// Other threads hold locks while the reading process is started.
TEST(ChmFile, CanBeReadWhileOtherThreadsAllocate) {
    std::atomic<bool> enough = false;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&] {
            while (!enough)
                const std::vector<std::string> texts(100, std::string(100, 'x'));
        });
    for (int i = 0; i < 100; ++i)
        EXPECT_TRUE(ReadChmFile(EnglishHelp, Reader)) << i;
    enough = true;
    for (std::thread& thread : threads)
        thread.join();
}
