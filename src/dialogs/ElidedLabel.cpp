// SPDX-License-Identifier: MIT
#include "dialogs/ElidedLabel.h"

#include "list/ToolTip.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int FewestCharacters = 4; // that a label is made wide enough for

} // namespace

ElidedLabel::ElidedLabel(int mostLines, QWidget* parent) : QLabel(parent), mostLines_(mostLines) {
    setTextFormat(Qt::PlainText);
}

QString ElidedLabel::PlainText() const {
    QString plain = text();
    for (const char* lineBreak : {"\r\n", "\r", "\n"})
        plain.replace(QLatin1String(lineBreak), mostLines_ > 1 ? QString(QChar::LineSeparator) : " ");
    return plain;
}

QStringList ElidedLabel::LinesOf(const QString& text, int width) const {
    QTextLayout layout(text, font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines << text.mid(line.textStart(), line.textLength()).remove(QChar::LineSeparator);
    }
    layout.endLayout();
    return lines;
}

QStringList ElidedLabel::ShownLines(int width) const {
    const int inner = width - contentsMargins().left() - contentsMargins().right();
    const QString plain = PlainText();
    if (plain.isEmpty() || inner <= 0)
        return {};
    if (mostLines_ == 1)
        return {fontMetrics().elidedText(plain, Qt::ElideMiddle, inner)};
    QStringList lines = LinesOf(plain, inner);
    // Breaking at words leaves gaps at the ends of lines, so that more text may have to go than the excess.
    for (int room = mostLines_ * inner; lines.size() > mostLines_ && room > 0; room -= inner / 4 + 1) {
        QString onOneLine = plain;
        onOneLine.replace(QChar::LineSeparator, ' ');
        lines = LinesOf(fontMetrics().elidedText(onOneLine, Qt::ElideMiddle, room), inner);
    }
    return lines;
}

int ElidedLabel::HeightOf(qsizetype lines) const {
    const QMargins margins = contentsMargins();
    return margins.top() + margins.bottom() + fontMetrics().height() +
           static_cast<int>(std::max<qsizetype>(lines - 1, 0)) * fontMetrics().lineSpacing();
}

QSize ElidedLabel::sizeHint() const {
    if (mostLines_ > 1)
        return minimumSizeHint();
    const int whole =
        fontMetrics().horizontalAdvance(PlainText()) + contentsMargins().left() + contentsMargins().right();
    return {std::max(whole, minimumSizeHint().width()), HeightOf(1)};
}

QSize ElidedLabel::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * FewestCharacters, HeightOf(1)};
}

int ElidedLabel::heightForWidth(int width) const {
    return mostLines_ > 1 ? HeightOf(ShownLines(width).size()) : -1;
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    // Decided on each request: whether the text is whole changes with every size.
    const QString plain = PlainText();
    const bool whole = mostLines_ == 1 ? ShownLines(width()).join("") == plain
                                       : LinesOf(plain, contentsRect().width()).size() <= mostLines_;
    QStringList said;
    if (!whole)
        said << text();
    if (const QString explanation = Explanation(); !explanation.isEmpty())
        said << explanation;
    if (said.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), ToolTipOf(said.join('\n')), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QStringList lines = ShownLines(width());
    QRect place = contentsRect();
    place.setTop(place.top() + std::max(0, (place.height() - HeightOf(lines.size())) / 2));
    place.setHeight(fontMetrics().height());
    for (const QString& line : lines) {
        style()->drawItemText(&painter, place, Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine,
                              palette(), isEnabled(), line, foregroundRole());
        place.translate(0, fontMetrics().lineSpacing());
    }
}
