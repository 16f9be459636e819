// SPDX-License-Identifier: MIT
#include "base/UserFolders.h"

#include <gtest/gtest.h>

#include <string>

#include <windows.h>

namespace {

// The environment as it was comes back with the end of each test.
class UserFoldersTest : public testing::Test {
  protected:
    ~UserFoldersTest() override {
        Set(L"APPDATA", Roaming.c_str());
        Set(L"LOCALAPPDATA", Local.c_str());
    }

    // Both for the system and for the C library, which keeps a copy.
    static void Set(const std::wstring& name, const wchar_t* value) {
        EXPECT_EQ(::_wputenv((name + L"=" + value).c_str()), 0);
    }

    std::wstring Roaming = ::_wgetenv(L"APPDATA");
    std::wstring Local = ::_wgetenv(L"LOCALAPPDATA");
};

TEST_F(UserFoldersTest, LieWhereProgramsKeepWhatIsTheUsers) {
    EXPECT_EQ(ConfigurationFolder(), std::filesystem::path(Roaming) / "VELTRANDOR");
    EXPECT_EQ(DataFolder(), std::filesystem::path(Roaming) / "VELTRANDOR/Qorvix");
    EXPECT_EQ(StateFolder(), std::filesystem::path(Local) / "VELTRANDOR/Qorvix");
}

TEST_F(UserFoldersTest, FollowTheEnvironment) {
    Set(L"APPDATA", L"C:\\some where\\ż");
    Set(L"LOCALAPPDATA", L"C:\\local");
    EXPECT_EQ(DataFolder(), L"C:\\some where\\ż\\VELTRANDOR\\Qorvix");
    EXPECT_EQ(StateFolder(), L"C:\\local\\VELTRANDOR\\Qorvix");
}

TEST_F(UserFoldersTest, WithoutTheEnvironmentTheSystemKnowsThem) {
    for (const wchar_t* const value : {L"", L"relative", L"C:relative", L"\\rooted"}) {
        Set(L"APPDATA", value);
        Set(L"LOCALAPPDATA", value);
        EXPECT_TRUE(ConfigurationFolder().is_absolute()) << ConfigurationFolder();
        EXPECT_TRUE(StateFolder().is_absolute()) << StateFolder();
    }
}

} // namespace
