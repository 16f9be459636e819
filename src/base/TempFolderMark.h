// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileHandles.h"

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>

// The mark of a temporary folder: a file in it that only this program writes. It proves that the program made
// the folder, and it names everything else that the program makes there. The copy that uses the folder holds
// the mark's lock. Names are noted before the files are made, so that even a killed copy leaves no file
// without a name in the mark.
//
// A name is a path below the folder; the name of a folder ends with "/". Noting a file notes its part files,
// too.
class TempFolderMark {
  public:
    static constexpr const char* FileName = ".qorvix-temp";

    // Marks a folder that this process has just made. Nothing when that failed; no mark is left then.
    static std::optional<TempFolderMark> Make(const std::filesystem::path& folder);

    // Takes the mark of a folder when it proves that a copy of the program left it and no longer runs: it is
    // a real folder, folder and mark belong to this user alone, the mark is whole, its lock is free, and the
    // folder holds only what is noted. Nothing for any other folder, which stays as it is.
    static std::optional<TempFolderMark> Take(const std::filesystem::path& folder);

    const std::filesystem::path& Folder() const { return folder_; }

    // True while the folder and its mark have their names.
    bool IsThere() const { return IsNameOf(folder_ / FileName, file_); }

    // Notes a name; false when that failed.
    bool Note(const std::string& name);
    bool HasNoted(const std::string& name) const { return names_.contains(name); }

    // Removes what is noted below a noted folder, and then the folder if it is empty.
    void RemoveFolder(const std::string& name);

    // Removes what is noted and the mark, and then the folder if it is empty. Nothing else may be done then.
    void Remove();

  private:
    TempFolderMark(std::filesystem::path folder, FileHandle file);

    bool Read();
    bool IsNotedFile(const std::string& folder, const std::string& name) const;
    bool HasOnlyNoted(const std::string& folder) const;
    void RemoveNoted(std::string_view folder) const;

    std::filesystem::path folder_;
    FileHandle file_;
    FileHandle folderLock_; // programs that clear temporary folders look for it
    std::set<std::string> names_;
};
