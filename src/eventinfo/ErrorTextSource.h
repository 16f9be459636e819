// SPDX-License-Identifier: MIT
#pragma once

#include "eventinfo/ErrorTextFile.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The control's language files that lie somewhere: in a folder, or in a service archive. Nothing is read from
// beyond that place.
class ErrorTextSource {
  public:
    virtual ~ErrorTextSource() = default;

    // The files, each place among language files once: where several are for one place, the one of the fewest
    // folders above it, then the first by name.
    const std::vector<ErrorTextFile>& Files() const { return files_; }

    // Those that are larger than a language file can be (LanguageFile), by their names. They are not in
    // Files.
    const std::vector<std::string>& TooLarge() const { return tooLarge_; }

    // A control has some hundred files of some megabytes. Where more than these are found, there is a
    // Problem.
    static constexpr std::size_t MostFiles = 5000;
    static constexpr std::uint64_t MostBytes = std::uint64_t{256} << 20U; // in Files together

    // Why the place could not be searched to its end, in the user's words; "" when it was. Then Files is
    // empty.
    const std::string& Problem() const { return problem_; }

    // The whole content of one of the files, by its place in Files; nothing when it cannot be read, and
    // `reason` then says why.
    virtual std::optional<std::string> Content(std::size_t file, std::string& reason) = 0;

  protected:
    // A file that was found, from which Files are chosen.
    struct Found {
        ErrorTextFile File;
        std::size_t Depth = 0; // the number of folders above it
        std::string From;      // orders those of one depth
        std::uint64_t Size = 0;
        std::size_t Place = 0; // where its content is, in the terms of the kind of source
    };
    void Choose(std::vector<Found> found, Language language);

    // The Place of one of the files.
    std::size_t PlaceOf(std::size_t file) const { return places_[file]; }

    std::string problem_;

  private:
    std::vector<ErrorTextFile> files_;
    std::vector<std::size_t> places_; // of the files
    std::vector<std::string> tooLarge_;
};
