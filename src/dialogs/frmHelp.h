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
class QListWidgetItem;
class QPushButton;
class QScreen;
class QSplitter;
class QTabWidget;
class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;

// How a person has arranged a help window, for the next one.
struct HelpWindowLook {
    QByteArray Geometry; // empty: none was open yet
    QByteArray Parts;    // of the window's width
    int TextSize = 0;    // steps above the size of other windows
};

// The help window: contents and search on the left, a page of the help file on the right.
class frmHelp : public QWidget {
    Q_OBJECT

  public:
    frmHelp(HelpBook book, Language language, QWidget* parent = nullptr);

    // Brings the contents or the search to the front of the left side, with the focus. The page stays.
    void ShowContents();
    void ShowSearch();

    HelpWindowLook Look() const;

    // Arranges the window as another one was. Otherwise the window has its designed size, or as much of it as
    // fits the screen.
    void SetLook(const HelpWindowLook& look, const QScreen& screen);

  private:
    void MakeToolBar();
    void MakeContents();
    void MakeSearch();
    void LoadLanguage();
    void Search();
    void ShowTopic(const QTreeWidgetItem* topic);
    void ShowHit(const QListWidgetItem* hit);
    void SelectTopicOf(const QString& page);
    void SetTextSize(int size);

    HelpBook book_;
    Language language_;
    std::vector<std::string> markedTerms_; // for which the list of hits was made
    int textSize_ = 0;                     // steps above the size of other windows

    QToolBar* tbToolBar;
    QAction* actBack;
    QAction* actForward;
    QAction* actLargerText;
    QAction* actSmallerText;
    QAction* actNormalText;
    QSplitter* splitter_;
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
