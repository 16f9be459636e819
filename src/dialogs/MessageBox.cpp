// SPDX-License-Identifier: MIT
#include "dialogs/MessageBox.h"

#include <QFontMetrics>
#include <QGridLayout>

namespace {

// The width of an icon and buttons beside the title, in line heights.
constexpr int TitleExtras = 8;

int TitleWidth(const QWidget& window) {
    QFont font = window.font();
    font.setBold(true);
    const QFontMetrics metrics(font);
    return metrics.horizontalAdvance(window.windowTitle()) + TitleExtras * metrics.height();
}

} // namespace

MessageBox::MessageBox(Icon icon, const QString& title, const QString& text, StandardButtons buttons,
                       QWidget* parent, StandardButton defaultButton)
    : QMessageBox(icon, title, text, buttons, parent) {
    setTextFormat(Qt::PlainText);
    setDefaultButton(defaultButton);
}

void MessageBox::showEvent(QShowEvent* event) {
    // Qt makes a new layout for each change of the box, and fixes the size by the layout when it shows the
    // box.
    if (auto* const grid = qobject_cast<QGridLayout*>(layout()))
        grid->addItem(new QSpacerItem(TitleWidth(*this), 0), grid->rowCount(), 0, 1, grid->columnCount());
    QMessageBox::showEvent(event);
}
