// SPDX-License-Identifier: MIT
#pragma once

#include "helpbook/HelpBook.h"

#include <QTextBrowser>

// Shows the pages of a help file, and nothing else: pictures and pages come from the file, never from the
// disk or the network. A link that leads out of the file is opened by the desktop when it is clicked.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT

  public:
    // The book must outlive this. `unreadable` stands in place of a page that the book does not hold.
    HelpBrowser(const HelpBook& book, QString unreadable, QWidget* parent);

    // Shows a page, named as in the book; a place on it may follow behind "#".
    void ShowPage(const std::string& page);

    // The path of the page that is shown.
    std::string Page() const;

    // Marks all places of these words on the page and scrolls to the first one.
    void MarkWords(const QString& words);

  protected:
    QVariant loadResource(int type, const QUrl& name) override;

  private:
    void FollowLink(const QUrl& link);

    const HelpBook& book_;
    QString unreadable_;
};
