// SPDX-License-Identifier: MIT
#pragma once

#include "base/Prefetch.h"
#include "rows/RadixSort.h"
#include "rows/SortDirection.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The texts of a sort, each by its number.
class TextSource {
  public:
    virtual ~TextSource() = default;
    virtual std::string_view Text(std::uint32_t number) const = 0;

    // Called before Text to prefetch the text: PrepareFirst well before PrepareSecond, and that well before
    // Text.
    virtual void PrepareFirst(std::uint32_t) const {}
    virtual void PrepareSecond(std::uint32_t) const {}
};

// Texts in a list, by their places.
class TextList : public TextSource {
  public:
    explicit TextList(std::span<const std::string_view> texts) : texts_(texts) {}
    std::string_view Text(std::uint32_t number) const override { return texts_[number]; }
    void PrepareFirst(std::uint32_t number) const override { Prefetch(&texts_[number]); }
    void PrepareSecond(std::uint32_t number) const override { Prefetch(texts_[number].data()); }

  private:
    std::span<const std::string_view> texts_;
};

// Sorts numbers by their texts without regard to case; equal texts keep their order, also in a descending
// sort. Takes 24 bytes a number while it lives.
//
// Random access to the texts is the main cost, so each text is fetched as seldom as possible: seven of its
// bytes become a key, the keys are sorted, and only texts with the same key are fetched again, for the bytes
// behind their common beginning.
class TextSort {
  public:
    TextSort(const TextSource& texts, std::size_t mostNumbers, SortDirection direction,
             SortProgress& progress);

    // At most `mostNumbers` times.
    void Add(std::uint32_t number) { items_[count_++].Number = number; }

    // Covers this part, in percent, of the remaining way. False when the sort was stopped.
    bool Sort(int partOfRest);

    std::size_t Count() const { return count_; }
    std::uint32_t operator[](std::size_t place) const { return items_[place].Number; }

    // Gives back half of the memory; Sort may not be called after this.
    void ReleaseScratch() { (itemsAreFirst_ ? second_ : first_).reset(); }

  private:
    using Item = Keyed<std::uint64_t>;

    std::uint64_t KeyAt(std::string_view text, std::size_t place) const;
    bool IsWhole(std::uint64_t key) const;
    std::string CommonOfSome(std::size_t begin, std::size_t end) const;
    bool FetchKeys(std::size_t begin, std::size_t end, std::size_t& place, bool& differ);
    bool SortByKeys(std::size_t begin, std::size_t end);
    bool SortRuns(std::size_t begin, std::size_t end, std::size_t place);
    bool SortRun(std::size_t begin, std::size_t end, std::size_t place);
    void SortByComparing(std::size_t begin, std::size_t end);

    const TextSource& texts_;
    SortProgress& progress_;
    std::uint64_t flip_; // the bits of a key to invert: all in a descending sort
    std::size_t count_ = 0;
    std::unique_ptr<Item[]> first_;
    std::unique_ptr<Item[]> second_;
    bool itemsAreFirst_ = true;
    Item* items_;
    Item* scratch_;
};

// Each text's place in the ascending order, from 0 on; texts that are the same without regard to case share a
// place. Covers this part, in percent, of the remaining way. Empty when the sort was stopped.
std::vector<std::uint32_t> RanksOf(std::span<const std::string_view> texts, int partOfRest,
                                   SortProgress& progress);
