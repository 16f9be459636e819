// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>

// Receives the progress of a sort in percent, from time to time; returns false to stop the sort.
using SortHook = std::function<bool(int percent)>;

// The progress of one sort: phases one after the other, each a number of steps.
class SortProgress {
  public:
    // The steps between two calls of the hook, which may be empty.
    static constexpr std::size_t StepsPerCall = 32768;

    explicit SortProgress(const SortHook& hook) : hook_(hook) {}

    // Begins a phase: its steps cover this part, in percent, of the remaining way. More steps do no harm.
    void BeginPhase(int partOfRest, std::size_t steps) {
        begin_ = end_;
        end_ += (100 - end_) * partOfRest / 100;
        steps_ = std::max<std::size_t>(steps, 1);
        done_ = 0;
    }

    // Counts steps. False when the sort must stop, and always from then on.
    bool Step(std::size_t steps) {
        done_ += detours_ == 0 ? steps : 0;
        sinceCall_ += steps;
        if (sinceCall_ < StepsPerCall || stopped_)
            return !stopped_;
        sinceCall_ = 0;
        const double part = static_cast<double>(std::min(done_, steps_)) / static_cast<double>(steps_);
        stopped_ = hook_ && !hook_(static_cast<int>(begin_ + (end_ - begin_) * part));
        return !stopped_;
    }

    bool IsStopped() const { return stopped_; }

    // Runs `action(i)` for each `i` from `begin` up to but not including `end`, one step each; false when the
    // sort must stop.
    template <typename Action>
    bool ForEach(std::size_t begin, std::size_t end, Action action) {
        while (begin < end) {
            const std::size_t blockEnd = std::min(end, begin + StepsPerCall);
            const std::size_t count = blockEnd - begin;
            for (; begin < blockEnd; ++begin)
                action(begin);
            if (!Step(count))
                return false;
        }
        return true;
    }

    // While one lives, steps still call the hook, but do not advance the progress.
    class Detour {
      public:
        explicit Detour(SortProgress& progress) : progress_(progress) { ++progress_.detours_; }
        ~Detour() { --progress_.detours_; }
        Detour(const Detour&) = delete;
        Detour& operator=(const Detour&) = delete;

      private:
        SortProgress& progress_;
    };

  private:
    const SortHook& hook_;
    double begin_ = 0; // of the phase, in percent
    double end_ = 0;
    std::size_t steps_ = 1;
    std::size_t done_ = 0;
    std::size_t sinceCall_ = 0;
    unsigned detours_ = 0;
    bool stopped_ = false;
};
