// SPDX-License-Identifier: MIT
#include "helpbook/HelpBook.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

std::string Topic(const std::string& title, const std::string& page) {
    return "<li><object><param name=\"Name\" value=\"" + title + "\"><param name=\"Local\" value=\"" + page +
           "\"></object>";
}

// A piece of "#SYSTEM".
std::string Piece(char kind, const std::string& text) {
    std::string piece{kind, '\0', static_cast<char>(text.size() + 1), '\0'};
    return piece + text + '\0';
}

HelpMembers SmallBook() {
    const std::string version("\3\0\0\0", 4);
    return {{"/#SYSTEM", version + Piece(0, "toc.hhc") + Piece(2, "b.html") + Piece(3, "Hilfe f\xFCr alle")},
            {"/toc.hhc", "<ul>" +
                             Topic("\xDC"
                                   "ber A",
                                   "a.html") +
                             Topic("B", "b.html#x") + Topic("Gone", "gone.html") + "</ul>"},
            {"/a.html", "<title>A itself</title>a"},
            {"/b.html", "<title>B itself</title>b"},
            {"/c.html", "<title>C itself</title>c"},
            {"/pictures/p.png", "png"}};
}

} // namespace

TEST(HelpBook, SaysWhatTheFileSays) {
    const std::optional<HelpBook> book = MakeHelpBook(SmallBook());
    ASSERT_TRUE(book);
    EXPECT_EQ(book->Title, "Hilfe für alle");
    EXPECT_EQ(book->FirstPage, "/b.html");
    ASSERT_EQ(book->Contents.size(), 3U);
    EXPECT_EQ(book->Contents[0].Title, "Über A");
    EXPECT_EQ(MemberOf(*book, "/pictures/p.png"), "png");
    EXPECT_EQ(MemberOf(*book, "/Pictures/P.PNG"), "png");
    EXPECT_EQ(MemberOf(*book, "/none.html"), std::nullopt);
}

TEST(HelpBook, PagesInTheOrderOfTheContents) {
    const std::optional<HelpBook> book = MakeHelpBook(SmallBook());
    ASSERT_TRUE(book);
    EXPECT_THAT(PagesOf(*book), ElementsAre("/a.html", "/b.html", "/c.html"));
    EXPECT_EQ(TitleOf(*book, "/a.html"), "Über A");
    EXPECT_EQ(TitleOf(*book, "/c.html"), "C itself");
    EXPECT_EQ(TitleOf(*book, "/none.html"), "/none.html");
}

TEST(HelpBook, WithoutTheSystemMemberTheContentsDecide) {
    for (const std::string& bytes : {std::string(), std::string("\3\0\0", 3), std::string(40, '\xFF')}) {
        HelpMembers members = SmallBook();
        members["/#SYSTEM"] = bytes;
        const std::optional<HelpBook> book = MakeHelpBook(std::move(members));
        ASSERT_TRUE(book);
        EXPECT_EQ(book->FirstPage, "/a.html");
    }
}

TEST(HelpBook, FirstPageIsOneThatIsThere) {
    HelpMembers members = SmallBook();
    members.erase("/b.html");
    members["/a.html"] = ""; // could not be read
    EXPECT_FALSE(MakeHelpBook(members));
    members["/gone.html"] = "there after all";
    const std::optional<HelpBook> book = MakeHelpBook(members);
    ASSERT_TRUE(book);
    EXPECT_EQ(book->FirstPage, "/gone.html");
}

TEST(HelpBook, WithoutContentsItIsNoBook) {
    HelpMembers members = SmallBook();
    members.erase("/toc.hhc");
    EXPECT_FALSE(MakeHelpBook(members));
    EXPECT_FALSE(MakeHelpBook({}));
}
