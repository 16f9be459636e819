// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileHandles.h"

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>

// The mark of a temporary folder, a file in it that only this program writes: it proves that the program made
// the folder, names everything else that it makes there, and is locked by the copy that has the folder. Names
// are noted before the files are made, so that also a copy that is killed leaves nothing that is not named.
//
// A name is a path below the folder; that of a folder ends with "/". A part file of a noted file is noted
// with it.
class TempFolderMark {
  public:
    static constexpr const char* FileName = ".qorvix-temp";

    // Marks a folder that this process has just made; nothing where that failed, and then no mark is left.
    static std::optional<TempFolderMark> Make(const std::filesystem::path& folder);

    // Takes the mark of a folder that is provably what a copy of the program left that no longer runs: a real
    // folder, folder and mark this user's and for this user only, the mark whole, its lock free, and in the
    // folder only what is noted. Nothing for all others, which stay as they are.
    static std::optional<TempFolderMark> Take(const std::filesystem::path& folder);

    const std::filesystem::path& Folder() const { return folder_; }

    // True while the folder and the mark in it have their names.
    bool IsThere() const { return IsNameOf(folder_ / FileName, file_); }

    // Notes a name; false where that failed.
    bool Note(const std::string& name);
    bool HasNoted(const std::string& name) const { return names_.contains(name); }

    // Removes what is noted below a noted folder, and this if it is empty then.
    void RemoveFolder(const std::string& name);

    // Removes what is noted and the mark, and the folder if it is empty then.
    void Remove() const;

  private:
    TempFolderMark(std::filesystem::path folder, FileHandle file);

    bool Read();
    bool IsNotedFile(const std::string& folder, const std::string& name) const;
    bool HasOnlyNoted(const std::string& folder) const;
    void RemoveNoted(std::string_view folder) const;

    std::filesystem::path folder_;
    FileHandle file_;
    FileHandle folderLock_; // as those look for who clear folders for temporary files
    std::set<std::string> names_;
};
