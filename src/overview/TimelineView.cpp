// SPDX-License-Identifier: MIT
#include "overview/TimelineView.h"

#include "history/ReadableTexts.h"
#include "list/QtText.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double ZoomStep = 1.25;  // of one notch of a wheel, or one key
constexpr double WheelNotch = 120; // as Qt counts
constexpr int CursorStep = 5;      // pixels
constexpr QSize UsualSize(640, 0); // as wide; the height is that of the lanes

QString TimeText(std::optional<Timeline::Time> time) {
    if (!time)
        return {};
    return ToQString(LogbookText(Stamp{std::chrono::floor<std::chrono::seconds>(*time)}));
}

// At the end of the strip that of its last entry, also when the clock was set back just before it.
std::optional<Timeline::Time> EndTime(const Timeline& strip, Timeline::Place place) {
    if (place < strip.Length() || strip.Parts().empty())
        return strip.TimeAt(place);
    const Timeline::Part& last = strip.Parts().back();
    return last.Begin + (strip.Length() - last.Offset);
}

} // namespace

TimelineView::TimelineView(QWidget* parent) : QWidget(parent) {
    setObjectName("pbTimeline");
    setFocusPolicy(Qt::StrongFocus);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

bool TimelineView::HasStrip() const {
    return content_.History != nullptr && content_.History->Strip().Errors().End() > 0;
}

void TimelineView::ShowHistory(const LogbookHistory* history, EntrySet commented, EntrySet highlighted) {
    content_ = {.History = history,
                .Commented = std::move(commented),
                .Highlighted = std::move(highlighted),
                .ListShows = {},
                .Selected = {},
                .Cursor = {}};
    dragged_.reset();
    selectedSince_.reset();
    scale_.SetStrip(history != nullptr ? history->Strip().Length() : Timeline::Place(0));
    Seen();
}

void TimelineView::ShowMarks(EntrySet commented, EntrySet highlighted) {
    content_.Commented = std::move(commented);
    content_.Highlighted = std::move(highlighted);
    PaintAnew();
}

void TimelineView::ShowList(const std::optional<TimelineSpan>& rows,
                            const std::optional<Timeline::Place>& selected) {
    content_.ListShows = rows;
    if (selected && selected != content_.Cursor)
        content_.Cursor = selected;
    update();
}

void TimelineView::SetLanguage(Language language) {
    language_ = language;
    setAccessibleName(QtText(TextId::OverviewTimeline, language));
    MakeLanes();
    Seen();
}

void TimelineView::MakeLanes() {
    lanes_ = LanesOf(fontMetrics(), width(), language_);
    scale_.SetWidth(lanes_.StripWidth);
    updateGeometry();
    PaintAnew();
}

void TimelineView::PaintAnew() {
    picture_ = QPixmap();
    update();
}

// Whatever reads the screen has it in words.
void TimelineView::Seen() {
    setAccessibleDescription(SeenText());
    emit SeenChanged();
    PaintAnew();
}

QString TimelineView::SeenText() const {
    if (!HasStrip())
        return {};
    const Timeline& strip = content_.History->Strip();
    if (strip.Parts().empty())
        return QtText(TextId::OverviewNoTimes, language_);
    return TimeText(strip.TimeAt(scale_.From())) + QtText(TextId::SelectionTo, language_) +
           TimeText(EndTime(strip, scale_.To()));
}

QSize TimelineView::sizeHint() const { return {UsualSize.width(), lanes_.Height()}; }
QSize TimelineView::minimumSizeHint() const { return {lanes_.StripLeft * 2, lanes_.Height()}; }

void TimelineView::ZoomIn() {
    scale_.Zoom(1 / ZoomStep / ZoomStep, CursorPixel());
    Seen();
}

void TimelineView::ZoomOut() {
    scale_.Zoom(ZoomStep * ZoomStep, CursorPixel());
    Seen();
}

void TimelineView::ShowAll() {
    scale_.ShowAll();
    Seen();
}

// Where zooming keeps its place: at the cursor if that is seen, otherwise in the middle.
int TimelineView::CursorPixel() const {
    const int pixel = content_.Cursor ? scale_.PixelOf(*content_.Cursor) : -1;
    return pixel >= 0 && pixel < scale_.Width() ? pixel : scale_.Width() / 2;
}

bool TimelineView::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* const help = static_cast<QHelpEvent*>(event);
        QToolTip::showText(help->globalPos(), TextAt(help->pos()), this);
        return true;
    }
    return QWidget::event(event);
}

QString TimelineView::TextAt(const QPoint& position) const {
    if (!HasStrip() || position.x() < lanes_.StripLeft)
        return {};
    const Timeline& strip = content_.History->Strip();
    const int bar = PixelOn(position) / TimelineBar * TimelineBar;
    const EntryNumber first = strip.FirstAt(scale_.PlaceAt(bar));
    const EntryNumber end = std::max(first, strip.FirstAt(scale_.PlaceAt(bar + TimelineBar)));
    const auto count = [&](TextId name, const EntrySet& set) {
        return ", " + QtText(name, language_) + ": " + QString::number(set.Count(first, end));
    };
    return TimeText(strip.TimeAt(Bounded(scale_.PlaceAt(bar)))) +
           count(TextId::HistoryErrors, strip.Errors()) + count(TextId::OverviewWarnings, strip.Warnings());
}

void TimelineView::paintEvent(QPaintEvent*) {
    if (picture_.isNull() || picture_.devicePixelRatio() != devicePixelRatioF()) {
        picture_ = QPixmap(size() * devicePixelRatioF());
        picture_.setDevicePixelRatio(devicePixelRatioF());
        picture_.fill(palette().color(QPalette::Base));
        QPainter painter(&picture_);
        painter.setFont(font());
        PaintTimeline(painter, content_, scale_, lanes_, palette(), language_);
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, picture_);
    PaintOnTimeline(painter, content_, scale_, lanes_, palette());
    if (!hasFocus())
        return;
    // The style's own frame is hidden until a key was pressed.
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void TimelineView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    MakeLanes();
}

void TimelineView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange ||
        event->type() == QEvent::PaletteChange)
        MakeLanes();
}

int TimelineView::PixelOn(const QPointF& position) const {
    return std::clamp(static_cast<int>(position.x()) - lanes_.StripLeft, 0, scale_.Width());
}

Timeline::Place TimelineView::PlaceOn(const QPointF& position) const {
    return Bounded(scale_.PlaceAt(PixelOn(position)));
}

Timeline::Place TimelineView::Bounded(Timeline::Place place) const {
    return std::clamp(place, Timeline::Place(0), content_.History->Strip().Length());
}

void TimelineView::wheelEvent(QWheelEvent* event) {
    const double notches = event->angleDelta().y() / WheelNotch;
    scale_.Zoom(std::pow(ZoomStep, -notches), PixelOn(event->position()));
    Seen();
    event->accept();
}

void TimelineView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !HasStrip())
        return;
    dragged_ = PixelOn(event->position());
    selectedSince_.reset();
    if (event->modifiers().testFlag(Qt::ShiftModifier))
        selectedSince_ = PlaceOn(event->position());
}

void TimelineView::mouseMoveEvent(QMouseEvent* event) {
    if (!dragged_ || !HasStrip())
        return;
    if (selectedSince_) {
        const Timeline::Place place = PlaceOn(event->position());
        content_.Selected = {std::min(place, *selectedSince_), std::max(place, *selectedSince_)};
        return update();
    }
    const int pixel = static_cast<int>(event->position().x()) - lanes_.StripLeft;
    scale_.Move(std::exchange(*dragged_, pixel) - pixel);
    Seen();
}

void TimelineView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !dragged_ || !HasStrip())
        return;
    dragged_.reset();
    if (std::exchange(selectedSince_, std::nullopt))
        OrderSpan();
}

void TimelineView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && HasStrip() && event->position().x() >= lanes_.StripLeft)
        GoTo(PlaceOn(event->position()));
}

void TimelineView::GoTo(Timeline::Place place) {
    const Timeline& strip = content_.History->Strip();
    content_.Cursor = place;
    update();
    emit EntryWanted(std::min(strip.FirstAt(place), strip.Errors().End() - 1));
}

void TimelineView::OrderSpan() {
    if (!content_.Selected)
        return;
    const Timeline& strip = content_.History->Strip();
    const EntryNumber first = strip.FirstAt(content_.Selected->From);
    const EntryNumber end = strip.FirstAt(content_.Selected->To + Timeline::Place(1));
    emit SpanSelected(first, std::max(first, end));
}

void TimelineView::keyPressEvent(QKeyEvent* event) {
    if (!HasStrip())
        return QWidget::keyPressEvent(event);
    const bool selects = event->modifiers().testFlag(Qt::ShiftModifier);
    switch (event->key()) {
    case Qt::Key_Left:
        MoveCursor(-CursorStep, selects);
        break;
    case Qt::Key_Right:
        MoveCursor(CursorStep, selects);
        break;
    case Qt::Key_Home:
        MoveCursorTo(Timeline::Place(0), selects);
        break;
    case Qt::Key_End:
        MoveCursorTo(content_.History->Strip().Length(), selects);
        break;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        scale_.Move((event->key() == Qt::Key_PageUp ? -9 : 9) * scale_.Width() / 10);
        Seen();
        break;
    case Qt::Key_Plus:
        ZoomIn();
        break;
    case Qt::Key_Minus:
        ZoomOut();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (content_.Cursor)
            GoTo(*content_.Cursor);
        break;
    default:
        return QWidget::keyPressEvent(event);
    }
    event->accept();
}

// Where the cursor is; at first the middle of what is seen.
Timeline::Place TimelineView::CursorPlace() const {
    return content_.Cursor.value_or(Bounded(scale_.PlaceAt(scale_.Width() / 2)));
}

void TimelineView::MoveCursor(int pixels, bool selects) {
    const Timeline::Place::rep span = (scale_.To() - scale_.From()).count();
    MoveCursorTo(Bounded(CursorPlace() + Timeline::Place(span * pixels / scale_.Width())), selects);
}

void TimelineView::MoveCursorTo(Timeline::Place place, bool selects) {
    if (selects) {
        selectedSince_ = selectedSince_.value_or(CursorPlace());
        content_.Selected = {std::min(place, *selectedSince_), std::max(place, *selectedSince_)};
    } else {
        selectedSince_.reset();
        content_.Selected.reset();
    }
    content_.Cursor = place;
    scale_.EnsureVisible(place);
    Seen();
    const QPoint at(lanes_.StripLeft + scale_.PixelOf(place), 0);
    setAccessibleDescription(SeenText() + "; " + TextAt(at));
}

// A span by keys is complete when Shift goes up.
void TimelineView::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Shift && !dragged_ && std::exchange(selectedSince_, std::nullopt) &&
        HasStrip())
        OrderSpan();
    QWidget::keyReleaseEvent(event);
}

void TimelineView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void TimelineView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}
