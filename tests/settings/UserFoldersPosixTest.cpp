// SPDX-License-Identifier: MIT
#include "base/UserFolders.h"

#include "settings/JsonSettings.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <string>

namespace {

// The environment as it was comes back with the end of each test.
class UserFoldersTest : public testing::Test {
  protected:
    UserFoldersTest() {
        for (const char* name : Names) {
            if (const char* const value = std::getenv(name); value != nullptr)
                Saved[name] = value;
            ::unsetenv(name);
        }
        ::setenv("HOME", "/home/user", 1);
    }
    ~UserFoldersTest() override {
        for (const char* name : Names)
            ::unsetenv(name);
        for (const auto& [name, value] : Saved)
            ::setenv(name.c_str(), value.c_str(), 1);
    }

    static constexpr auto Names = {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"};
    std::map<std::string, std::string> Saved;
};

TEST_F(UserFoldersTest, LieInTheHome) {
    EXPECT_EQ(ConfigurationFolder(), "/home/user/.config/VELTRANDOR");
    EXPECT_EQ(DataFolder(), "/home/user/.local/share/VELTRANDOR/Qorvix");
    EXPECT_EQ(StateFolder(), "/home/user/.local/state/VELTRANDOR/Qorvix");
    EXPECT_EQ(JsonSettings::UserFile(), "/home/user/.config/VELTRANDOR/Qorvix.json");
}

TEST_F(UserFoldersTest, FollowTheEnvironment) {
    ::setenv("XDG_CONFIG_HOME", "/somewhere/config", 1);
    ::setenv("XDG_DATA_HOME", "/somewhere/data", 1);
    ::setenv("XDG_STATE_HOME", "/somewhere/state", 1);
    EXPECT_EQ(DataFolder(), "/somewhere/data/VELTRANDOR/Qorvix");
    EXPECT_EQ(JsonSettings::UserFile(), "/somewhere/config/VELTRANDOR/Qorvix.json");
    EXPECT_EQ(StateFolder(), "/somewhere/state/VELTRANDOR/Qorvix");
}

TEST_F(UserFoldersTest, WithoutAHomeInTheEnvironmentTheSystemKnowsIt) {
    ::unsetenv("HOME");
    const std::filesystem::path folder = StateFolder();
    EXPECT_TRUE(folder.is_absolute()) << folder;
    ::setenv("HOME", "", 1);
    EXPECT_EQ(StateFolder(), folder);
}

TEST_F(UserFoldersTest, RelativeNamesCountAsNone) {
    ::setenv("XDG_CONFIG_HOME", "relative", 1);
    ::setenv("XDG_STATE_HOME", "relative", 1);
    EXPECT_EQ(ConfigurationFolder(), "/home/user/.config/VELTRANDOR");
    EXPECT_EQ(StateFolder(), "/home/user/.local/state/VELTRANDOR/Qorvix");
}

} // namespace
