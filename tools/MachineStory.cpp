// SPDX-License-Identifier: MIT
#include "tools/MachineStory.h"

#include "tools/ErrorTexts.h"
#include "tools/EventMix.h"
#include "tools/InfoTexts.h"
#include "tools/KeyTable.h"

#include <algorithm>

namespace {

constexpr std::uint64_t Second = 1000;
constexpr std::uint64_t Minute = 60 * Second;
constexpr std::uint64_t Hour = 60 * Minute;

constexpr ModuleText RemoteSend{"REMO", "DEB:S01", ""};
constexpr ModuleText RemoteReceive{"REMO", "DEB:R01", ""};

Happening Choose(Generation generation, Dice& dice) {
    switch (generation) {
    case Generation::Classic:
        return HappeningAt(ClassicMix, dice.Below(WeightOf(ClassicMix)));
    case Generation::Separated:
        return HappeningAt(SeparatedMix, dice.Below(WeightOf(SeparatedMix)));
    case Generation::Operation:
        return HappeningAt(OperationMix, dice.Below(WeightOf(OperationMix)));
    }
    return Happening::Info;
}

// Most pauses are short, some are the length of a block that runs.
std::uint64_t Pause(Dice& dice) {
    return dice.OneIn(8) ? dice.Between(5 * Second, 45 * Second) : dice.Between(150, 4 * Second);
}

} // namespace

const MachineEvent& MachineStory::Next() {
    event.messageCount = 0;
    if (restartsLeft > 0) {
        --restartsLeft;
        Begin(Happening::Restart, 20 * Second, Minute);
    } else if (registersDue) {
        registersDue = false;
        Begin(Happening::Registers, 0, 3);
    } else if (!typing.empty()) {
        ContinueTyping();
    } else if (releaseDue && releaseNow) {
        ReleaseKey();
    } else {
        releaseNow = true;
        BeginNew();
    }
    event.milliseconds = milliseconds;
    return event;
}

void MachineStory::Begin(Happening happening, std::uint64_t least, std::uint64_t most) {
    event.happening = happening;
    clock.Advance(chance.Between(least, most));
}

void MachineStory::ContinueTyping() {
    Begin(Happening::Stroke, 90, 420);
    event.code = static_cast<unsigned char>(typing.front());
    typing.remove_prefix(1);
}

void MachineStory::ReleaseKey() {
    releaseDue = false;
    Begin(Happening::Key, 40, 260);
    event.name = PanelKeys[pressedKey].name;
    event.code = PanelKeys[pressedKey].code;
    event.down = false;
    event.mode = mode;
}

void MachineStory::BeginNew() {
    clock.Advance(std::min(Pause(chance), longestPause));
    event.happening = ChooseNext();
    switch (event.happening) {
    case Happening::Restart:
        return BeginRestart();
    case Happening::Key:
        return PressKey();
    case Happening::Stroke:
        return BeginTyping();
    case Happening::BusError:
        registersDue = true;
        return Say({}, {}, chance.Pick(BusErrors));
    case Happening::BareError:
        return Say({}, {}, chance.Pick(NumberedErrors));
    case Happening::Error:
        return BeginError();
    case Happening::PlcError:
        return Say("PLC", {}, chance.Pick(PlcErrors));
    case Happening::PlcMessage:
        return Say("PLC", {}, chance.Pick(PlcMessages));
    case Happening::AccessError:
        return Say({}, {}, "RD:ACCESSERR LOGBOOK {H} {D}");
    case Happening::SystemInfo:
    case Happening::Info:
    case Happening::Warning:
    case Happening::ModuleError:
    case Happening::Fatal:
        return BeginReport();
    case Happening::Dump: {
        const ModuleText& telegram = chance.OneIn(2) ? RemoteSend : RemoteReceive;
        return Say(telegram.sender, telegram.name, telegram.text);
    }
    case Happening::Status:
        event.lamp = nextLamp;
        nextLamp = nextLamp == Lamp::On ? Lamp::Blink : nextLamp == Lamp::Blink ? Lamp::Off : Lamp::On;
        return;
    case Happening::Mouse:
        return Say("HMI", "MOUSE", chance.Pick(MouseTexts));
    case Happening::Registers:
        return;
    }
}

// No word is typed straight behind another, so that the strokes of a word stay together and apart from
// others.
Happening MachineStory::ChooseNext() {
    const bool restarts = longestPause == NoLimit;
    if (restarts && firstShiftLeft > 0 && --firstShiftLeft == 0)
        return Happening::Restart;
    const bool typed = event.happening == Happening::Stroke;
    Happening next = Choose(told, chance);
    while (typed && next == Happening::Stroke)
        next = Choose(told, chance);
    return restarts || next != Happening::Restart ? next : Happening::Info;
}

// The first letter of the text tells whose error it is.
void MachineStory::BeginError() {
    const std::string_view text = chance.Pick(NumberedErrors);
    if (text.starts_with('P')) {
        Say("PLC", chance.Pick(PlcModules), text);
    } else if (text.starts_with('Y')) {
        Say("PYTHON", "SCRIPT", text);
    } else {
        const ModuleText& reporter = chance.Pick(ModuleErrors);
        Say(reporter.sender, reporter.name, text);
    }
    AddContinuations();
}

void MachineStory::BeginReport() {
    switch (event.happening) {
    case Happening::Warning:
        Say(chance.Pick(WarningTexts));
        break;
    case Happening::ModuleError:
        Say(chance.Pick(ModuleErrors));
        break;
    case Happening::Fatal:
        Say(chance.Pick(FatalErrors));
        break;
    default:
        Say(chance.Pick(InfoTexts));
        break;
    }
    AddContinuations();
}

void MachineStory::Forget() {
    releaseDue = false;
    nextLamp = Lamp::On;
}

// Ends a shift or follows a fault.
void MachineStory::BeginRestart() {
    Forget();
    milliseconds = !chance.OneIn(7);
    clock.Advance(chance.OneIn(4) ? chance.Between(2 * Hour, 14 * Hour)
                                  : chance.Between(Minute, 20 * Minute));
    if (chance.OneIn(4))
        restartsLeft = static_cast<std::size_t>(chance.Between(1, 3));
}

void MachineStory::PressKey() {
    if (chance.OneIn(12))
        mode = chance.Pick(Modes);
    pressedKey = static_cast<std::size_t>(chance.Below(PanelKeys.size()));
    event.name = PanelKeys[pressedKey].name;
    event.code = PanelKeys[pressedKey].code;
    event.down = true;
    event.mode = mode;
    // Nearly every release comes next, some after another event, a few get lost.
    releaseDue = !chance.OneIn(40);
    releaseNow = !chance.OneIn(16);
}

void MachineStory::BeginTyping() {
    typing = chance.Pick(TypedWords);
    ContinueTyping();
}

void MachineStory::Say(std::string_view sender, std::string_view name, std::string_view text) {
    event.sender = sender;
    event.name = name;
    event.messages[0] = text;
    event.messageCount = 1;
}

void MachineStory::Say(const ModuleText& report) { Say(report.sender, report.name, report.text); }

void MachineStory::AddContinuations() {
    if (!chance.OneIn(16))
        return;
    const std::uint64_t count = chance.Between(1, MachineEvent::MaxMessages - 1);
    for (std::uint64_t i = 0; i < count; ++i)
        event.messages[event.messageCount++] = chance.Pick(Continuations);
}
