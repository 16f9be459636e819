// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Texts.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct zip;

// A member of a zip archive. A "/" in its name becomes "\" here, so that both forms are the same name.
struct ZipMember {
    std::string Name;
    std::uint64_t Size = 0;       // unpacked, as the archive claims
    std::uint64_t PackedSize = 0; // in bytes

    // The part of the name behind its last "\".
    std::string_view FileName() const;

    // Why the member is too large to be unpacked; "" when it is not. It is when it claims more than 4 GiB, or
    // more than 64 MiB and over a thousand times its packed size, or for filters and comments more than their
    // own bounds.
    std::string_view Refusal(Language language) const;
};

// Reads a zip archive.
class ZipArchive {
  public:
    // Failures are reported in this language.
    ZipArchive(const std::filesystem::path& file, Language language);

    // Why the archive could not be listed, or a member not unpacked; "" when nothing failed.
    const std::string& Error() const { return error_; }

    const std::vector<ZipMember>& Members() const { return members_; }

    // The first member of this name.
    std::optional<std::size_t> FindMember(std::string_view name) const;

    // Gives a member to `take` piece by piece, as long as it returns true. False when `take` stopped, or when
    // the member could not be read or is damaged; Error then says why.
    bool Read(std::size_t member, const std::function<bool(std::string_view)>& take);

    // Unpacks a member to a file, whole or not at all.
    bool Unpack(std::size_t member, const std::filesystem::path& target);

  private:
    struct Close {
        void operator()(zip* archive) const;
    };

    bool Fail(std::string_view reason);
    bool Fail(TextId reason) { return Fail(Text(reason, language_)); }

    Language language_;
    std::unique_ptr<zip, Close> archive_;
    std::vector<ZipMember> members_;
    std::string error_;
};
