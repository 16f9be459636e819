// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileHandles.h"

#include <cstdint>
#include <string_view>

// What is asked of the operating system about files and folders, for the files of this folder alone. Each
// system has a file of its own that answers it. On failure errno says why; where success may leave an older
// errno, the caller sets it to 0 first.
struct SystemFile {
    enum class Access : std::uint8_t { Read, ReadWrite, Append };
    enum class Existing : std::uint8_t { Must, May, MustNot }; // is there already

    // How a file is opened. A link at the end of the path is not followed unless that is said; a pipe is not
    // waited for. A file that is made is for its owner alone.
    struct Opening {
        SystemFile::Access Access = Access::Read;
        SystemFile::Existing Existing = Existing::Must;
        bool FollowsLink = false;
    };
    static FileHandle Open(const std::filesystem::path& path, const Opening& opening);

    // An open folder, which others see as being in use; not open where the system has no such thing.
    static FileHandle HoldFolder(const std::filesystem::path& folder);

    static std::int64_t Size(const FileHandle& file); // in bytes; -1 on failure
    static bool Resize(const FileHandle& file, std::int64_t size);

    // How many bytes were read, 0 at the end; -1 on failure.
    static std::int64_t ReadAt(const FileHandle& file, std::int64_t place, char* bytes, std::size_t most);

    // Write all of the bytes, at `place`, which goes on with what was written; or at the end of a file opened
    // to append, which may have written some of them when it fails.
    static bool WriteAt(const FileHandle& file, std::int64_t& place, std::string_view bytes);
    static bool Append(const FileHandle& file, std::string_view bytes);

    // Gives a finished file the permissions of the file that it will replace, or those of a new file.
    static void GivePermissionsOf(const std::filesystem::path& target, const FileHandle& file);

    // Moves a file to the place of another one, which nobody sees missing meanwhile.
    static std::error_code Replace(const std::filesystem::path& file, const std::filesystem::path& target);

    // Lets all users read a file.
    static void ShareForReading(const FileHandle& file);

    // Makes a folder that is not there yet, for its owner alone.
    static bool MakeFolder(const std::filesystem::path& folder);

    // Remove a file (of a link the link), or a folder without anything in it.
    static bool RemoveFile(const std::filesystem::path& file);
    static bool RemoveFolder(const std::filesystem::path& folder);

    // True for a name that belongs to a device in every folder, also where no such device is connected.
    static bool IsNameOfDevice(const std::filesystem::path& path);

    // True for a file or folder of this user; a link is neither.
    static bool IsOwnFile(const std::filesystem::path& path);
    static bool IsOwnFolder(const std::filesystem::path& path);
    static bool IsOwn(const FileHandle& file);

    // The same, and no other user may use it; of an open file also that it has one name only.
    static bool IsPrivate(const FileHandle& file);
    static bool IsPrivateFolder(const std::filesystem::path& path);

    // Whether another user may have put a link there (FollowLinks).
    static bool MayBePlanted(const std::filesystem::path& link, const std::filesystem::path& folder);

    static FileHandle Handle(int number) { return FileHandle(number); } // -1 = none
    static int Number(const FileHandle& file) { return file.number_; }
};

// Opens a file to lock it. Opens for writing, which a lock across a network needs, and for reading only where
// this user may not write.
FileHandle OpenToLock(const std::filesystem::path& file, SystemFile::Existing existing);
