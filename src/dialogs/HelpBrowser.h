// SPDX-License-Identifier: MIT
#pragma once

#include "helpbook/HelpBook.h"

#include <QTextBrowser>

// Shows only the pages of a help file: pictures and pages come from the file, never from the disk or the
// network. When the person clicks a link that leads out of the file, the desktop opens it.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT

  public:
    // The book must outlive this. `unreadable` replaces a page that the book does not hold.
    HelpBrowser(const HelpBook& book, QString unreadable, QWidget* parent);

    // Shows a page by its path in the book; a place on it may follow behind "#".
    void ShowPage(const std::string& page);

    // Marks all places of these words and phrases on the page and scrolls to the first one.
    void MarkTerms(const std::vector<std::string>& terms);

  signals:
    // The wheel was turned with the Ctrl key: this many steps larger, or smaller when below 0.
    void TextSizeWanted(int steps);

  protected:
    void wheelEvent(QWheelEvent* event) override;
    QVariant loadResource(int type, const QUrl& name) override;

  private:
    void FollowLink(const QUrl& link);

    const HelpBook& book_;
    QString unreadable_;
    int turned_ = 0; // the part of a step that the wheel was turned with Ctrl
};
