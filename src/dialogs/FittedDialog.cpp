// SPDX-License-Identifier: MIT
#include "dialogs/FittedDialog.h"

#include "dialogs/ScreenRoom.h"
#include "dialogs/ScrolledContent.h"

#include <QLayout>
#include <QVBoxLayout>

namespace {

// At a scale such as 150 %, a window of an uneven size comes out this much lower, which would bring a scroll
// bar.
constexpr int LostByScaling = 1;

} // namespace

void FittedDialog::LayOut(QLayout* content, QWidget* buttons) {
    // The widgets never leave this window: outside it they would lose their places for the Tab key.
    content_ = new ScrolledContent(this);
    content->setContentsMargins(0, 0, 0, 0);
    content_->widget()->setLayout(content);
    buttons_ = buttons;
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(content_, 1);
    layout->addWidget(buttons);
}

// The size, as high as the content needs at its width.
QSize FittedDialog::WithContent(QSize size) const {
    const QMargins margins = layout()->contentsMargins();
    const QLayout& content = content_ == nullptr ? *layout() : *content_->widget()->layout();
    int width = size.width();
    int height = 0;
    if (content_ != nullptr) {
        width -= margins.left() + margins.right();
        height = margins.top() + margins.bottom() + layout()->spacing() + buttons_->sizeHint().height();
    }
    height += content.hasHeightForWidth() ? content.totalHeightForWidth(width)
                                          : content.totalMinimumSize().height();
    return size.expandedTo({0, height + LostByScaling});
}

void FittedDialog::GrowToContent() {
    if (isVisible())
        ResizeOnScreen(*this, WithContent(size()));
}

void FittedDialog::setVisible(bool visible) {
    if (visible && !isVisible()) {
        ensurePolished();
        ResizeOnScreen(*this, WithContent(testAttribute(Qt::WA_Resized) ? size() : sizeHint()));
    }
    QDialog::setVisible(visible);
}
