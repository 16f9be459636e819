// SPDX-License-Identifier: MIT
#include "sources/OpenLogbook.h"

#include "settings/Registry.h"
#include "support/MemorySettings.h"
#include "support/ScriptedUser.h"

#include <gmock/gmock.h>

namespace {

using Answer = UserInterface::Answer;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(MayLeaveComments, AsksOnlyWhenTheyWereEdited) {
    ScriptedUser user;
    EXPECT_TRUE(MayLeaveComments(false, user, [] { return false; }));
    EXPECT_THAT(user.Questions, IsEmpty());
}

TEST(MayLeaveComments, AnswerDecides) {
    ScriptedUser user;
    user.Answers = {Answer::Yes, Answer::Yes, Answer::No, Answer::Cancel};
    int saved = 0;
    const auto save = [&saved] { return ++saved == 1; };
    EXPECT_TRUE(MayLeaveComments(true, user, save));
    EXPECT_FALSE(MayLeaveComments(true, user, save)); // saving did not succeed
    EXPECT_TRUE(MayLeaveComments(true, user, save));
    EXPECT_FALSE(MayLeaveComments(true, user, save));
    EXPECT_EQ(saved, 2);
    EXPECT_EQ(user.Questions, std::vector<TextId>(4, TextId::AskSaveComments));
}

TEST(ReadAndShowLogbookName, KeepsFolderAndPath) {
    MemorySettings store;
    Registry registry(store);
    ScriptedUser user;
    user.Files = {"/logs/machine 7/lb_act.log", std::nullopt};
    EXPECT_EQ(ReadAndShowLogbookName(registry, user, "/program/"), "/logs/machine 7/lb_act.log");
    EXPECT_EQ(ReadAndShowLogbookName(registry, user, "/program/"), std::nullopt);
    ASSERT_EQ(user.Requests.size(), 2U);
    EXPECT_EQ(user.Requests[0].Folder, "/program/");
    EXPECT_EQ(user.Requests[1].Folder, "/logs/machine 7/");
    EXPECT_EQ(user.Requests[0].Title, TextId::OpenTitle);
    EXPECT_EQ(user.Requests[0].Filter, TextId::OpenFilter);
    EXPECT_EQ(registry.ReadLogbookSettingString("InitLogbookDir", ""), "/logs/machine 7/");
    EXPECT_EQ(registry.ReadLogbookSettingString("InitLogbookFile", ""), "/logs/machine 7/lb_act.log");
    EXPECT_EQ(store.Writes, 1);
}

} // namespace
