// SPDX-License-Identifier: MIT
// What the model knows of the filters in force: why entries are hidden, and whose numbers the filters hold.
#include "app/session/RandomSessionModel.h"

#include <array>

namespace {

SessionFilters NumberFiltersIn(const QStringList& stored) {
    SessionFilters numbers;
    for (const SessionFilter& filter : FiltersOf(stored))
        if (filter.Type == 8)
            numbers << filter;
    return numbers;
}

bool HasNames(const SessionFilter& filter) {
    return filter.Type >= 1 && filter.Type <= 4 && !(filter.Name + filter.Sender).isEmpty();
}

// Why an entry is hidden, in the order in which the window says so.
enum Cause { ByNumber, ByText, ByName, ByType, NotText, NotName, NotType, NotNumber, NotAdded, Shown };

constexpr const char* CauseWords[][2] = {
    {" removed by number", " nach Nummer entfernt"},
    {" removed by text", " nach Text entfernt"},
    {" removed by name or sender", " nach Name oder Quelle entfernt"},
    {" removed by type", " nach Art entfernt"},
    {" without the chosen texts", " ohne die gewählten Texte"},
    {" not of the chosen names or senders", " nicht von den gewählten Namen oder Quellen"},
    {" not of the chosen types", " nicht von den gewählten Arten"},
    {" not of the chosen numbers", " nicht von den gewählten Nummern"},
    {" not added by any filter", " von keinem Filter aufgenommen"},
};

Cause LackOf(SessionFilter filter, const SessionEntry& entry, int number) {
    if (filter.Type == 8)
        return NotNumber;
    if (filter.Type != 0 && filter.Type != entry.Type)
        return NotType;
    filter.Text.clear();
    return Matches(filter, entry, number) ? NotText : NotName;
}

Cause CauseOf(const SessionFilters& filters, const SessionEntry& entry, int number) {
    Cause lack = NotAdded;
    std::array<bool, NotText> removed{};
    bool isAdded = false;
    for (const SessionFilter& filter : filters) {
        if (!filter.Active || filter.Type < 0 || filter.Type > 9)
            continue;
        const bool matches = Matches(filter, entry, number);
        if (filter.Action == 'I') {
            isAdded = isAdded || matches;
            lack = std::min(lack, LackOf(filter, entry, number));
        } else if (filter.Action == 'X' && matches) {
            removed[filter.Type == 8         ? ByNumber
                    : !filter.Text.isEmpty() ? ByText
                    : HasNames(filter)       ? ByName
                                             : ByType] = true;
        }
    }
    if (!isAdded)
        return lack;
    for (const Cause cause : {ByType, ByName, ByText, ByNumber})
        if (removed[cause])
            return cause;
    return Shown;
}

std::array<int, Shown + 1> CausesOf(const SessionFilters& filters, const SessionEntries& entries) {
    std::array<int, Shown + 1> counts{};
    for (int number = 0; number < static_cast<int>(entries.size()); ++number)
        ++counts[CauseOf(filters, entries[number], number)];
    return counts;
}

// Where a logbook goes on, the data of what was its last entry may have changed.
bool GoesOn(const SessionEntries& logbook, const SessionEntries& later) {
    if (logbook.size() > later.size())
        return false;
    SessionEntry last = later[logbook.size() - 1];
    last.Type = logbook.back().Type;
    last.Icon = logbook.back().Icon;
    last.Data = logbook.back().Data;
    return last == logbook.back() && later.first(logbook.size() - 1) == logbook.first(logbook.size() - 1);
}

} // namespace

void RandomSessionModel::NoteNumbers(const QStringList& before) {
    if (NumberFiltersIn(before) == NumberFiltersIn(StoredFilters))
        return;
    if (NumbersOf != BareEntries())
        NumbersBefore = {before, NumbersOf};
    const bool isAsBefore =
        NumbersBefore && NumberFiltersIn(NumbersBefore->first) == NumberFiltersIn(StoredFilters);
    NumbersOf = isAsBefore ? NumbersBefore->second : BareEntries();
}

void RandomSessionModel::LogbookIsOpen(bool withFilters) {
    NumbersBefore.reset();
    if (withFilters) {
        NumbersOf = BareEntries();
        return;
    }
    const bool isKnown = !NumbersOf.isEmpty();
    if (isKnown && GoesOn(NumbersOf, BareEntries()))
        return;
    const auto counts = CausesOf(Filters(), Entries);
    OfOthers = counts[ByNumber] + counts[NotNumber];
    OfOthersForSure = isKnown;
}

QString RandomSessionModel::Status() const {
    const bool german = Language == 1;
    if (OfOthers == 0)
        return german ? "Bereit" : "Ready";
    QString words = german            ? OfOthersForSure ? "Nummernfilter eines anderen Logbuchs blenden %1"
                                                        : "Nummernfilter, vielleicht eines anderen Logbuchs, blenden %1"
                    : OfOthersForSure ? "Number filters of another logbook hide %1"
                                      : "Number filters, perhaps of another logbook, hide %1";
    if (german)
        words += OfOthers == 1 ? " Eintrag aus." : " Einträge aus.";
    else
        words += OfOthers == 1 ? " entry." : " entries.";
    return words.arg(OfOthers);
}

QString RandomSessionModel::WhyHidden() const {
    const auto counts = CausesOf(Filters(), Entries);
    QStringList words;
    for (std::size_t cause = 0; cause < Shown; ++cause)
        if (counts[cause] > 0)
            words << QString::number(counts[cause]) + CauseWords[cause][Language == 1 ? 1 : 0];
    return words.join(", ");
}

bool RandomSessionModel::HasOtherFilters() const {
    bool hasAll = false;
    for (const SessionFilter& filter : Filters()) {
        const bool isAll = filter.Action == 'I' && filter.Type == 0 && filter.Text.isEmpty();
        if (!filter.Active || filter.Type < 0 || filter.Type > 9)
            continue;
        hasAll = hasAll || isAll;
        bool matchesNothing = filter.Type == 8;
        for (int number = 0; matchesNothing && number < 1000; ++number)
            matchesNothing = !NamesNumber(filter.Text, number);
        if (!isAll && !matchesNothing)
            return true;
    }
    return !hasAll;
}
