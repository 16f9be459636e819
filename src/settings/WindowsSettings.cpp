// SPDX-License-Identifier: MIT
// The settings in the current user's branch of the system registry. Compiled on Windows only, in place of
// JsonSettings and UserSettings. The A functions keep text in the system's code page, as the other programs
// of the control do.
#include "settings/Registry.h"

#include <windows.h>

namespace {

// A key that is open as long as the object lives.
class OpenKey {
  public:
    static OpenKey ForReading(const std::string& path) {
        OpenKey key;
        if (RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key.key_) != ERROR_SUCCESS)
            key.key_ = nullptr;
        return key;
    }

    static OpenKey ForWriting(const std::string& path) {
        OpenKey key;
        if (RegCreateKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_WRITE,
                            nullptr, &key.key_, nullptr) != ERROR_SUCCESS)
            key.key_ = nullptr;
        return key;
    }

    OpenKey(OpenKey&& other) noexcept : key_(other.key_) { other.key_ = nullptr; }
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;

    ~OpenKey() {
        if (key_ != nullptr)
            RegCloseKey(key_);
    }

    explicit operator bool() const { return key_ != nullptr; }
    HKEY Handle() const { return key_; }

  private:
    OpenKey() = default;
    HKEY key_ = nullptr;
};

std::string Convert(std::string_view text, UINT from, UINT to) {
    if (text.empty())
        return {};
    const int length = static_cast<int>(text.size());
    std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(from, 0, text.data(), length, nullptr, 0)),
                      L'\0');
    MultiByteToWideChar(from, 0, text.data(), length, wide.data(), static_cast<int>(wide.size()));
    const int wideLength = static_cast<int>(wide.size());
    std::string result(static_cast<std::size_t>(
                           WideCharToMultiByte(to, 0, wide.data(), wideLength, nullptr, 0, nullptr, nullptr)),
                       '\0');
    WideCharToMultiByte(to, 0, wide.data(), wideLength, result.data(), static_cast<int>(result.size()),
                        nullptr, nullptr);
    return result;
}

// Keeps other copies of the program from writing meanwhile. Waits for them, but only for a few seconds: a
// copy that was stopped must not block all others. The system gives up the lock of a copy that was killed.
class WritersLock {
  public:
    WritersLock() : mutex_(CreateMutexW(nullptr, FALSE, L"Local\\VELTRANDOR-Qorvix-Settings")) {
        constexpr DWORD MostWait = 5000; // milliseconds
        if (mutex_ != nullptr)
            isHeld_ = WaitForSingleObject(mutex_, MostWait) != WAIT_TIMEOUT;
    }
    ~WritersLock() {
        if (isHeld_)
            ReleaseMutex(mutex_);
        if (mutex_ != nullptr)
            CloseHandle(mutex_);
    }
    WritersLock(const WritersLock&) = delete;
    WritersLock& operator=(const WritersLock&) = delete;

  private:
    HANDLE mutex_;
    bool isHeld_ = false;
};

class WindowsSettings : public SettingsStore {
  public:
    std::optional<SettingValue> Read(std::string_view keyPath, std::string_view name) const override {
        const OpenKey key = OpenKey::ForReading(std::string(keyPath));
        if (!key)
            return std::nullopt;
        char buffer[Registry::LongestText + 1] = {};
        DWORD type = 0;
        DWORD size = sizeof buffer;
        if (RegQueryValueExA(key.Handle(), std::string(name).c_str(), nullptr, &type,
                             reinterpret_cast<BYTE*>(buffer), &size) != ERROR_SUCCESS)
            return std::nullopt;
        if (type == REG_SZ)
            return Convert(std::string_view(buffer, strnlen(buffer, size)), CP_ACP, CP_UTF8);
        if (type == REG_DWORD && size == sizeof(std::int32_t)) {
            std::int32_t number = 0;
            memcpy(&number, buffer, sizeof number);
            return number;
        }
        return std::nullopt;
    }

    bool Change(const std::vector<SettingsChange>& changes) override {
        const WritersLock lock;
        bool all = true;
        for (const SettingsChange& change : changes)
            all = Make(change) && all;
        return all;
    }

  private:
    // A key that is not there need not be deleted.
    static bool IsDone(LSTATUS deleted) {
        return deleted == ERROR_SUCCESS || deleted == ERROR_FILE_NOT_FOUND;
    }

    static bool Make(const SettingsChange& change) {
        if (change.What == SettingsChange::Kind::DeleteKey)
            return IsDone(RegDeleteTreeA(HKEY_CURRENT_USER, change.KeyPath.c_str()));
        const OpenKey key = OpenKey::ForWriting(change.KeyPath);
        if (!key)
            return false;
        if (change.What == SettingsChange::Kind::CreateKey)
            return true;
        if (const auto* number = std::get_if<std::int32_t>(&change.Value))
            return RegSetValueExA(key.Handle(), change.Name.c_str(), 0, REG_DWORD,
                                  reinterpret_cast<const BYTE*>(number), sizeof *number) == ERROR_SUCCESS;
        const std::string text = Convert(std::get<std::string>(change.Value), CP_UTF8, CP_ACP);
        return RegSetValueExA(key.Handle(), change.Name.c_str(), 0, REG_SZ,
                              reinterpret_cast<const BYTE*>(text.c_str()),
                              static_cast<DWORD>(text.size() + 1)) == ERROR_SUCCESS;
    }
};

} // namespace

std::unique_ptr<SettingsStore> MakeUserSettings() { return std::make_unique<WindowsSettings>(); }
