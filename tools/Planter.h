// SPDX-License-Identifier: MIT
#pragma once

#include "tools/Dice.h"
#include "tools/LogbookWriter.h"
#include "tools/MachineEvent.h"
#include "tools/ModuleText.h"
#include "tools/PlantTexts.h"
#include "tools/RaisedErrors.h"
#include "tools/SummerTime.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

class MachineStory;

// Tells a story with what was ordered planted into it. Its own dice decide what is planted, so the story goes
// its usual way up to the first of it.
class Planter {
  public:
    // `teller` must live as long as this object.
    Planter(const LogbookOrder& order, MachineStory& teller);

    // The next event, of the story or planted; the story's clock stands at its time. Valid until the next
    // call.
    const MachineEvent& Next();

  private:
    void TellOn();
    void SetClock();
    void FollowSummerTime(std::int64_t before);

    bool PlantSomething();
    void Begin(Happening happening);
    void Say(Happening happening, const ModuleText& text, Plant plant = Plant::None);
    void SayCodedError();
    void SayCleared();
    void BeginBurst();
    void NextOfBurst();
    void BeginPair();
    void SayForetold(Plant plant);
    void BeginChatter();
    void NextOfChatter();

    Generation told;
    Plants plants;
    MachineStory& story;
    Dice chance;
    MachineEvent event;
    RaisedErrors raised;
    std::string clearedNumber;
    SummerTime summerTime;

    std::size_t eventsToBegin = 20; // of the story alone
    bool clockStepDue = false;
    std::int64_t clockIsWrongBy = 0; // milliseconds
    std::size_t startsLeft = 0;
    bool startWasLast = false;
    const PrecursorPair* pair;
    std::optional<std::int64_t> errorDue; // the time of the error whose precursor was told
    const ModuleText* chattering = nullptr;
    std::uint64_t chatterCount = 0; // of the run
    std::uint64_t chatterLeft = 0;
};
