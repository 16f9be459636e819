// SPDX-License-Identifier: MIT
#include "rows/TextSort.h"

#include "base/CaseFolding.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t KeyBytes = 7;     // of the text in a key; the eighth counts the bytes at that place
constexpr std::size_t FewTexts = 8;     // quicker compared than given keys
constexpr std::size_t FewKeys = 256;    // quicker merged than spread over the buckets of a radix sort
constexpr std::size_t DeepPlace = 4096; // from here on texts are compared: each key would cost as much
constexpr std::size_t SomeTexts = 8;    // that a guess of what all have in common is made from
constexpr std::size_t SecondAhead = 24; // texts that are prepared ahead of their use
constexpr std::size_t FirstAhead = 2 * SecondAhead;

// Stable; `scratch` is as long as `items`.
template <typename Item, typename Less>
void MergeSort(std::span<Item> items, std::span<Item> scratch, Less less) {
    if (items.size() <= FewTexts) {
        for (std::size_t i = 1; i < items.size(); ++i) {
            const Item item = items[i];
            std::size_t place = i;
            for (; place > 0 && less(item, items[place - 1]); --place)
                items[place] = items[place - 1];
            items[place] = item;
        }
        return;
    }
    const std::size_t middle = items.size() / 2;
    MergeSort(items.first(middle), scratch.first(middle), less);
    MergeSort(items.subspan(middle), scratch.subspan(middle), less);
    if (!less(items[middle], items[middle - 1]))
        return;
    const auto lower = scratch.first(middle);
    std::copy_n(items.begin(), middle, lower.begin());
    std::size_t next = 0;
    std::size_t upper = middle;
    for (std::size_t place = 0; next < middle; ++place)
        items[place] =
            upper < items.size() && less(items[upper], lower[next]) ? items[upper++] : lower[next++];
}

} // namespace

TextSort::TextSort(const TextSource& texts, std::size_t mostNumbers, SortDirection direction,
                   SortProgress& progress)
    : texts_(texts),
      progress_(progress),
      flip_(direction == SortDirection::Descending ? ~std::uint64_t{0} : 0),
      first_(std::make_unique_for_overwrite<Item[]>(mostNumbers)),
      second_(std::make_unique_for_overwrite<Item[]>(mostNumbers)),
      items_(first_.get()),
      scratch_(second_.get()) {}

bool TextSort::Sort(int partOfRest) {
    constexpr int KeysPart = 40;
    constexpr std::size_t PassesOverKeys = 8; // fetching them, counting and spreading their digits
    progress_.BeginPhase(partOfRest * KeysPart / 100, count_ * PassesOverKeys);
    std::size_t place = 0;
    bool differ = false;
    if (!FetchKeys(0, count_, place, differ) || (differ && !SortByKeys(0, count_)))
        return false;
    progress_.BeginPhase(partOfRest * (100 - KeysPart) / (100 - partOfRest * KeysPart / 100), count_);
    return SortRuns(0, count_, place + KeyBytes);
}

// The bytes from a place on, and their number, so that a text comes before longer texts that begin with it.
std::uint64_t TextSort::KeyAt(std::string_view text, std::size_t place) const {
    const FoldedEight eight = FoldedEightAt(text, place);
    return ((eight.Bytes & ~std::uint64_t{0xFF}) | eight.Count) ^ flip_;
}

// Texts with the same whole key are the same.
bool TextSort::IsWhole(std::uint64_t key) const { return ((key ^ flip_) & 0xFF) <= KeyBytes; }

std::string TextSort::CommonOfSome(std::size_t begin, std::size_t end) const {
    std::string common = FoldCase(texts_.Text(items_[begin].Number));
    const std::size_t step = std::max<std::size_t>((end - begin) / SomeTexts, 1);
    for (std::size_t i = begin + step; i < end; i += step)
        common.resize(CommonFolded(common, texts_.Text(items_[i].Number)));
    return common;
}

// Gives each item of a range the key of its text behind the common beginning of all the texts, which ends at
// `place` or later. Guesses where from some texts; if the guess is right, fetches each text only once.
bool TextSort::FetchKeys(std::size_t begin, std::size_t end, std::size_t& place, bool& differ) {
    if (begin == end)
        return true;
    std::string common = CommonOfSome(begin, end);
    bool guessed = false;
    while (!guessed) {
        place = common.size();
        differ = false;
        if (!progress_.ForEach(begin, end, [&](std::size_t i) {
                if (i + FirstAhead < end)
                    texts_.PrepareFirst(items_[i + FirstAhead].Number);
                if (i + SecondAhead < end)
                    texts_.PrepareSecond(items_[i + SecondAhead].Number);
                const std::string_view text = texts_.Text(items_[i].Number);
                common.resize(CommonFolded(common, text));
                items_[i].SetSortKey(KeyAt(text, place));
                differ = differ || items_[i].SortKey() != items_[begin].SortKey();
            }))
            return false;
        guessed = common.size() == place;
    }
    return true;
}

bool TextSort::SortByKeys(std::size_t begin, std::size_t end) {
    std::span<Item> items(items_ + begin, end - begin);
    std::span<Item> scratch(scratch_ + begin, end - begin);
    if (items.size() < FewKeys) {
        MergeSort(items, scratch, [](const Item& a, const Item& b) { return a.SortKey() < b.SortKey(); });
        return progress_.Step(items.size());
    }
    if (!RadixSort(
            items, scratch, [](const Item& item) { return item.SortKey(); }, progress_))
        return false;
    if (items.data() == items_ + begin)
        return true;
    if (items.size() == count_) {
        std::swap(items_, scratch_);
        itemsAreFirst_ = !itemsAreFirst_;
        return true;
    }
    std::copy(items.begin(), items.end(), items_ + begin);
    return true;
}

// Sorts each run of items with the same key, whose texts are the same up to `place`.
bool TextSort::SortRuns(std::size_t begin, std::size_t end, std::size_t place) {
    const auto isWanted = [&](std::size_t i) {
        const std::uint64_t key = items_[i].SortKey();
        return !IsWhole(key) && ((i > begin && items_[i - 1].SortKey() == key) ||
                                 (i + 1 < end && items_[i + 1].SortKey() == key));
    };
    std::size_t first = begin;
    std::size_t second = begin;
    for (std::size_t run = begin; run < end;) {
        const std::uint64_t key = items_[run].SortKey();
        std::size_t runEnd = run + 1;
        while (runEnd < end && items_[runEnd].SortKey() == key)
            ++runEnd;
        if (runEnd - run > 1 && !IsWhole(key)) {
            // Most runs are short, so the data of the next ones is fetched meanwhile.
            for (first = std::max(first, run); first < std::min(run + FirstAhead, end); ++first)
                if (isWanted(first))
                    texts_.PrepareFirst(items_[first].Number);
            for (second = std::max(second, run); second < std::min(run + SecondAhead, end); ++second)
                if (isWanted(second))
                    texts_.PrepareSecond(items_[second].Number);
            if (!SortRun(run, runEnd, place))
                return false;
        }
        if (!progress_.Step(runEnd - run))
            return false;
        run = runEnd;
    }
    return true;
}

bool TextSort::SortRun(std::size_t begin, std::size_t end, std::size_t place) {
    const SortProgress::Detour detour(progress_); // the run is counted as a whole
    if (end - begin <= FewTexts || place > DeepPlace) {
        SortByComparing(begin, end);
        return true;
    }
    bool differ = false;
    if (!FetchKeys(begin, end, place, differ))
        return false;
    if (!differ && IsWhole(items_[begin].SortKey()))
        return true;
    return SortByKeys(begin, end) && SortRuns(begin, end, place + KeyBytes);
}

void TextSort::SortByComparing(std::size_t begin, std::size_t end) {
    const bool descending = flip_ != 0;
    MergeSort(std::span(items_ + begin, end - begin), std::span(scratch_ + begin, end - begin),
              [&](const Item& a, const Item& b) {
                  progress_.Step(1); // lets events run; the sort ends when this range is done
                  const int order = CompareFolded(texts_.Text(a.Number), texts_.Text(b.Number));
                  return descending ? order > 0 : order < 0;
              });
}

std::vector<std::uint32_t> RanksOf(std::span<const std::string_view> texts, int partOfRest,
                                   SortProgress& progress) {
    const TextList source(texts);
    TextSort sort(source, texts.size(), SortDirection::Ascending, progress);
    for (std::size_t i = 0; i < texts.size(); ++i)
        sort.Add(static_cast<std::uint32_t>(i));
    if (!sort.Sort(partOfRest))
        return {};
    std::vector<std::uint32_t> ranks(texts.size());
    std::uint32_t rank = 0;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i + FirstAhead < texts.size()) {
            source.PrepareFirst(sort[i + FirstAhead]);
            source.PrepareSecond(sort[i + SecondAhead]);
        }
        if (i > 0 && CompareFolded(texts[sort[i - 1]], texts[sort[i]]) != 0)
            ++rank;
        ranks[sort[i]] = rank;
    }
    return ranks;
}
