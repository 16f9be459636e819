// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

// The program's scratch folder: "Qorvix" in the system's temporary folder, for its owner only. A folder that
// a crashed copy of the program left is emptied and used. Where a running copy holds it, or it is a link or
// somebody else's, this copy takes a folder of its own beside it, "Qorvix-temp-" and six random characters.
// Such folders that crashed copies left are removed.
//
// The object holds the folder; its end empties and removes it, and no other. Failures of that are ignored. A
// folder that somebody else removed meanwhile is made anew when it is needed again, perhaps by another name.
class TempFolder {
  public:
    // `parent` is the system's temporary folder, or what stands for it in a test.
    explicit TempFolder(const std::filesystem::path& parent = SystemFolder());
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    // Empty when no folder could be made.
    const std::filesystem::path& Path() const { return path_; }

    // A new folder in it, for what is not yet decided upon; empty when it could not be made. Where the folder
    // itself had to be made anew, Path has its new name.
    std::filesystem::path MakeSubfolder() const;

    // The system's temporary folder; empty when there is none.
    static std::filesystem::path SystemFolder();

  private:
    enum class Taking { Held, Refused, Gone };

    void Make() const;
    Taking Take(const std::filesystem::path& folder) const;
    bool IsHeld() const;
    void RemoveLeft() const;
    void Empty() const;
    void Remove() const;
    void Release() const;

    std::filesystem::path parent_;
    mutable std::filesystem::path path_;
    mutable int lock_ = -1;
};
