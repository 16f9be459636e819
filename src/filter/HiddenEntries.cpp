// SPDX-License-Identifier: MIT
#include "filter/HiddenEntries.h"

#include "filter/FilterMatches.h"
#include "settings/NumberText.h"
#include "settings/Texts.h"

#include <algorithm>
#include <numeric>

namespace {

// The groups of filters for the matching.
constexpr std::size_t Include = 0;
constexpr std::size_t ExcludeText = 1;
constexpr std::size_t ExcludeNumber = 2;

constexpr unsigned Shown = HiddenEntries::Causes; // in the place of a cause

// What is known of the entries of a kind, in the five bits that the matching leaves.
struct KnownOfKind {
    static constexpr unsigned Missings = HiddenEntries::NotAdded - HiddenEntries::NotText + 1;
    static constexpr unsigned Removals = 3;

    unsigned Missing = HiddenEntries::NotAdded; // the cause when no filter adds the entry
    unsigned Removal = Shown;                   // ByType or ByName, by a filter without a text, or Shown
    bool HasEventType = true;

    unsigned Bits() const {
        const unsigned removal = Removal == Shown ? 0 : Removal - HiddenEntries::ByName + 1;
        return ((Missing - HiddenEntries::NotText) * Removals + removal) * 2 + (HasEventType ? 1 : 0);
    }

    static constexpr KnownOfKind Of(unsigned bits) {
        const unsigned removal = bits / 2 % Removals;
        return {.Missing = HiddenEntries::NotText + bits / 2 / Removals,
                .Removal = removal == 0 ? Shown : HiddenEntries::ByName + removal - 1,
                .HasEventType = bits % 2 != 0};
    }
};
static_assert(KnownOfKind::Missings * KnownOfKind::Removals * 2 <= 256U >> FilterMatches::Groups);

constexpr unsigned CauseOf(unsigned matched) {
    const KnownOfKind kind = KnownOfKind::Of(matched >> FilterMatches::Groups);
    const auto matches = [&](std::size_t group) { return (matched >> group & 1U) != 0; };
    if (!matches(Include))
        return kind.Missing;
    if (kind.Removal != Shown)
        return kind.Removal;
    if (matches(ExcludeText))
        return HiddenEntries::ByText;
    if (matches(ExcludeNumber))
        return HiddenEntries::ByNumber;
    return kind.HasEventType ? Shown : static_cast<unsigned>(HiddenEntries::NotReached);
}

constexpr std::array<std::uint8_t, 256> MakeCauses() {
    std::array<std::uint8_t, 256> causes{};
    for (unsigned matched = 0; matched < causes.size(); ++matched)
        causes[matched] = static_cast<std::uint8_t>(CauseOf(matched));
    return causes;
}
constexpr std::array<std::uint8_t, 256> CausesByMatch = MakeCauses();

// Which condition of the filter an entry of this kind lacks, if it lacks one; of several the first.
HiddenEntries::Cause LackOf(const FilterDefinition& filter, const EntryKind& kind) {
    if (filter.FilterType == FilterTypes::Numbers)
        return HiddenEntries::NotNumber;
    if (filter.FilterType != FilterTypes::All && filter.FilterType != kind.EventType)
        return HiddenEntries::NotType;
    return MatchKind(filter, kind) ? HiddenEntries::NotText : HiddenEntries::NotName;
}

bool HasName(const FilterDefinition& filter) {
    return filter.FilterType != FilterTypes::All && filter.FilterType <= FilterTypes::Fatal &&
           (!filter.Name.empty() || !filter.Emitter.empty());
}

bool CanMatch(const FilterDefinition& filter) {
    return filter.Active && filter.FilterType >= 0 && filter.FilterType < FilterTypes::Count;
}

KnownOfKind KnownOf(const EntryKind& kind, std::span<const FilterDefinition> filters) {
    KnownOfKind known;
    known.HasEventType = IsEventType(kind.EventType);
    for (const FilterDefinition& filter : filters) {
        if (!CanMatch(filter))
            continue;
        // The causes stand in the order of their rank.
        if (filter.Action == FilterActions::Include)
            known.Missing = std::min<unsigned>(known.Missing, LackOf(filter, kind));
        const bool byKind = filter.FilterType != FilterTypes::Numbers && filter.StringFilter.empty();
        if (filter.Action != FilterActions::Exclude || !byKind || !MatchKind(filter, kind))
            continue;
        if (!HasName(filter))
            known.Removal = HiddenEntries::ByType;
        else if (known.Removal == Shown)
            known.Removal = HiddenEntries::ByName;
    }
    return known;
}

HiddenEntries WithoutShown(const std::array<EntryNumber, Shown + 1>& counts) {
    HiddenEntries hidden;
    std::copy_n(counts.begin(), hidden.Counts.size(), hidden.Counts.begin());
    return hidden;
}

// By cause.
constexpr std::array<TextId, HiddenEntries::Causes> CauseTexts{
    TextId::HiddenByNumber, TextId::HiddenByText,    TextId::HiddenByName,  TextId::HiddenByType,
    TextId::HiddenNotText,  TextId::HiddenNotName,   TextId::HiddenNotType, TextId::HiddenNotNumber,
    TextId::HiddenNotAdded, TextId::HiddenNotReached};

} // namespace

EntryNumber HiddenEntries::Sum() const {
    return std::accumulate(Counts.begin(), Counts.end(), EntryNumber{0});
}

HiddenEntries CountHidden(const EntryTable& entries, std::span<const FilterDefinition> filters) {
    FilterMatches matches(entries);
    for (std::uint32_t kind = 0; kind < entries.Kinds().Count(); ++kind)
        matches.Set(kind, KnownOf(entries.Kinds()[kind], filters).Bits());
    for (const FilterDefinition& filter : filters) {
        if (!CanMatch(filter))
            continue;
        if (filter.Action == FilterActions::Include)
            matches.Add(filter, Include);
        else if (filter.Action == FilterActions::Exclude && filter.FilterType == FilterTypes::Numbers)
            matches.Add(filter, ExcludeNumber);
        else if (filter.Action == FilterActions::Exclude && !filter.StringFilter.empty())
            matches.Add(filter, ExcludeText);
    }

    const EntryNumber count = entries.Count();
    std::array<EntryNumber, Shown + 1> counts{};
    for (EntryNumber first = 0; first < count; first += FilterMatches::BatchSize) {
        const EntryNumber end = first + std::min(count - first, FilterMatches::BatchSize);
        matches.BeginBatch(first, end);
        for (EntryNumber number = first; number < end; ++number) {
            const std::uint8_t cause = CausesByMatch[matches.Of(number)];
            ++counts[cause];
            if (cause == HiddenEntries::NotReached) {
                counts[cause] = count - number;
                return WithoutShown(counts);
            }
        }
    }
    return WithoutShown(counts);
}

std::string HiddenText(const HiddenEntries& hidden, Language language) {
    std::string text;
    for (std::size_t cause = 0; cause < HiddenEntries::Causes; ++cause) {
        if (hidden.Counts[cause] == 0)
            continue;
        text += text.empty() ? "" : ", ";
        text += GroupedText(hidden.Counts[cause], language);
        text += Text(CauseTexts[cause], language);
    }
    return text;
}
