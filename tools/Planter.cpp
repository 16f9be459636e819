// SPDX-License-Identifier: MIT
#include "tools/Planter.h"

#include "tools/MachineStory.h"

#include <algorithm>

namespace {

constexpr std::uint64_t Second = 1000;
constexpr std::uint64_t Minute = 60 * Second;
constexpr std::int64_t SignedMinute = 60 * 1000;

// Other throws than those of the story with the same seed.
std::uint64_t SeedOf(std::uint64_t seed) { return ~seed * 0x9E3779B97F4A7C15U; }

// Larger than any pause, so that the list shows each step back.
std::int64_t StepOfClock(Dice& dice) {
    const auto minutes = static_cast<std::int64_t>(dice.OneIn(8)   ? 24 * 60
                                                   : dice.OneIn(2) ? 60
                                                                   : dice.Between(2, 90));
    return (dice.OneIn(2) ? minutes : -minutes) * SignedMinute;
}

bool IsOneIn(Dice& dice, std::uint64_t count) { return count > 0 && dice.OneIn(count); }

} // namespace

Planter::Planter(const LogbookOrder& order, MachineStory& teller)
    : told(order.generation),
      plants(order.plants),
      story(teller),
      chance(SeedOf(order.seed)),
      summerTime(teller.Clock().Now()),
      pair(&PrecursorPairs[order.seed % PrecursorPairs.size()]) {}

const MachineEvent& Planter::Next() {
    if (chatterLeft > 0)
        NextOfChatter();
    else if (startsLeft > 0)
        NextOfBurst();
    else if (!story.IsBetween() || !PlantSomething())
        TellOn();
    raised.Add(event);
    return event;
}

// One more event of the story itself.
void Planter::TellOn() {
    const bool mayStep = story.IsBetween() && !errorDue;
    const std::int64_t before = story.Clock().Now();
    if (errorDue)
        story.LimitPauses(static_cast<std::uint64_t>(std::max<std::int64_t>(*errorDue - before, 0)));
    event = story.Next();
    story.LimitPauses(MachineStory::NoLimit);
    if (event.happening == Happening::AccessError) // the list would not show a step here
        return;
    if (plants.summerTime)
        FollowSummerTime(before);
    if (clockStepDue && mayStep && event.plant == Plant::None && event.happening != Happening::Restart)
        SetClock();
}

// The clock is set wrong, and the next time right again.
void Planter::SetClock() {
    clockStepDue = false;
    event.plant = Plant::ClockStep;
    const std::int64_t step = clockIsWrongBy == 0 ? StepOfClock(chance) : -clockIsWrongBy;
    clockIsWrongBy += step;
    story.Clock().Set(story.Clock().Now() + step);
}

// Where the machine would rest over the change, it works a little before it, so that the lines show it.
void Planter::FollowSummerTime(std::int64_t before) {
    constexpr std::int64_t LongestPause = 25 * SignedMinute;
    const std::int64_t now = story.Clock().Now();
    const ClockChange change = summerTime.Next();
    if (now < change.at)
        return;
    if (now - before > LongestPause) {
        const auto minutes = static_cast<std::int64_t>(chance.Between(5, 20));
        story.Clock().Set(std::max(before + SignedMinute / 60, change.at - minutes * SignedMinute));
        return;
    }
    summerTime.Pass();
    event.plant = Plant::ClockStep;
    story.Clock().Set(now + change.by);
    if (errorDue)
        *errorDue += change.by;
}

// False when it is the story's turn.
bool Planter::PlantSomething() {
    if (eventsToBegin > 0) {
        --eventsToBegin;
        return false;
    }
    if (errorDue) {
        if (story.Clock().Now() < *errorDue)
            return false;
        SayForetold(Plant::Foretold);
        return true;
    }
    clockStepDue = clockStepDue || IsOneIn(chance, plants.clockSteps);
    if (IsOneIn(chance, plants.bursts))
        BeginBurst();
    else if (IsOneIn(chance, plants.precursors))
        BeginPair();
    else if (IsOneIn(chance, plants.chatter))
        BeginChatter();
    else if (IsOneIn(chance, plants.codedErrors))
        SayCodedError();
    else if (IsOneIn(chance, plants.cleared) && told != Generation::Operation && !raised.IsEmpty())
        SayCleared();
    else
        return false;
    return true;
}

void Planter::Begin(Happening happening) {
    event = MachineEvent();
    event.happening = happening;
    event.milliseconds = story.HasMilliseconds();
}

void Planter::Say(Happening happening, const ModuleText& text, Plant plant) {
    Begin(happening);
    event.sender = text.sender;
    event.name = text.name;
    event.messages[0] = text.text;
    event.messageCount = 1;
    event.plant = plant;
}

void Planter::SayCodedError() {
    story.Clock().Advance(chance.Between(200, 8 * Second));
    const ModuleText& error = chance.Pick(CodedErrors);
    Happening happening = Happening::Error;
    if (told == Generation::Classic && chance.OneIn(2))
        happening = chance.OneIn(2) ? Happening::BareError : Happening::ModuleError;
    Say(happening, error);
    if (happening != Happening::BareError && error.text.find('-') != std::string_view::npos &&
        chance.OneIn(4))
        event.messages[event.messageCount++] = "Quittieren mit CE";
}

void Planter::SayCleared() {
    story.Clock().Advance(chance.Between(300, 5 * Second));
    clearedNumber = raised.Take(chance);
    const bool byMachineProgram = clearedNumber.starts_with('P') && chance.OneIn(2);
    if (byMachineProgram)
        clearedNumber += " CE";
    Say(Happening::Info, {byMachineProgram ? "PLC" : "HMI", "ERRCLEARED", clearedNumber});
}

// Some of the starts come straight one behind the other.
void Planter::BeginBurst() {
    startsLeft = static_cast<std::size_t>(chance.Between(3, 7));
    startWasLast = false;
    NextOfBurst();
}

void Planter::NextOfBurst() {
    story.Clock().Advance(chance.Between(4 * Second, 50 * Second));
    if (startWasLast && chance.OneIn(3)) {
        startWasLast = false;
        Say(Happening::Error, StartFailure);
        return;
    }
    --startsLeft;
    startWasLast = true;
    story.Forget();
    Begin(Happening::Restart);
}

// Now and then the precursor comes alone, and the error without it.
void Planter::BeginPair() {
    constexpr std::uint64_t ShortestWay = 3 * Second;
    constexpr std::uint64_t LongestWay = 50 * Second;
    story.Clock().Advance(chance.Between(500, 10 * Second));
    const std::uint64_t kind = chance.Below(8);
    if (kind >= 6)
        return SayForetold(Plant::None);
    const bool follows = kind != 5;
    Say(pair->warning ? Happening::Warning : Happening::Info, pair->precursor,
        follows ? Plant::Precursor : Plant::None);
    if (follows)
        errorDue = story.Clock().Now() + static_cast<std::int64_t>(chance.Between(ShortestWay, LongestWay));
}

void Planter::SayForetold(Plant plant) {
    errorDue.reset();
    story.Clock().Advance(chance.Between(5, 900));
    Say(Happening::Error, pair->error, plant);
}

void Planter::BeginChatter() {
    chattering = &chance.Pick(ChatteringErrors);
    chatterCount = chance.Between(3, 40);
    chatterLeft = chatterCount;
    NextOfChatter();
}

// All of them come within 58 seconds.
void Planter::NextOfChatter() {
    const bool first = chatterLeft == chatterCount;
    --chatterLeft;
    story.Clock().Advance(
        chance.Between(120, first ? 5 * Second : (Minute - 2 * Second) / (chatterCount - 1)));
    Say(Happening::Error, *chattering, chatterLeft == 0 ? Plant::LastOfChatter : Plant::Chatter);
}
