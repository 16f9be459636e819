// SPDX-License-Identifier: MIT
#include "base/LastError.h"
#include "base/Paths.h"
#include "base/WindowsError.h"

#include <string_view>

#include <windows.h>

namespace {

// A search that is ended with the object.
class FolderSearch {
  public:
    explicit FolderSearch(const std::filesystem::path& folder)
        : handle_(FindFirstFileW((folder / L"*").c_str(), &item_)) {}
    ~FolderSearch() {
        if (IsOpen())
            FindClose(handle_);
    }
    FolderSearch(const FolderSearch&) = delete;
    FolderSearch& operator=(const FolderSearch&) = delete;

    bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    const wchar_t* Name() const { return item_.cFileName; }
    bool Next() { return FindNextFileW(handle_, &item_) != 0; }

  private:
    WIN32_FIND_DATAW item_{};
    HANDLE handle_;
};

} // namespace

std::vector<std::filesystem::path> ItemsIn(const std::filesystem::path& folder, std::error_code& error) {
    std::vector<std::filesystem::path> items;
    error.clear();
    FolderSearch search(folder);
    if (!search.IsOpen()) {
        // Even an empty folder has "." and "..", but not the root of a disk.
        if (GetLastError() != ERROR_FILE_NOT_FOUND || !std::filesystem::is_directory(folder, error)) {
            FailedCall();
            error = LastError();
        }
        return items;
    }
    do {
        const std::wstring_view name = search.Name();
        if (name != L"." && name != L"..")
            items.push_back(folder / name);
    } while (search.Next());
    if (GetLastError() != ERROR_NO_MORE_FILES) {
        FailedCall();
        error = LastError();
    }
    return items;
}

std::vector<std::filesystem::path> ItemsIn(const std::filesystem::path& folder) {
    std::error_code ignored;
    return ItemsIn(folder, ignored);
}
