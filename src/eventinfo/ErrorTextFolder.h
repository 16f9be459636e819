// SPDX-License-Identifier: MIT
#pragma once

#include "eventinfo/ErrorTextSource.h"

#include <filesystem>

// The language files in a folder and in all folders below it. Links are not followed. A folder with more than
// MostItems items in it is not searched to its end.
class ErrorTextFolder : public ErrorTextSource {
  public:
    static constexpr std::size_t MostItems = 100'000;

    ErrorTextFolder(const std::filesystem::path& folder, Language language);

    std::optional<std::string> Content(std::size_t file, std::string& reason) override;

  private:
    void TakeItem(const std::filesystem::path& item, std::size_t depth, std::vector<Found>& found,
                  std::vector<std::filesystem::path>& below);

    Language language_;
    std::vector<std::filesystem::path> paths_; // by their places
};
