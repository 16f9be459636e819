// SPDX-License-Identifier: MIT
#pragma once

#include "helpbook/HelpBook.h"
#include "settings/Language.h"

#include <QWidget>

class HelpBrowser;
class QAction;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTabWidget;
class QToolBar;
class QTreeWidget;

// The help window: contents and search on the left, a page of the help file on the right.
class frmHelp : public QWidget {
    Q_OBJECT

  public:
    frmHelp(HelpBook book, Language language, QWidget* parent = nullptr);

    // Brings the contents or the search to the front of the left side, with the focus. The page stays.
    void ShowContents();
    void ShowSearch();

  private:
    void MakeToolBar();
    void MakeContents();
    void MakeSearch();
    void LoadLanguage();
    void Search();
    void SelectTopicOf(const QString& page);
    void ChangeTextSize(int steps);

    HelpBook book_;
    Language language_;
    QString markedWords_; // what the list of hits was made for
    int textSize_ = 0;    // steps above the size of other windows

    QToolBar* tbToolBar;
    QAction* actBack;
    QAction* actForward;
    QAction* actLargerText;
    QAction* actSmallerText;
    QTabWidget* tabPages;
    QTreeWidget* tvContents;
    QWidget* searchPage;
    QLabel* lblSearchWords;
    QLineEdit* tbSearchWords;
    QPushButton* cmdSearch;
    QLabel* lblHits;
    QListWidget* lbHits;
    HelpBrowser* txPage;
};
