// SPDX-License-Identifier: MIT
// The settings in the registry, as other programs of the control and damage leave them.
#include "base/Paths.h"
#include "settings/Registry.h"
#include "support/OtherProcess.h"
#include "support/TestBranch.h"

namespace {

constexpr int Count = 200;

class WindowsSettingsTest : public testing::Test {
  protected:
    // What is stored under a name, as it is in the registry.
    static std::wstring Stored(const wchar_t* key, const wchar_t* name, DWORD kind) {
        wchar_t value[2000] = {};
        DWORD size = sizeof value;
        EXPECT_EQ(RegGetValueW(HKEY_CURRENT_USER, key, name, kind, nullptr, value, &size), ERROR_SUCCESS)
            << name;
        return value;
    }

    static void Place(const wchar_t* name, DWORD kind, const void* value, std::size_t size) {
        EXPECT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\VELTRANDOR\\Qorvix", name, kind, value,
                                  static_cast<DWORD>(size)),
                  ERROR_SUCCESS);
    }
    static void Place(const wchar_t* name, DWORD kind, const std::wstring& value) {
        Place(name, kind, value.c_str(), (value.size() + 1) * sizeof(wchar_t));
    }

    TestBranch Branch;
    std::unique_ptr<SettingsStore> Store = MakeUserSettings();
    Registry Settings{*Store};
};

int WriteMany(const std::vector<std::string>& words) {
    const TestBranch branch(ToPath(words[0]).wstring());
    const auto store = MakeUserSettings();
    Registry settings(*store);
    for (int i = 0; i < Count; ++i) {
        const Registry::Transaction transaction(settings);
        settings.WriteLogbookSetting("Both", words[1], SettingType::Text);
        settings.WriteLogbookSetting(words[1] + std::to_string(i), i, SettingType::Integer);
    }
    return 0;
}
const OtherProcess::Known WritesMany("WritesMany", WriteMany);

const OtherProcess::Known HoldsTheLock("HoldsTheLock", [](const std::vector<std::string>& words) {
    const HANDLE lock = CreateMutexW(nullptr, TRUE, L"Local\\VELTRANDOR-Qorvix-Settings");
    const HANDLE isHeld = OpenEventW(EVENT_MODIFY_STATE, FALSE, ToPath(words[0]).c_str());
    SetEvent(isHeld);
    Sleep(60000);
    return lock == nullptr ? 1 : 0;
});

} // namespace

TEST_F(WindowsSettingsTest, LieInTheUsersBranchUnderTheirNames) {
    Settings.WriteSetting("DialogLanguage", 1, SettingType::Integer);
    Settings.WriteFilterSetting("Filter1", std::string("I|0||||1"), SettingType::Text);
    EXPECT_EQ(Stored(L"Software\\VELTRANDOR\\Qorvix\\Logbook\\Filters", L"Filter1", RRF_RT_REG_SZ),
              L"I|0||||1");
    EXPECT_EQ(Stored(L"Software\\VELTRANDOR\\Qorvix", L"DialogLanguage", RRF_RT_REG_DWORD)[0], 1);
}

TEST_F(WindowsSettingsTest, TextIsInTheSystemsCodePage) {
    Settings.WriteSetting("A", std::string("Störung €"), SettingType::Text);
    EXPECT_EQ(Stored(L"Software\\VELTRANDOR\\Qorvix", L"A", RRF_RT_REG_SZ), L"Störung €");
    EXPECT_EQ(Settings.ReadSettingString("A", ""), "Störung €");
    Place(L"B", REG_SZ, std::wstring(L"ü ż 統"));
    EXPECT_EQ(Settings.ReadSettingString("B", "").substr(0, 3), "ü ");
}

TEST_F(WindowsSettingsTest, ValuesOfOtherKindsReadAsDefaultAndStay) {
    const std::int64_t number = 5;
    Place(L"Binary", REG_BINARY, &number, 4);
    Place(L"Long", REG_QWORD, &number, sizeof number);
    Place(L"Short", REG_DWORD, &number, 2);
    Place(L"Expanded", REG_EXPAND_SZ, L"%TEMP%");
    Place(L"Several", REG_MULTI_SZ, std::wstring(L"a\0b\0", 4));
    Place(L"None", REG_NONE, &number, 0);
    for (const char* const name : {"Binary", "Long", "Short", "Expanded", "Several", "None"}) {
        EXPECT_EQ(Settings.ReadSettingLong(name, 7), 7) << name;
        EXPECT_EQ(Settings.ReadSettingString(name, "default"), "default") << name;
    }
    EXPECT_EQ(Stored(L"Software\\VELTRANDOR\\Qorvix", L"Expanded", RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND),
              L"%TEMP%");
}

TEST_F(WindowsSettingsTest, TextWithoutItsEndIsRead) {
    Place(L"A", REG_SZ, L"abc", 3 * sizeof(wchar_t));
    EXPECT_EQ(Settings.ReadSettingString("A", ""), "abc");
    Place(L"Empty", REG_SZ, L"", 0);
    EXPECT_EQ(Settings.ReadSettingString("Empty", "default"), "");
    Place(L"Odd", REG_SZ, L"abc", 5);
    EXPECT_EQ(Settings.ReadSettingString("Odd", "").substr(0, 2), "ab");
}

TEST_F(WindowsSettingsTest, LongestTextIs1023CharactersHoweverItGotThere) {
    Place(L"Whole", REG_SZ, std::wstring(1023, L'ä'));
    Place(L"Longer", REG_SZ, std::wstring(1024, L'ä'));
    Place(L"Unended", REG_SZ, std::wstring(1024, L'x').c_str(), 1024 * sizeof(wchar_t));
    EXPECT_EQ(Settings.ReadSettingString("Whole", "").size(), 2046U);
    EXPECT_EQ(Settings.ReadSettingString("Longer", "default"), "default");
    EXPECT_EQ(Settings.ReadSettingString("Unended", "default"), "default");
}

TEST_F(WindowsSettingsTest, NumbersHaveTheirSign) {
    for (const std::int32_t number : {-1, 0, INT32_MIN, INT32_MAX}) {
        Settings.WriteLogbookSetting("A", number, SettingType::Integer);
        EXPECT_EQ(Settings.ReadLogbookSettingLong("A", 7), number);
    }
}

TEST_F(WindowsSettingsTest, FilterKeyIsDeletedWithWhatOthersPutThere) {
    Settings.WriteFilterSetting("FilterCount", 5, SettingType::Integer);
    Settings.WriteRegistryValue(std::string(ApplicationKey) + "\\Logbook\\Filters\\Deeper", "A", 1,
                                SettingType::Integer);
    Settings.WriteLogbookSetting("Main.Left", 3, SettingType::Integer);
    Settings.DeleteFilterKey();
    EXPECT_EQ(Settings.ReadFilterSettingLong("FilterCount", 0), 0);
    EXPECT_EQ(Settings.ReadLogbookSettingLong("Main.Left", 0), 3);
}

TEST_F(WindowsSettingsTest, TwoProcessesLoseNoValue) {
    const std::string branch = PathText(Branch.Name());
    OtherProcess first("WritesMany", {branch, "P"});
    OtherProcess second("WritesMany", {branch, "Q"});
    EXPECT_EQ(first.End(), 0);
    EXPECT_EQ(second.End(), 0);
    int lost = 0;
    for (const char* const name : {"P", "Q"})
        for (int i = 0; i < Count; ++i)
            lost += Settings.ReadLogbookSettingLong(name + std::to_string(i), -1) != i;
    EXPECT_EQ(lost, 0);
}

TEST_F(WindowsSettingsTest, LockOfAKilledProgramIsFree) {
    const std::string name = "Qorvix-Test-" + std::to_string(GetCurrentProcessId());
    const HANDLE isHeld = CreateEventW(nullptr, TRUE, FALSE, ToPath(name).c_str());
    OtherProcess holder("HoldsTheLock", {name});
    ASSERT_EQ(WaitForSingleObject(isHeld, 20000), WAIT_OBJECT_0);
    CloseHandle(isHeld);
    holder.Kill();
    const ULONGLONG begin = GetTickCount64();
    Settings.WriteSetting("A", 5, SettingType::Integer);
    EXPECT_EQ(Settings.ReadSettingLong("A", 0), 5);
    EXPECT_LT(GetTickCount64() - begin, 3000U) << "others are waited for longer";
}
