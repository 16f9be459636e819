// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <string>

#include <windows.h>

// While one lives, a key of the test is what this process takes for the user's branch of the registry, so
// that no setting of the user is read or written. Empty at first, removed in the end.
class TestBranch {
  public:
    explicit TestBranch(const std::wstring& name = OwnName()) : name_(name), isOwner_(name == OwnName()) {
        if (isOwner_)
            RegDeleteTreeW(HKEY_CURRENT_USER, name_.c_str());
        EXPECT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, name_.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                  KEY_ALL_ACCESS, nullptr, &key_, nullptr),
                  ERROR_SUCCESS);
        EXPECT_EQ(RegOverridePredefKey(HKEY_CURRENT_USER, key_), ERROR_SUCCESS);
    }
    ~TestBranch() {
        EXPECT_EQ(RegOverridePredefKey(HKEY_CURRENT_USER, nullptr), ERROR_SUCCESS);
        RegCloseKey(key_);
        if (isOwner_) {
            EXPECT_EQ(RegDeleteTreeW(HKEY_CURRENT_USER, name_.c_str()), ERROR_SUCCESS);
        }
    }
    TestBranch(const TestBranch&) = delete;
    TestBranch& operator=(const TestBranch&) = delete;

    const std::wstring& Name() const { return name_; } // for another process of the test

    bool HasKeys() const {
        DWORD keys = 0;
        EXPECT_EQ(RegQueryInfoKeyW(key_, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, nullptr, nullptr,
                                   nullptr, nullptr, nullptr),
                  ERROR_SUCCESS);
        return keys > 0;
    }

  private:
    static std::wstring OwnName() {
        return L"Software\\Qorvix-Test-" + std::to_wstring(GetCurrentProcessId());
    }

    std::wstring name_;
    bool isOwner_;
    HKEY key_ = nullptr;
};
