// SPDX-License-Identifier: MIT
#pragma once

#include "tools/Dice.h"
#include "tools/LogbookWriter.h"
#include "tools/MachineClock.h"
#include "tools/MachineEvent.h"
#include "tools/ModuleText.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

// What happens at the machine, event by event: shifts with restarts between, keys that go down and up, words
// that are typed, errors. It is told from the seed alone and never ends.
class MachineStory {
  public:
    MachineStory(Generation generation, std::uint64_t seed, std::int64_t firstDay)
        : told(generation), chance(seed), clock(firstDay) {}

    // The next event; the clock stands at its time. Valid until the next call.
    const MachineEvent& Next();

    const MachineClock& Clock() const { return clock; }
    MachineClock& Clock() { return clock; }
    Dice& Chance() { return chance; }

    // For those who put events of their own between those of the story.

    // True when the next event begins something new: nobody types, no register dump is due.
    bool IsBetween() const {
        return restartsLeft == 0 && !registersDue && typing.empty() && !(releaseDue && releaseNow);
    }
    // Whether the stamps carry milliseconds at this time.
    bool HasMilliseconds() const { return milliseconds; }
    // A start of another's: what was going on before is forgotten.
    void Forget();
    // From now on nothing restarts, and no pause is longer than this. NoLimit is as before.
    static constexpr std::uint64_t NoLimit = ~std::uint64_t{0};
    void LimitPauses(std::uint64_t longest) { longestPause = longest; }

  private:
    void Begin(Happening happening, std::uint64_t least, std::uint64_t most);
    void ContinueTyping();
    void ReleaseKey();
    void BeginNew();
    Happening ChooseNext();
    void BeginError();
    void BeginReport();
    void BeginRestart();
    void PressKey();
    void BeginTyping();
    void Say(std::string_view sender, std::string_view name, std::string_view text);
    void Say(const ModuleText& report);
    void AddContinuations();

    Generation told;
    Dice chance;
    MachineClock clock;
    MachineEvent event;

    std::size_t firstShiftLeft = 24; // a short one, so that small logbooks see a restart as well
    std::size_t restartsLeft = 0;
    bool registersDue = false;
    std::string_view typing; // the characters still to come
    bool releaseDue = false;
    bool releaseNow = false;
    std::size_t pressedKey = 0;
    std::string_view mode = "MANUAL";
    Lamp nextLamp = Lamp::On;
    bool milliseconds = false; // the oldest lines have none
    std::uint64_t longestPause = NoLimit;
};
