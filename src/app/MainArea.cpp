// SPDX-License-Identifier: MIT
#include "app/MainArea.h"

#include "list/TagViewer.h"
#include "list/Twips.h"

#include <QMouseEvent>

namespace {
constexpr int TagViewerWidth = 300; // twips
constexpr int ContentHeight = 2400; // twips, until it is dragged
} // namespace

MainArea::MainArea(QWidget* list, TagViewer* tagViewer, QWidget* content, QWidget* parent)
    : QWidget(parent), list_(list), tagViewer_(tagViewer), content_(content) {
    for (QWidget* child : {list, static_cast<QWidget*>(tagViewer), content}) {
        child->setParent(this);
        // Otherwise they would show the sizing pointer of the gap.
        child->setCursor(Qt::ArrowCursor);
    }
    tagViewer->resize(PixelsOf(TagViewerWidth), 0);
    content->resize(0, PixelsOf(ContentHeight));
    content->hide();
    setMouseTracking(true);
    setMinimumSize(0, 0);
}

void MainArea::RecalculateLayout() {
    const int listWidth = width() - tagViewer_->width();
    if (listWidth > 0)
        list_->resize(listWidth, list_->height());
    int listHeight = height();
    if (!content_->isHidden()) {
        listHeight -= content_->height() + PixelsOf(Gap);
        content_->resize(width(), content_->height());
        if (listHeight >= 1)
            content_->move(0, listHeight + PixelsOf(Gap));
    }
    if (listHeight > 0)
        list_->resize(list_->width(), listHeight);
    tagViewer_->ResizeTagViewer();
    emit LayoutChanged();
}

std::optional<int> MainArea::ContentHeightAfterDrag(int contentHeight, int startY, int y, int innerHeight) {
    const int newHeight = contentHeight - (y - startY);
    const int rest = innerHeight - newHeight - Gap;
    if (newHeight < 0 || rest < LowestList)
        return std::nullopt;
    return newHeight;
}

bool MainArea::IsInGap(int y) const {
    return !content_->isHidden() && y >= list_->y() + list_->height() && y < content_->y();
}

void MainArea::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    RecalculateLayout();
}

void MainArea::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && cursor().shape() == Qt::SizeVerCursor)
        SplitStartY = TwipsOf(qRound(event->position().y()));
}

void MainArea::mouseMoveEvent(QMouseEvent* event) {
    const int pixels = qRound(event->position().y());
    if (SplitStartY == 0) {
        setCursor(IsInGap(pixels) ? Qt::SizeVerCursor : Qt::ArrowCursor);
        return;
    }
    const int y = TwipsOf(pixels);
    if (y == SplitStartY)
        return;
    const std::optional<int> dragged =
        ContentHeightAfterDrag(TwipsOf(content_->height()), SplitStartY, y, TwipsOf(height()));
    if (!dragged)
        return;
    content_->resize(content_->width(), PixelsOf(*dragged));
    RecalculateLayout();
    SplitStartY = y;
}

void MainArea::mouseReleaseEvent(QMouseEvent*) { SplitStartY = 0; }
