// SPDX-License-Identifier: MIT
#include "dialogs/HelpBrowser.h"

#include "helpbook/HtmlText.h"
#include "list/QtText.h"

#include <QDesktopServices>
#include <QImage>
#include <QTextBlock>
#include <QWheelEvent>

namespace {

// The addresses of the book's pages have their own scheme, so that relative links lead to pages.
const QString Scheme = QStringLiteral("help");

constexpr qreal PageMargin = 12;

// The pages have no style of their own.
const QString PageStyle =
    QStringLiteral("table { border-collapse: collapse; margin-top: 6px; margin-bottom: 10px; }"
                   "h2 { margin-top: 18px; margin-bottom: 6px; }"
                   "pre { margin-top: 6px; margin-bottom: 10px; }"
                   "li { margin-bottom: 3px; }");

QUrl UrlOf(const std::string& page) {
    const QString path = QString::fromStdString(page);
    QUrl url;
    url.setScheme(Scheme);
    url.setPath(path.section('#', 0, 0));
    if (path.contains('#'))
        url.setFragment(path.section('#', 1));
    return url;
}

} // namespace

HelpBrowser::HelpBrowser(const HelpBook& book, QString unreadable, QWidget* parent)
    : QTextBrowser(parent), book_(book), unreadable_(std::move(unreadable)) {
    setOpenLinks(false);
    document()->setDocumentMargin(PageMargin);
    document()->setDefaultStyleSheet(PageStyle);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::FollowLink);
    // Marks belong to the page on which they were made.
    connect(this, &QTextBrowser::sourceChanged, this, [this] { setExtraSelections({}); });
}

void HelpBrowser::ShowPage(const std::string& page) { setSource(UrlOf(page), QTextDocument::HtmlResource); }

void HelpBrowser::FollowLink(const QUrl& link) {
    const QUrl target = source().resolved(link);
    if (target.scheme() == Scheme)
        setSource(target, QTextDocument::HtmlResource);
    else
        QDesktopServices::openUrl(target);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    const QUrl url = source().resolved(name);
    const std::optional<std::string_view> member =
        url.scheme() == Scheme ? MemberOf(book_, url.path().toStdString()) : std::nullopt;
    if (type == QTextDocument::HtmlResource)
        return member ? QString::fromStdString(HelpTextAsUtf8(*member)) : unreadable_.toHtmlEscaped();
    if (type != QTextDocument::ImageResource)
        return member ? QByteArray(member->data(), static_cast<qsizetype>(member->size())) : QByteArray("");
    QImage picture;
    if (member)
        picture.loadFromData(reinterpret_cast<const uchar*>(member->data()),
                             static_cast<int>(member->size()));
    if (picture.isNull()) {
        // An invisible picture; without any, Qt would look for a file of that name.
        picture = QImage(1, 1, QImage::Format_ARGB32);
        picture.fill(Qt::transparent);
    }
    return picture;
}

// Qt would change the size of the text by itself, without a limit.
void HelpBrowser::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier))
        return QTextBrowser::wheelEvent(event);
    turned_ += event->angleDelta().y();
    if (const int steps = turned_ / QWheelEvent::DefaultDeltasPerStep; steps != 0) {
        turned_ -= steps * QWheelEvent::DefaultDeltasPerStep;
        emit TextSizeWanted(steps);
    }
    event->accept();
}

void HelpBrowser::MarkTerms(const std::vector<std::string>& terms) {
    QList<QTextEdit::ExtraSelection> marks;
    for (const std::string& term : terms) {
        QTextCursor cursor(document());
        while (!(cursor = document()->find(ToQString(term), cursor)).isNull()) {
            QTextEdit::ExtraSelection mark;
            mark.cursor = cursor;
            mark.format.setBackground(Qt::yellow);
            mark.format.setForeground(Qt::black);
            marks.append(mark);
        }
    }
    setExtraSelections(marks);
    const auto first = std::min_element(marks.begin(), marks.end(), [](const auto& a, const auto& b) {
        return a.cursor.selectionStart() < b.cursor.selectionStart();
    });
    if (first == marks.end())
        return;
    QTextCursor place = first->cursor;
    place.clearSelection();
    setTextCursor(place);
    ensureCursorVisible();
}
