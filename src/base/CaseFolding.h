// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// Text without regard to case, by Unicode's full case folding, which is the same in every language: "Straße"
// and "STRASSE" fold to "strasse". Texts and their folded forms are UTF-8, so that the order of the bytes is
// the order of the code points. Bytes that are not valid UTF-8 stay as they are.
std::string FoldCase(std::string_view text);

// Gives the folded bytes of a text one after the other. The text is not copied and must outlive this object.
class FoldedBytes {
  public:
    static constexpr int End = -1;

    explicit FoldedBytes(std::string_view text) : text_(text) {}

    // The next byte, 0 to 255, or End from the end of the text on.
    int Next() {
        if (pendingPlace_ < pendingCount_)
            return static_cast<unsigned char>(pending_[pendingPlace_++]);
        if (place_ == text_.size())
            return End;
        const auto byte = static_cast<unsigned char>(text_[place_]);
        if (byte >= 0x80)
            return NextBeyondAscii();
        ++place_;
        return byte >= 'A' && byte <= 'Z' ? byte - 'A' + 'a' : byte;
    }

  private:
    int NextBeyondAscii();

    static constexpr std::size_t MostPending = 16; // a code point folds to three of at most four bytes

    std::string_view text_;
    std::size_t place_ = 0;
    char pending_[MostPending] = {};
    std::size_t pendingPlace_ = 0;
    std::size_t pendingCount_ = 0;
};

// Below 0, 0 or above 0 when the folded form of `a` comes before, equals or comes after that of `b`.
int CompareFolded(std::string_view a, std::string_view b);

// How many bytes at the beginning of two folded texts are the same; `folded` must already be folded.
std::size_t CommonFolded(std::string_view folded, std::string_view text);

// Eight bytes of a folded text as one number, the first byte highest, so that the order of the numbers is the
// order of the texts. `Count` bytes, at most 8, belong to the text; the bytes behind its end are 0.
struct FoldedEight {
    std::uint64_t Bytes = 0;
    unsigned Count = 0;
};

// The eight folded bytes at a place of the folded text. The cost grows with the place, slowly for ASCII.
FoldedEight FoldedEightAt(std::string_view text, std::size_t place);
