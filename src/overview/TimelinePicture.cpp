// SPDX-License-Identifier: MIT
#include "overview/TimelinePicture.h"

#include "list/QtText.h"
#include "overview/ClockMarks.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPolygon>

#include <algorithm>

namespace {

struct LaneInfo {
    TextId Name;
    int Height; // in tenths of a line of text
};

// By lane. The last one has the clock below the strip, and no name.
constexpr std::array<LaneInfo, TimelineLanes::Count> Lanes{{{TextId::OverviewSessions, 10},
                                                            {TextId::HistoryErrors, 22},
                                                            {TextId::OverviewWarnings, 16},
                                                            {TextId::OverviewComments, 10},
                                                            {TextId::OverviewHighlighted, 10},
                                                            {TextId::HistoryStart, 12}}};
constexpr int Gap = 3; // between lanes, pixels

struct LaneColour {
    QRgb Light;
    QRgb Dark;
};
constexpr LaneColour SessionColour{0xFF2F6FB5, 0xFF64B5F6};
constexpr LaneColour ErrorColour{0xFFC62828, 0xFFFF6E6A};
constexpr LaneColour WarningColour{0xFFA86400, 0xFFFFB74D};
constexpr LaneColour CommentColour{0xFF2E7D32, 0xFF81C784};
constexpr LaneColour HighlightColour{0xFF7B1FA2, 0xFFCE93D8};

class Picture {
  public:
    Picture(QPainter& painter, const TimelineContent& content, const TimelineScale& scale,
            const TimelineLanes& lanes, const QPalette& palette)
        : painter_(painter),
          content_(content),
          history_(*content.History),
          scale_(scale),
          lanes_(lanes),
          palette_(palette),
          isDark_(palette.color(QPalette::Base).lightness() < 128) {}

    void PaintStrip() {
        painter_.setClipRect(QRect(lanes_.StripLeft, 0, lanes_.StripWidth, lanes_.Height()));
        PaintSessions();
        PaintBars(TimelineLane::Errors, history_.Strip().Errors(), ErrorColour);
        PaintBars(TimelineLane::Warnings, history_.Strip().Warnings(), WarningColour);
        PaintMarks(TimelineLane::Comments, content_.Commented, CommentColour);
        PaintMarks(TimelineLane::Highlighted, content_.Highlighted, HighlightColour);
        PaintClock();
        PaintBreaks();
    }

    void PaintOnStrip() {
        painter_.setClipRect(QRect(lanes_.StripLeft, 0, lanes_.StripWidth, lanes_.Height()));
        PaintSpan(content_.Selected, QPalette::Highlight, 90);
        PaintFrame();
        PaintCursor();
    }

  private:
    QColor ColourOf(const LaneColour& colour) const { return QColor(isDark_ ? colour.Dark : colour.Light); }
    int X(Timeline::Place place) const { return lanes_.StripLeft + scale_.PixelOf(place); }
    int StripBottom() const { return lanes_.Of(TimelineLane::Highlighted).bottom(); }

    void PaintSpan(const std::optional<TimelineSpan>& span, QPalette::ColorRole role, int alpha) {
        if (!span)
            return;
        QColor colour = palette_.color(role);
        colour.setAlpha(alpha);
        painter_.fillRect(QRect(QPoint(X(span->From), 0), QPoint(X(span->To), StripBottom())), colour);
    }

    // Solid as far as something is recorded, open up to the next start. Of sessions on one pixel the first
    // one is painted, so that the cost is that of the pixels.
    void PaintSessions() {
        const std::vector<SessionSpan>& spans = history_.Spans();
        const QRect& lane = lanes_.Of(TimelineLane::Sessions);
        const QColor colour = ColourOf(SessionColour);
        auto session =
            std::lower_bound(spans.begin(), spans.end(), scale_.From(),
                             [](const SessionSpan& span, Timeline::Place place) { return span.End < place; });
        while (session != spans.end() && session->Begin <= scale_.To()) {
            const int begin = X(session->Begin);
            const int recordedEnd = std::max(X(session->RecordedEnd), begin + 1);
            const int end = X(session->End);
            if (end > recordedEnd) {
                painter_.setPen(colour);
                painter_.setBrush(Qt::NoBrush);
                painter_.drawRect(QRect(QPoint(recordedEnd, lane.top()), QPoint(end - 1, lane.bottom() - 1)));
            }
            painter_.fillRect(QRect(QPoint(begin, lane.top()), QPoint(recordedEnd, lane.bottom())), colour);
            // The start itself.
            painter_.fillRect(QRect(begin, lane.top() - 1, 1, lane.height() + 2),
                              palette_.color(QPalette::Text));
            const Timeline::Place further = scale_.PlaceAt(std::max(begin, end - 1) - lanes_.StripLeft + 1);
            session = std::max(std::next(session),
                               std::lower_bound(session, spans.end(), further,
                                                [](const SessionSpan& span, Timeline::Place place) {
                                                    return span.End < place;
                                                }));
        }
    }

    // How many entries of a set lie on each bar that is seen.
    std::vector<std::size_t> CountsOf(const EntrySet& set) const {
        std::vector<std::size_t> counts;
        EntryNumber first = history_.Strip().FirstAt(scale_.PlaceAt(0));
        for (int pixel = 0; pixel < lanes_.StripWidth; pixel += TimelineBar) {
            const EntryNumber end = history_.Strip().FirstAt(scale_.PlaceAt(pixel + TimelineBar));
            counts.push_back(set.Count(first, end));
            first = std::max(first, end);
        }
        return counts;
    }

    // The highest bar is as high as the lane; the least one can be seen.
    void PaintBars(TimelineLane which, const EntrySet& set, const LaneColour& colour) {
        const std::vector<std::size_t> counts = CountsOf(set);
        const QRect& lane = lanes_.Of(which);
        const std::size_t most = std::max<std::size_t>(1, *std::max_element(counts.begin(), counts.end()));
        for (std::size_t bar = 0; bar < counts.size(); ++bar) {
            if (counts[bar] == 0)
                continue;
            const int height =
                std::max(3, static_cast<int>(static_cast<std::size_t>(lane.height()) * counts[bar] / most));
            painter_.fillRect(QRect(lanes_.StripLeft + static_cast<int>(bar) * TimelineBar,
                                    lane.bottom() + 1 - height, TimelineBar - 1, height),
                              ColourOf(colour));
        }
        painter_.fillRect(QRect(lane.left(), lane.bottom() + 1, lane.width(), 1),
                          palette_.color(QPalette::Mid));
    }

    // A triangle where there is one or more.
    void PaintMarks(TimelineLane which, const EntrySet& set, const LaneColour& colour) {
        const QRect& lane = lanes_.Of(which);
        const std::vector<std::size_t> counts = CountsOf(set);
        const int half = std::max(3, lane.height() / 4);
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(ColourOf(colour));
        for (std::size_t bar = 0; bar < counts.size(); ++bar) {
            if (counts[bar] == 0)
                continue;
            const int x = lanes_.StripLeft + static_cast<int>(bar) * TimelineBar + 1;
            painter_.drawPolygon(QPolygon({QPoint(x - half, lane.top() + 1), QPoint(x + half, lane.top() + 1),
                                           QPoint(x, lane.bottom() - 1)}));
        }
    }

    void PaintClock() {
        const QFontMetrics letters = painter_.fontMetrics();
        const QRect& lane = lanes_.Of(TimelineLane::Clock);
        painter_.setPen(palette_.color(QPalette::Text));
        for (const ClockMark& mark :
             ClockMarksOf(history_.Strip(), scale_, letters.horizontalAdvance("00.00.0000 000"))) {
            const int x = lanes_.StripLeft + mark.Pixel;
            const QString text = ToQString(mark.Text);
            if (x + 3 + letters.horizontalAdvance(text) > lane.right())
                continue;
            painter_.drawLine(x, lane.top(), x, lane.top() + 3);
            painter_.drawText(QPoint(x + 3, lane.top() + letters.ascent() + 2), text);
        }
    }

    // Where the clock was set back: a gap in the strip between two jagged edges. Of breaks that lie too near
    // to be told apart, the first one is painted.
    void PaintBreaks() {
        constexpr int Jag = 5;
        const std::span<const Timeline::Part> parts = history_.Strip().Parts();
        std::optional<int> last;
        for (std::size_t i = 1; i < parts.size(); ++i) {
            // A part without length at the end begins behind the last pixel.
            const int x = X(parts[i].Offset) - (parts[i].Offset == history_.Strip().Length() ? Jag : 0);
            if ((last && x - *last < 4 * Jag) || x < lanes_.StripLeft ||
                x >= lanes_.StripLeft + lanes_.StripWidth)
                continue;
            last = x;
            QPolygon edge;
            for (int y = 0; y <= StripBottom() + Jag; y += Jag)
                edge << QPoint(x + ((y / Jag) % 2 == 0 ? -1 : 2), y);
            painter_.setPen(QPen(palette_.color(QPalette::Base), 4));
            painter_.drawPolyline(edge);
            painter_.setPen(QPen(palette_.color(QPalette::Text), 1));
            painter_.drawPolyline(edge.translated(-2, 0));
            painter_.drawPolyline(edge.translated(2, 0));
        }
    }

    void PaintFrame() {
        if (!content_.ListShows)
            return;
        PaintSpan(content_.ListShows, QPalette::Text, 20);
        const int left = X(content_.ListShows->From);
        const int right = std::max(left + 2, X(content_.ListShows->To));
        painter_.setPen(QPen(palette_.color(QPalette::Text), 1));
        painter_.setBrush(Qt::NoBrush);
        painter_.drawRect(QRect(QPoint(left, 0), QPoint(right, StripBottom())));
    }

    void PaintCursor() {
        if (!content_.Cursor)
            return;
        const int x = X(*content_.Cursor);
        painter_.fillRect(QRect(x, 0, 2, StripBottom() + 3), palette_.color(QPalette::Highlight));
    }

    QPainter& painter_;
    const TimelineContent& content_;
    const LogbookHistory& history_;
    const TimelineScale& scale_;
    const TimelineLanes& lanes_;
    const QPalette& palette_;
    bool isDark_;
};

bool HasStrip(const TimelineContent& content) {
    return content.History != nullptr && content.History->Strip().Errors().End() > 0;
}

} // namespace

TimelineLanes LanesOf(const QFontMetrics& letters, int width, Language language) {
    int names = 0;
    for (std::size_t lane = 0; lane + 1 < Lanes.size(); ++lane)
        names = std::max(names, letters.horizontalAdvance(QtText(Lanes[lane].Name, language)));
    TimelineLanes lanes;
    lanes.StripLeft = names + 3 * Gap;
    lanes.StripWidth = std::max(1, width - lanes.StripLeft - Gap);
    int top = Gap;
    for (std::size_t lane = 0; lane < Lanes.size(); ++lane) {
        const int height = std::max(6, letters.height() * Lanes[lane].Height / 10);
        lanes.Rects[lane] = QRect(lanes.StripLeft, top, lanes.StripWidth, height);
        top += height + Gap;
    }
    return lanes;
}

void PaintTimeline(QPainter& painter, const TimelineContent& content, const TimelineScale& scale,
                   const TimelineLanes& lanes, const QPalette& palette, Language language) {
    painter.setPen(palette.color(QPalette::Text));
    for (std::size_t lane = 0; lane + 1 < Lanes.size(); ++lane)
        painter.drawText(
            QRect(Gap, lanes.Rects[lane].top(), lanes.StripLeft - 2 * Gap, lanes.Rects[lane].height()),
            Qt::AlignLeft | Qt::AlignVCenter, QtText(Lanes[lane].Name, language));
    if (HasStrip(content))
        Picture(painter, content, scale, lanes, palette).PaintStrip();
}

void PaintOnTimeline(QPainter& painter, const TimelineContent& content, const TimelineScale& scale,
                     const TimelineLanes& lanes, const QPalette& palette) {
    if (!HasStrip(content))
        return;
    painter.save();
    Picture(painter, content, scale, lanes, palette).PaintOnStrip();
    painter.restore();
}
