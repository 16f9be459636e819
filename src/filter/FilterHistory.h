// SPDX-License-Identifier: MIT
#pragma once

#include "filter/FilterDefinition.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class Registry;

// The person's changes of the stored filters, so that they can be taken back one by one, the last one first,
// and made again. A step restores the list of filters exactly as it stood, also one that was missing, or that
// could not be read and was replaced by the default list. It keeps only the texts of filters that changed.
// Where the stored list is another one than the last step left, because the person edited it or another copy
// of the program changed it, nothing can be taken back behind that.
class FilterHistory {
  public:
    enum class Act : std::uint8_t { Remove, ToggleHighlighting, KeepBetween };
    enum class Outcome : std::uint8_t { Done, Nothing, ChangedElsewhere };

    // Is told the stored filters before and after each change that a step made, in either direction.
    using Changed = std::function<void(const std::vector<FilterDefinition>& before,
                                       const std::vector<FilterDefinition>& after)>;

    explicit FilterHistory(Registry& registry, Changed changed = {})
        : registry_(registry), changed_(std::move(changed)) {}

    // Forgets all steps.
    void Clear();

    // Calls `change`, which may change the stored filters, and remembers that as a step if it did. Steps that
    // were taken back are then forgotten. Reads the stored filters twice.
    template <typename Change>
    void Record(Act act, Change change) {
        Texts before = Stored();
        change();
        Remember(act, std::move(before), Stored());
    }

    // What Undo and Redo would take back or make again.
    std::optional<Act> ToUndo() const;
    std::optional<Act> ToRedo() const;

    // Change the stored filters, or nothing. The caller then runs the filters.
    Outcome Undo();
    Outcome Redo();

  private:
    using Texts = std::vector<std::string>; // of stored filters

    // The filters from place Begin on that were replaced by others.
    struct Step {
        Act What = Act::Remove;
        std::size_t Begin = 0;
        Texts Before;
        Texts After;
        bool FollowsTheOneBefore = true; // nothing else changed the list in between
    };

    Texts Stored() const;
    void Tell(const Texts& before, const Texts& after) const;
    void Remember(Act act, Texts before, Texts after);
    Outcome Replace(std::size_t begin, const Texts& old, const Texts& replacement);

    Registry& registry_;
    Changed changed_;
    std::vector<Step> steps_;
    std::size_t done_ = 0; // so many of them are in force
    Texts now_;            // as the last step left it, in either direction
};
