// SPDX-License-Identifier: MIT
#include "tools/RingCutter.h"

#include "tools/Dice.h"

#include <algorithm>

namespace {

constexpr std::string_view SeparatorMark = "___";
constexpr std::string_view OperationHeading = "Operation Logbook Version";

// The place where the line of this byte begins.
std::size_t LineBegin(std::string_view logbook, std::size_t at) {
    if (at == 0)
        return 0;
    const std::size_t lineFeed = logbook.rfind('\n', at - 1);
    return lineFeed == std::string_view::npos ? 0 : lineFeed + 1;
}

std::size_t NextLine(std::string_view logbook, std::size_t at) {
    const std::size_t lineFeed = logbook.find('\n', at);
    return lineFeed == std::string_view::npos ? logbook.size() : lineFeed + 1;
}

// The line at this place, with its end.
std::string_view LineAt(std::string_view logbook, std::size_t at) {
    return logbook.substr(at, NextLine(logbook, at) - at);
}

// The first event, or separator line, that begins here or behind.
std::size_t EventBegin(std::string_view logbook, std::size_t at) {
    if (LineBegin(logbook, at) != at)
        at = NextLine(logbook, at);
    while (at < logbook.size() && (logbook[at] == ' ' || logbook[at] == '\r' || logbook[at] == '\n'))
        at = NextLine(logbook, at);
    return at;
}

bool HasHeading(std::string_view logbook) {
    return logbook.starts_with(SeparatorMark) || logbook.starts_with(OperationHeading);
}

class Ring {
  public:
    Ring(std::string_view whole, const RingOrder& wanted)
        : logbook(whole), order(wanted), chance(wanted.seed) {}

    std::optional<std::vector<RingPiece>> Cut() {
        if (order.exports == 0 || order.bytes == 0 || order.overlap >= 100 || order.holes >= order.exports)
            return std::nullopt;
        const std::vector<std::uint64_t> gaps = Gaps();
        std::uint64_t room = HeadingSize() + order.bytes * order.exports;
        for (const std::uint64_t gap : gaps)
            room += gap;
        for (std::size_t i = 1; i < order.exports; ++i)
            room -= gaps[i] == 0 ? Overlap() : 0;
        if (room > logbook.size())
            return std::nullopt;
        std::size_t begin = HeadingSize() + static_cast<std::size_t>(chance.Below(logbook.size() - room + 1));
        std::vector<RingPiece> pieces;
        for (std::size_t i = 0; i < order.exports; ++i) {
            if (i > 0 && gaps[i] > 0)
                begin = pieces.back().end + static_cast<std::size_t>(gaps[i]);
            else if (i > 0)
                begin += static_cast<std::size_t>(order.bytes - Overlap());
            const std::size_t end = begin + static_cast<std::size_t>(order.bytes);
            if (end > logbook.size())
                return std::nullopt;
            pieces.push_back({Begin(begin), End(end)});
        }
        return pieces;
    }

  private:
    std::size_t HeadingSize() const { return HasHeading(logbook) ? LineAt(logbook, 0).size() : 0; }
    std::uint64_t Overlap() const { return order.bytes * order.overlap / 100; }

    // What is lost before each export; 0 where it overlaps.
    std::vector<std::uint64_t> Gaps() {
        std::vector<std::uint64_t> gaps(static_cast<std::size_t>(order.exports), 0);
        for (std::uint64_t hole = 0; hole < order.holes; ++hole) {
            std::size_t at = 0;
            while (at == 0 || gaps[at] > 0)
                at = static_cast<std::size_t>(chance.Below(order.exports));
            gaps[at] = 1 + order.bytes / 8 + chance.Below(order.bytes / 4 + 1);
        }
        return gaps;
    }

    // A cut falls on the beginning of a line now and then; it never falls into a separator line, because then
    // the events below would have no date.
    std::size_t Begin(std::size_t at) {
        if (!order.cut)
            return EventBegin(logbook, at);
        const std::size_t line = LineBegin(logbook, at);
        const bool whole = chance.OneIn(8);
        return whole || logbook.substr(line).starts_with(SeparatorMark) ? line : at;
    }

    std::size_t End(std::size_t at) {
        if (!order.cut)
            return EventBegin(logbook, at);
        return chance.OneIn(8) ? LineBegin(logbook, at) : at;
    }

    std::string_view logbook;
    RingOrder order;
    Dice chance;
};

} // namespace

std::optional<std::vector<RingPiece>> CutRing(std::string_view logbook, const RingOrder& order) {
    return Ring(logbook, order).Cut();
}

std::string ExportOf(std::string_view logbook, const RingPiece& piece) {
    const std::string_view text = logbook.substr(piece.begin, piece.end - piece.begin);
    std::string_view heading;
    if (logbook.starts_with(OperationHeading)) {
        heading = LineAt(logbook, 0);
    } else if (logbook.starts_with(SeparatorMark) && !text.starts_with(SeparatorMark)) {
        std::size_t line = LineBegin(logbook, piece.begin);
        while (!logbook.substr(line).starts_with(SeparatorMark))
            line = LineBegin(logbook, line - 1);
        heading = LineAt(logbook, line);
    }
    return std::string(heading).append(text);
}
