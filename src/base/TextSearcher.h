// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Finds a text in much larger ones. Prepared once, it searches at about the speed of memory.
class TextSearcher {
  public:
    // Finds the text exactly as it is.
    explicit TextSearcher(std::string text);

    // Finds the text and all texts that differ from it only in bits that are set in `ignoredBits`, which has
    // as many bytes as the text.
    TextSearcher(std::string text, std::string_view ignoredBits);

    static constexpr std::size_t NotFound = std::string_view::npos;

    // The place of the first occurrence at or behind `from`; NotFound when there is none. An empty text is
    // found at `from`.
    std::size_t Find(std::string_view in, std::size_t from) const;

    const std::string& Text() const { return text_; }

  private:
    template <bool Exact>
    std::size_t FindForm(std::string_view in, std::size_t from) const;
    bool FitsAt(const char* place) const;

    std::string text_; // with all ignored bits set
    std::string ignoredBits_;
    bool exact_ = true;
    // Where the two bytes stand in the text that are likely to be the rarest. Where both fit, the whole is
    // compared.
    std::size_t rare_ = 0;
    std::size_t secondRare_ = 0;
};
