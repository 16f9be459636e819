// SPDX-License-Identifier: MIT
#include "document/OpenLogbook.h"

#include "support/MemorySettings.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

namespace {

using Answer = UserInterface::Answer;

class OpenLogbookTest : public testing::Test {
  protected:
    // Opens; what was done is in Steps.
    bool Open(std::string name) {
        Steps.clear();
        const bool opened = OpenLogbook(name, State, Settings, User, "/program/",
                                        {.ZipLogbook =
                                             [&] {
                                                 Steps += "zip ";
                                                 return Zips;
                                             },
                                         .ExecuteLogbook =
                                             [&](std::string& file) {
                                                 Steps += "open " + file;
                                                 file = "bare";
                                                 return Opens;
                                             }});
        Name = name;
        return opened;
    }

    MemorySettings Store;
    Registry Settings{Store};
    LogbookState State;
    ScriptedUser User;
    bool Zips = true;
    bool Opens = true;
    std::string Steps;
    std::string Name;
};

} // namespace

TEST_F(OpenLogbookTest, NameIsOpenedWithoutAQuestion) {
    EXPECT_TRUE(Open("/logs/a.b.log"));
    EXPECT_EQ(Steps, "open /logs/a.b.log");
    EXPECT_EQ(Name, "bare");
    EXPECT_TRUE(User.Questions.empty());
    EXPECT_TRUE(User.FilesToOpen.empty());
    EXPECT_TRUE(Store.Values.empty());
    Opens = false;
    EXPECT_FALSE(Open("/logs/a.b.log"));
}

TEST_F(OpenLogbookTest, WithoutANameTheUserChooses) {
    User.File = "/logs/of today/a.log";
    EXPECT_TRUE(Open(""));
    EXPECT_EQ(Steps, "open /logs/of today/a.log");
    ASSERT_EQ(User.FilesToOpen.size(), 1U);
    EXPECT_EQ(User.FilesToOpen[0].Title, TextId::OpenTitle);
    EXPECT_EQ(User.FilesToOpen[0].Filters, TextId::OpenFilter);
    EXPECT_EQ(User.FilesToOpen[0].Folder, "/program/");
    EXPECT_EQ(User.FilesToOpen[0].Name, "");
    EXPECT_EQ(Settings.ReadLogbookSettingString("InitLogbookDir", ""), "/logs/of today/");
    EXPECT_EQ(Settings.ReadLogbookSettingString("InitLogbookFile", ""), "/logs/of today/a.log");
    EXPECT_EQ(Store.Writes, 1);
    EXPECT_TRUE(Open(""));
    EXPECT_EQ(User.FilesToOpen[1].Folder, "/logs/of today/");
}

TEST_F(OpenLogbookTest, ChoiceIsStoredAlsoWhenItDoesNotOpen) {
    User.File = "C:\\Logs\\a.zip";
    Opens = false;
    EXPECT_FALSE(Open(""));
    EXPECT_EQ(Settings.ReadLogbookSettingString("InitLogbookDir", ""), "C:\\Logs\\");
}

TEST_F(OpenLogbookTest, CancelledDialogChangesNothing) {
    EXPECT_FALSE(Open(""));
    EXPECT_EQ(Steps, "");
    EXPECT_TRUE(Store.Values.empty());
}

TEST_F(OpenLogbookTest, EditedCommentsAreAskedAboutFirst) {
    State.CommentsEdited = true;
    User.File = "/b.log";
    for (const std::string name : {"/a.log", ""}) {
        const std::string open = "open " + (name.empty() ? *User.File : name);
        User.Answers = {Answer::Yes, Answer::No, Answer::Cancel};
        EXPECT_TRUE(Open(name));
        EXPECT_EQ(Steps, "zip " + open);
        EXPECT_TRUE(Open(name));
        EXPECT_EQ(Steps, open);
        const std::size_t dialogs = User.FilesToOpen.size();
        EXPECT_FALSE(Open(name));
        EXPECT_EQ(Steps, "");
        EXPECT_EQ(User.FilesToOpen.size(), dialogs);
    }
    EXPECT_EQ(User.Questions, std::vector<TextId>(6, TextId::AskSaveComments));
}

TEST_F(OpenLogbookTest, CommentsThatCouldNotBeSavedStopTheOpening) {
    State.CommentsEdited = true;
    Zips = false;
    User.Answers = {Answer::Yes};
    EXPECT_FALSE(Open(""));
    EXPECT_EQ(Steps, "zip ");
    EXPECT_TRUE(User.FilesToOpen.empty());
    EXPECT_TRUE(State.CommentsEdited);
}

TEST_F(OpenLogbookTest, WhatBecameOfTheCommentsIsTold) {
    const auto ask = [&](bool saved) { return AskToSaveComments(State, User, [saved] { return saved; }); };
    EXPECT_EQ(ask(true), CommentsOutcome::NoneEdited);
    State.CommentsEdited = true;
    User.Answers = {Answer::Yes, Answer::Yes, Answer::No, Answer::Cancel};
    EXPECT_EQ(ask(true), CommentsOutcome::Saved);
    EXPECT_EQ(ask(false), CommentsOutcome::NotSaved);
    EXPECT_EQ(ask(true), CommentsOutcome::Dropped);
    EXPECT_EQ(ask(true), CommentsOutcome::Stay);
}
