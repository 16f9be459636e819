// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Texts.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

struct zip;

// A bound for files with this extension (in small letters); larger ones are not unpacked.
struct ZipBound {
    std::string_view Extension;
    std::uint64_t Most; // in bytes
    TextId Reason;      // shown for a larger one
};

// A member of a zip archive. A "/" in its name becomes "\" here, so that both forms are the same name.
struct ZipMember {
    std::string Name;
    std::uint64_t Size = 0;       // unpacked, as the archive claims
    std::uint64_t PackedSize = 0; // in bytes
    bool IsFile = true;           // false for a link, or whatever else no file is

    // The part of the name behind its last "\".
    std::string_view FileName() const;

    // Why the member is too large to be unpacked; "" when it is not. It is when it claims more than 4 GiB, or
    // more than 64 MiB and over a thousand times its packed size, or more than the bound of its extension.
    std::string_view Refusal(Language language, std::span<const ZipBound> bounds) const;
};

// Reads a zip archive.
class ZipArchive {
  public:
    // Failures are reported in this language. The bounds must outlive the archive.
    ZipArchive(const std::filesystem::path& file, Language language, std::span<const ZipBound> bounds);

    // Why the archive could not be listed, or a member not unpacked; "" when nothing failed.
    const std::string& Error() const { return error_; }

    const std::vector<ZipMember>& Members() const { return members_; }

    // The place of the first member that `fits`.
    template <typename Condition>
    std::optional<std::size_t> FindMember(const Condition& fits) const {
        const auto found = std::find_if(members_.begin(), members_.end(), fits);
        if (found == members_.end())
            return std::nullopt;
        return static_cast<std::size_t>(found - members_.begin());
    }

    // Gives a member to `take` piece by piece, as long as it returns true. False when `take` stopped, or when
    // the member could not be read or is damaged; Error then says why.
    bool Read(std::size_t member, const std::function<bool(std::string_view)>& take);

    // Unpacks a member to a file, whole or not at all.
    bool Unpack(std::size_t member, const std::filesystem::path& target);

  private:
    struct Close {
        void operator()(zip* archive) const;
    };

    void Open(const std::filesystem::path& file);
    bool Fail(std::string_view reason);
    bool Fail(TextId reason) { return Fail(Text(reason, language_)); }

    Language language_;
    std::span<const ZipBound> bounds_;
    std::unique_ptr<zip, Close> archive_;
    std::vector<ZipMember> members_;
    std::string error_;
};
