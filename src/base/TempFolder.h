// SPDX-License-Identifier: MIT
#pragma once

#include "base/TempFolderMark.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// The program's scratch folder: "Qorvix" in the system's temporary folder, for its owner only. Where there is
// something of that name already, that stays as it is, and this copy makes a folder of its own beside it,
// "Qorvix-temp-" and six random characters.
//
// The object holds the folder. Its end removes what the program made there, which the folder's mark tells,
// and the folder; what others put there stays, and with it the folder. Its begin removes the folders of these
// names that copies of the program left which no longer run, where their marks prove that (TempFolderMark).
// Failures of that are ignored. A folder that somebody else removed meanwhile is made anew when it is needed
// again, perhaps by another name.
class TempFolder {
  public:
    // `parent` is the system's temporary folder, or what stands for it in a test. Folders that hold one of
    // the `kept` files and folders (UTF-8), or the program itself, are not removed at the beginning.
    explicit TempFolder(const std::filesystem::path& parent = SystemFolder(),
                        const std::vector<std::string>& kept = {});
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    // Empty when no folder could be made.
    const std::filesystem::path& Path() const { return path_; }

    // A new folder in it, for what is not yet decided upon; empty when it could not be made. Where the folder
    // itself had to be made anew, Path has its new name.
    std::filesystem::path MakeSubfolder() const;

    // Removes such a folder and what was noted in there.
    void RemoveSubfolder(const std::filesystem::path& folder) const;

    // Notes files in the folder before they are made, so that they are removed in the end. False where one is
    // there already that this program did not make, or where noting failed; then none may be made.
    bool Note(const std::vector<std::filesystem::path>& files) const;

    // Removes a file in the folder that was noted.
    void RemoveFile(const std::filesystem::path& file) const;

    // The system's temporary folder; empty when there is none.
    static std::filesystem::path SystemFolder();

  private:
    void Make() const;
    bool Mark(const std::filesystem::path& folder) const;
    bool IsForeign(const std::filesystem::path& file) const;
    void RemoveLeft(const std::vector<std::string>& kept) const;

    std::filesystem::path parent_;
    mutable std::filesystem::path path_;
    mutable std::optional<TempFolderMark> mark_; // of the folder, held
};
