// SPDX-License-Identifier: MIT
#include "tools/LogbookWriter.h"

#include "tools/ClassicWriter.h"
#include "tools/LineBuffer.h"
#include "tools/MachineStory.h"
#include "tools/OperationWriter.h"
#include "tools/SeparatedWriter.h"

#include <ostream>
#include <sstream>
#include <utility>

namespace {

class LogbookWriter {
  public:
    LogbookWriter(const LogbookOrder& wanted, std::ostream& sink)
        : order(wanted), out(sink), story(order.generation, order.seed), lines(sink) {}

    LogbookSize Write() {
        AppendHeading();
        std::uint64_t entries = 0;
        while (WantsMore(entries) && out.good()) {
            lines.MakeRoom();
            AppendEvent();
            ++entries;
        }
        lines.Flush();
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

    void AppendEvent() {
        const MachineEvent& event = story.Next();
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

    LogbookOrder order;
    std::ostream& out;
    MachineStory story;
    LineBuffer lines;
    std::int64_t separatorDay = 0;
};

} // namespace

LogbookSize WriteLogbook(const LogbookOrder& order, std::ostream& out) {
    return LogbookWriter(order, out).Write();
}

std::string LogbookText(const LogbookOrder& order) {
    std::ostringstream out;
    WriteLogbook(order, out);
    return std::move(out).str();
}
