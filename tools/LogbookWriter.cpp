// SPDX-License-Identifier: MIT
#include "tools/LogbookWriter.h"

#include "tools/ClassicWriter.h"
#include "tools/LineBuffer.h"
#include "tools/MachineStory.h"
#include "tools/OperationWriter.h"
#include "tools/Planter.h"
#include "tools/SeparatedWriter.h"
#include "tools/Truth.h"

#include <cstddef>
#include <optional>
#include <ostream>
#include <sstream>
#include <utility>

namespace {

class LogbookWriter {
  public:
    LogbookWriter(const LogbookOrder& wanted, std::ostream& sink, std::ostream* truthSink)
        : order(wanted), out(sink), story(order.generation, order.seed, order.firstDay), lines(sink) {
        if (order.plants.Any())
            planter.emplace(order, story);
        if (truthSink != nullptr)
            truth.emplace(order.generation, *truthSink);
    }

    LogbookSize Write() {
        AppendHeading();
        if (truth)
            truth->TakeHeading(lines.WaitingFrom(0));
        std::uint64_t entries = 0;
        while (WantsMore(entries) && out.good()) {
            lines.MakeRoom();
            const std::size_t begin = lines.Waiting();
            const MachineEvent& event = NextEvent();
            AppendEvent(event);
            if (truth) [[unlikely]]
                truth->Take(event, story.Clock(), lines.WaitingFrom(begin));
            ++entries;
        }
        lines.Flush();
        if (truth)
            truth->End();
        return {entries, lines.BytesWritten()};
    }

  private:
    bool WantsMore(std::uint64_t entries) const {
        if (order.entries == 0 && order.bytes == 0)
            return false;
        const bool entriesLeft = order.entries == 0 || entries < order.entries;
        const bool bytesLeft = order.bytes == 0 || lines.BytesWritten() < order.bytes;
        return entriesLeft && bytesLeft;
    }

    void AppendHeading() {
        if (order.generation == Generation::Operation)
            AppendOperationHeading(lines);
        else if (order.generation == Generation::Separated)
            AppendSeparator(lines, story.Clock());
        separatorDay = story.Clock().Day();
    }

    void AppendEvent(const MachineEvent& event) {
        switch (order.generation) {
        case Generation::Classic:
            return AppendClassicEvent(lines, event, story);
        case Generation::Operation:
            return AppendOperationEvent(lines, event, story);
        case Generation::Separated:
            if (story.Clock().Day() != separatorDay)
                AppendSeparator(lines, story.Clock());
            separatorDay = story.Clock().Day();
            return AppendSeparatedEvent(lines, event, story);
        }
    }

    const MachineEvent& NextEvent() {
        if (planter) [[unlikely]]
            return planter->Next();
        return story.Next();
    }

    LogbookOrder order;
    std::ostream& out;
    MachineStory story;
    std::optional<Planter> planter;
    std::optional<Truth> truth;
    LineBuffer lines;
    std::int64_t separatorDay = 0;
};

} // namespace

LogbookSize WriteLogbook(const LogbookOrder& order, std::ostream& out, std::ostream* truth) {
    return LogbookWriter(order, out, truth).Write();
}

std::string LogbookText(const LogbookOrder& order) {
    std::ostringstream out;
    WriteLogbook(order, out);
    return std::move(out).str();
}
