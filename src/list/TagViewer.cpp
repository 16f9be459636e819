// SPDX-License-Identifier: MIT
#include "list/TagViewer.h"

#include "list/LogbookModel.h"
#include "list/LogbookView.h"
#include "list/QtText.h"
#include "list/ToolTip.h"
#include "list/Twips.h"
#include "rows/LogbookColumns.h"

#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace {

constexpr int DrawingInterval = 20; // milliseconds
constexpr int HeaderHeight = 300;   // twips
constexpr QColor HighlightedColour(0, 255, 255);
constexpr QColor SelectedColour(255, 0, 0);

void FillLines(QPainter& painter, std::int64_t top, std::int64_t height, const QColor& colour) {
    painter.fillRect(0, static_cast<int>(top), painter.device()->width(), static_cast<int>(height), colour);
}

} // namespace

TagViewer::TagViewer(LogbookView& list, const EntryTable& entries, QWidget* parent)
    : QWidget(parent), list_(list), entries_(entries), tmTagViewer(new QTimer(this)) {
    setObjectName("pbTagViewer");
    tmTagViewer->setObjectName("tmTagViewer");
    tmTagViewer->setInterval(DrawingInterval);
    connect(tmTagViewer, &QTimer::timeout, this, [this] {
        if (RefreshTagViewer())
            tmTagViewer->stop();
    });
    list.viewport()->installEventFilter(this);
}

void TagViewer::RefreshTagViewerDelayed() {
    marks_.Restart();
    // A running timer is not restarted, so that a key held down does not put off the drawing for ever.
    if (!tmTagViewer->isActive())
        tmTagViewer->start();
}

bool TagViewer::RefreshTagViewer() {
    if (marks_.TagViewerNextRow == 1) {
        picture_ = QPixmap(PictureSize());
        picture_.fill(Qt::transparent);
    }
    if (picture_.isNull())
        return true;
    update();
    const LogbookRows& rows = list_.Logbook()->Rows();
    const TagScale scale{static_cast<std::int64_t>(rows.size()), picture_.height()};
    std::vector<std::int64_t> tops;
    const bool done = marks_.NextSlice(entries_, rows, scale.Height, tops);
    QPainter painter(&picture_);
    for (const std::int64_t top : tops)
        FillLines(painter, top, scale.MarkHeight(), HighlightedColour);
    const std::optional<int> selected = list_.SelectedRow();
    if (done && selected) {
        const std::int64_t height = std::max<std::int64_t>(
            scale.MarkHeight(), std::lround(LowestSelectionMark * devicePixelRatioF()));
        // The marks of the last rows keep their whole height, too.
        const std::int64_t lowest = std::max<std::int64_t>(0, scale.Height - height);
        FillLines(painter, std::min(scale.TopOf(*selected + 1), lowest), height, SelectedColour);
    }
    return done;
}

void TagViewer::ResizeTagViewer() {
    const bool barShown = list_.horizontalScrollBar()->isVisibleTo(&list_);
    const int bottom = barShown ? list_.viewport()->geometry().bottom() + 1 : list_.height();
    const int top = PixelsOf(HeaderHeight);
    setGeometry(list_.x() + list_.width(), list_.y() + top, width(), std::max(0, bottom - top));
}

QSize TagViewer::PictureSize() const {
    const QSizeF pixels = QSizeF(size()) * devicePixelRatioF();
    return pixels.toSize();
}

// A row from 0; -1 when there is none. `y` is in logical pixels.
int TagViewer::RowAt(double y) const {
    const TagScale scale{static_cast<std::int64_t>(list_.Logbook()->Rows().size()), PictureSize().height()};
    return static_cast<int>(scale.RowAt(y * devicePixelRatioF())) - 1;
}

QString TagViewer::ToolTipAt(double y) const {
    const int row = RowAt(y);
    if (row < 0)
        return {};
    const EntryNumber number = list_.Logbook()->Rows()[static_cast<std::size_t>(row)].Entry;
    std::string text;
    for (const LogbookColumn column : {LogbookColumn::Index, LogbookColumn::Time, LogbookColumn::Event})
        text.append(text.empty() ? "" : "  ").append(CellText(entries_, number, column));
    return ToolTipOf(ShownInCell(ToQString(text)));
}

bool TagViewer::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), ToolTipAt(help->pos().y()), this);
    return true;
}

bool TagViewer::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) // of the list's rows
        ResizeTagViewer();
    return QWidget::eventFilter(watched, event);
}

void TagViewer::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    RefreshTagViewerDelayed();
}

void TagViewer::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.drawPixmap(rect(), picture_);
    // The viewer may now be on a screen with another resolution.
    if (picture_.size() != PictureSize())
        RefreshTagViewerDelayed();
}

void TagViewer::mousePressEvent(QMouseEvent* event) {
    const int row = RowAt(event->position().y());
    if (event->button() != Qt::LeftButton || row < 0)
        return;
    list_.SelectAndShow(row);
    RefreshTagViewerDelayed();
}
