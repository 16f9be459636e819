// SPDX-License-Identifier: MIT
#include "history/StitchOrder.h"

#include <algorithm>

namespace {

using Outcome = CommonLines::Outcome;
using Reason = CommonLines::Reason;

class Planning {
  public:
    explicit Planning(std::span<const ExportLines> exports)
        : exports_(exports), relations_(exports.size(), std::vector<CommonLines>(exports.size())) {}

    StitchPlan Run() {
        DropSameBytes();
        Compare();
        DropContained();
        if (plan_.Refused)
            return std::move(plan_);
        if (kept_.size() < 2) {
            Refuse({.NothingAdds = true});
            plan_.Order = kept_;
        } else {
            PutInOrder();
        }
        return std::move(plan_);
    }

  private:
    const CommonLines& Relation(std::size_t older, std::size_t newer) const {
        return relations_[older][newer];
    }
    bool Continues(std::size_t older, std::size_t newer) const {
        return Relation(older, newer).What == Outcome::Continues;
    }

    void Refuse(const StitchPlan::Refusal& refusal) {
        plan_.Order.clear();
        plan_.Pairs.clear();
        plan_.Refused = refusal;
    }

    void DropSameBytes() {
        for (std::size_t i = 0; i < exports_.size(); ++i) {
            const auto same = std::find_if(kept_.begin(), kept_.end(), [&](std::size_t other) {
                return exports_[other].Size() == exports_[i].Size() &&
                       AreSameBytes(exports_[other], 0, exports_[i], 0, exports_[i].Size());
            });
            if (same == kept_.end())
                kept_.push_back(i);
            else
                plan_.Duplicates.push_back({.Export = i, .Of = *same, .Common = {}});
        }
    }

    void Compare() {
        for (const std::size_t newer : kept_) {
            const BeginningOfExport beginning(exports_[newer]);
            for (const std::size_t older : kept_)
                if (older != newer)
                    relations_[older][newer] = beginning.FindIn(exports_[older]);
        }
    }

    void DropContained() {
        const std::vector<std::size_t> all = kept_;
        for (const std::size_t one : all) {
            const auto in = std::find_if(kept_.begin(), kept_.end(), [&](std::size_t other) {
                return other != one && Relation(other, one).What == Outcome::Contained;
            });
            if (in == kept_.end())
                continue;
            if (MayBeContinuedBy(one, *in))
                return Refuse({.First = one, .Second = *in, .Why = Reason::SeveralPlaces});
            plan_.Duplicates.push_back({.Export = one, .Of = *in, .Common = Relation(*in, one)});
            std::erase(kept_, one);
        }
    }

    // Whether an export that lies in another one may just as well be continued by it, at another place: the
    // lines that both have are then not known to be the same.
    bool MayBeContinuedBy(std::size_t one, std::size_t in) const {
        const CommonLines& onward = Relation(one, in);
        if (onward.What == Outcome::None)
            return onward.Why == Reason::SeveralPlaces;
        // Line 1 of `one` is line `inside` of the other; line 1 of the other is line `place` of `one`.
        const std::int64_t inside = Relation(in, one).Place;
        const std::int64_t place = onward.Place;
        return inside - 1 != 1 - place;
    }

    // A reason that says more about two exports is greater.
    static int Weight(Reason why) {
        switch (why) {
        case Reason::NoneInCommon:
            return 0;
        case Reason::OtherHeading:
            return 1;
        case Reason::TooFew:
            return 2;
        case Reason::FirstLineDiffers:
            return 3;
        case Reason::NoStamp:
            return 4;
        case Reason::SeveralPlaces:
            return 5;
        }
        return 0;
    }

    StitchPlan::Refusal RefusalOf(std::size_t one, std::size_t other) const {
        const CommonLines& forth = Relation(one, other);
        const CommonLines& back = Relation(other, one);
        if (forth.What != Outcome::None && back.What != Outcome::None)
            return {.First = one, .Second = other, .Why = Reason::SeveralPlaces};
        const bool isBack = forth.What != Outcome::None ||
                            (back.What == Outcome::None && Weight(back.Why) > Weight(forth.Why));
        const CommonLines& common = isBack ? back : forth;
        return {.First = one, .Second = other, .Why = common.Why, .Lines = common.Lines};
    }

    // Exports whose order two readings leave open.
    std::optional<StitchPlan::Refusal> FindContradiction() const {
        for (const std::size_t older : kept_)
            for (const std::size_t newer : kept_)
                if (older != newer && Continues(older, newer) &&
                    (Continues(newer, older) || Relation(newer, older).Why == Reason::SeveralPlaces))
                    return StitchPlan::Refusal{.First = older, .Second = newer, .Why = Reason::SeveralPlaces};
        return std::nullopt;
    }

    // The oldest of the exports: no other one is continued by it. Nothing when there is none, or more than
    // one.
    std::vector<std::size_t> Oldest(const std::vector<std::size_t>& left) const {
        std::vector<std::size_t> oldest;
        for (const std::size_t one : left)
            if (std::none_of(left.begin(), left.end(),
                             [&](std::size_t other) { return other != one && Continues(other, one); }))
                oldest.push_back(one);
        return oldest;
    }

    // Of two groups of exports that do not continue each other, the two that say most about why.
    StitchPlan::Refusal RefusalOfGroups(const std::vector<std::size_t>& oldest) const {
        std::vector<std::size_t> group{oldest.front()};
        for (std::size_t i = 0; i < group.size(); ++i)
            for (const std::size_t one : kept_)
                if ((Continues(group[i], one) || Continues(one, group[i])) &&
                    std::find(group.begin(), group.end(), one) == group.end())
                    group.push_back(one);
        std::optional<StitchPlan::Refusal> best;
        for (const std::size_t one : group)
            for (const std::size_t other : kept_)
                if (std::find(group.begin(), group.end(), other) == group.end()) {
                    const StitchPlan::Refusal refusal = RefusalOf(one, other);
                    if (!best || Weight(refusal.Why) > Weight(best->Why))
                        best = refusal;
                }
        return best ? *best : RefusalOf(oldest[0], oldest[1]);
    }

    void PutInOrder() {
        if (const std::optional<StitchPlan::Refusal> contradiction = FindContradiction())
            return Refuse(*contradiction);
        std::vector<std::size_t> left = kept_;
        while (!left.empty()) {
            const std::vector<std::size_t> oldest = Oldest(left);
            if (oldest.empty())
                return Refuse({.First = left[0], .Second = left[1], .Why = Reason::SeveralPlaces});
            if (oldest.size() > 1)
                return Refuse(RefusalOfGroups(oldest));
            plan_.Order.push_back(oldest.front());
            std::erase(left, oldest.front());
        }
        for (std::size_t i = 1; i < plan_.Order.size(); ++i) {
            const std::size_t older = plan_.Order[i - 1];
            const std::size_t newer = plan_.Order[i];
            if (!Continues(older, newer))
                return Refuse(RefusalOf(older, newer));
            plan_.Pairs.push_back({.Older = older, .Newer = newer, .Common = Relation(older, newer)});
        }
        CheckDistances();
    }

    // An export may continue one that is not its neighbour, too; both ways must lead to the same line.
    void CheckDistances() {
        std::vector<std::int64_t> begins{0}; // of the exports in their order, as lines of the oldest one
        for (const StitchPlan::Pair& pair : plan_.Pairs)
            begins.push_back(begins.back() + pair.Common.Place - 1);
        for (std::size_t i = 0; i < begins.size(); ++i)
            for (std::size_t k = i + 2; k < begins.size(); ++k) {
                const CommonLines& common = Relation(plan_.Order[i], plan_.Order[k]);
                if (common.What == Outcome::Continues &&
                    begins[k] - begins[i] != std::int64_t{common.Place} - 1)
                    return Refuse(
                        {.First = plan_.Order[i], .Second = plan_.Order[k], .Why = Reason::SeveralPlaces});
            }
    }

    std::span<const ExportLines> exports_;
    std::vector<std::vector<CommonLines>> relations_;
    std::vector<std::size_t> kept_;
    StitchPlan plan_;
};

} // namespace

StitchPlan PlanStitch(std::span<const ExportLines> exports) { return Planning(exports).Run(); }
