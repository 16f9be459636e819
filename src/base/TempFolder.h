// SPDX-License-Identifier: MIT
#pragma once

#include "base/TempFolderMark.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// The program's scratch folder: "Qorvix" in the system's temporary folder, for its owner only. If something
// already has that name, it stays as it is, and this copy makes its own folder beside it: "Qorvix-temp-" and
// six random characters.
//
// The constructor first removes folders of these names whose marks prove that a copy of the program left them
// and no longer runs (TempFolderMark); it ignores failures of that. The destructor removes what the program
// made in the folder, by its mark, and then the folder, unless others have put something there. If somebody
// removes the folder meanwhile, the program makes it again when needed, perhaps with another name.
class TempFolder {
  public:
    // `parent` is the system's temporary folder, or its stand-in for a test. The constructor removes no
    // folder that holds the program or any of the files and folders in `kept` (UTF-8).
    explicit TempFolder(const std::filesystem::path& parent = SystemFolder(),
                        const std::vector<std::string>& kept = {});
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    // Empty when no folder could be made.
    const std::filesystem::path& Path() const { return path_; }

    // Makes a new folder in it, for files that may be discarded; empty when that failed. If the scratch
    // folder itself had to be made again, Path gives its new name.
    std::filesystem::path MakeSubfolder() const;

    // Removes such a folder with what was noted in it; without memory, what is left of it goes in the end.
    void RemoveSubfolder(const std::filesystem::path& folder) const;

    // Notes files in the folder before they are made, so that they are removed in the end. False when one
    // exists that this program did not make, or when noting failed; then the caller may make none of them.
    bool Note(const std::vector<std::filesystem::path>& files) const;

    // Removes a noted file in the folder.
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
