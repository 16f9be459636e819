// SPDX-License-Identifier: MIT
#include "filter/FilterHistory.h"

#include "filter/FilterStorage.h"
#include "settings/Registry.h"

#include <algorithm>
#include <utility>

void FilterHistory::Clear() {
    steps_.clear();
    done_ = 0;
    now_.clear();
}

std::optional<FilterHistory::Act> FilterHistory::ToUndo() const {
    return done_ == 0 ? std::nullopt : std::optional(steps_[done_ - 1].What);
}

std::optional<FilterHistory::Act> FilterHistory::ToRedo() const {
    return done_ == steps_.size() ? std::nullopt : std::optional(steps_[done_].What);
}

FilterHistory::Texts FilterHistory::Stored() const { return StoredFilterTexts(registry_); }

void FilterHistory::Tell(const Texts& before, const Texts& after) const {
    if (changed_)
        changed_(FiltersOf(before).Filters, FiltersOf(after).Filters);
}

void FilterHistory::Remember(Act act, Texts before, Texts after) {
    if (before == after)
        return;
    Tell(before, after);
    const bool lostTheOneBefore = done_ < steps_.size() && !steps_[done_].FollowsTheOneBefore;
    steps_.resize(done_);
    const auto [firstBefore, firstAfter] =
        std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const auto [lastBefore, lastAfter] =
        std::mismatch(before.rbegin(), std::make_reverse_iterator(firstBefore), after.rbegin(),
                      std::make_reverse_iterator(firstAfter));
    steps_.push_back({.What = act,
                      .Begin = static_cast<std::size_t>(firstBefore - before.begin()),
                      .Before = {firstBefore, lastBefore.base()},
                      .After = {firstAfter, lastAfter.base()},
                      .FollowsTheOneBefore = !lostTheOneBefore && (done_ == 0 || before == now_)});
    ++done_;
    now_ = std::move(after);
}

FilterHistory::Outcome FilterHistory::Undo() {
    if (done_ == 0)
        return Outcome::Nothing;
    if (done_ < steps_.size() && !steps_[done_].FollowsTheOneBefore)
        return Outcome::ChangedElsewhere;
    const Step& step = steps_[done_ - 1];
    const Outcome outcome = Replace(step.Begin, step.After, step.Before);
    if (outcome == Outcome::Done)
        --done_;
    return outcome;
}

FilterHistory::Outcome FilterHistory::Redo() {
    if (done_ == steps_.size())
        return Outcome::Nothing;
    const Step& step = steps_[done_];
    const Outcome outcome = Replace(step.Begin, step.Before, step.After);
    if (outcome == Outcome::Done)
        ++done_;
    return outcome;
}

FilterHistory::Outcome FilterHistory::Replace(std::size_t begin, const Texts& old, const Texts& replacement) {
    Texts filters = Stored();
    if (filters != now_)
        return Outcome::ChangedElsewhere;
    const auto place = filters.begin() + static_cast<std::ptrdiff_t>(begin);
    const auto behind = filters.erase(place, place + static_cast<std::ptrdiff_t>(old.size()));
    filters.insert(behind, replacement.begin(), replacement.end());
    {
        const Registry::Transaction transaction(registry_);
        // Those behind move, unless as many come as go.
        const std::size_t end = old.size() == replacement.size() ? begin + old.size() : filters.size();
        for (std::size_t i = begin; i < end; ++i)
            WriteFilterText(registry_, i, filters[i]);
        WriteFilterCount(registry_, filters.size());
    }
    Tell(now_, filters);
    now_ = std::move(filters);
    return Outcome::Done;
}
