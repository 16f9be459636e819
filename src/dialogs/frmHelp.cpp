// SPDX-License-Identifier: MIT
#include "dialogs/frmHelp.h"

#include "dialogs/HelpBrowser.h"
#include "dialogs/ScreenRoom.h"
#include "helpbook/HelpSearch.h"
#include "list/QtText.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int PageRole = Qt::UserRole; // of a topic and of a hit: the page's path
constexpr QSize WindowSize(1080, 720);
constexpr int ContentsWidth = 290;
constexpr int SmallestText = -4;
constexpr int LargestText = 12;

void AddTopics(QTreeWidgetItem* parent, const std::vector<HelpTopic>& topics) {
    for (const HelpTopic& topic : topics) {
        auto* item = new QTreeWidgetItem(parent, {ToQString(topic.Title)});
        item->setData(0, PageRole, ToQString(topic.Page));
        AddTopics(item, topic.Topics);
    }
}

// The first item below that leads to the page.
QTreeWidgetItem* FindTopic(QTreeWidgetItem* parent, const QString& page) {
    for (int i = 0; i < parent->childCount(); ++i) {
        QTreeWidgetItem* const item = parent->child(i);
        if (item->data(0, PageRole).toString().compare(page, Qt::CaseInsensitive) == 0)
            return item;
        if (QTreeWidgetItem* const below = FindTopic(item, page))
            return below;
    }
    return nullptr;
}

} // namespace

frmHelp::frmHelp(HelpBook book, Language language, QWidget* parent)
    : QWidget(parent),
      book_(std::move(book)),
      language_(language),
      tbToolBar(new QToolBar(this)),
      actBack(new QAction(this)),
      actForward(new QAction(this)),
      actLargerText(new QAction(this)),
      actSmallerText(new QAction(this)),
      actNormalText(new QAction(this)),
      splitter_(new QSplitter(this)),
      tabPages(new QTabWidget(this)),
      tvContents(new QTreeWidget),
      searchPage(new QWidget),
      lblSearchWords(new QLabel(searchPage)),
      tbSearchWords(new QLineEdit(searchPage)),
      cmdSearch(new QPushButton(searchPage)),
      lblHits(new QLabel(searchPage)),
      lbHits(new QListWidget(searchPage)),
      txPage(new HelpBrowser(book_, QtText(TextId::HelpPageUnreadable, language), this)) {
    setObjectName("frmHelp");
    // The program ends with the main window, not with the last help window.
    setAttribute(Qt::WA_QuitOnClose, false);
    txPage->setObjectName("txPage");
    MakeContents();
    MakeSearch();
    MakeToolBar();

    tabPages->setObjectName("tabPages");
    tabPages->addTab(tvContents, QString());
    tabPages->addTab(searchPage, QString());

    splitter_->setObjectName("splitter");
    splitter_->addWidget(tabPages);
    splitter_->addWidget(txPage);
    splitter_->setStretchFactor(1, 1);
    splitter_->setChildrenCollapsible(false);
    splitter_->setSizes({ContentsWidth, WindowSize.width() - ContentsWidth});
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tbToolBar);
    layout->addWidget(splitter_, 1);

    connect(txPage, &QTextBrowser::sourceChanged, this,
            [this](const QUrl& page) { SelectTopicOf(page.path()); });
    LoadLanguage();
    txPage->ShowPage(book_.FirstPage);
}

void frmHelp::MakeContents() {
    tvContents->setObjectName("tvContents");
    tvContents->setHeaderHidden(true);
    AddTopics(tvContents->invisibleRootItem(), book_.Contents);
    tvContents->expandAll();
    connect(tvContents, &QTreeWidget::currentItemChanged, this, &frmHelp::ShowTopic);
    // After a link, the current topic's page may no longer be shown.
    connect(tvContents, &QTreeWidget::itemClicked, this, &frmHelp::ShowTopic);
    connect(tvContents, &QTreeWidget::itemActivated, this, &frmHelp::ShowTopic);
}

void frmHelp::MakeSearch() {
    searchPage->setObjectName("searchPage");
    lblSearchWords->setObjectName("lblSearchWords");
    tbSearchWords->setObjectName("tbSearchWords");
    cmdSearch->setObjectName("cmdSearch");
    lblHits->setObjectName("lblHits");
    lbHits->setObjectName("lbHits");
    lblSearchWords->setBuddy(tbSearchWords);
    lblHits->setWordWrap(true);

    auto* line = new QHBoxLayout;
    line->addWidget(tbSearchWords, 1);
    line->addWidget(cmdSearch);
    auto* layout = new QVBoxLayout(searchPage);
    layout->addWidget(lblSearchWords);
    layout->addLayout(line);
    layout->addWidget(lblHits);
    layout->addWidget(lbHits, 1);

    connect(cmdSearch, &QPushButton::clicked, this, &frmHelp::Search);
    connect(tbSearchWords, &QLineEdit::returnPressed, this, &frmHelp::Search);
    connect(lbHits, &QListWidget::currentItemChanged, this, &frmHelp::ShowHit);
    connect(lbHits, &QListWidget::itemClicked, this, &frmHelp::ShowHit);
    connect(lbHits, &QListWidget::itemActivated, this, &frmHelp::ShowHit);
}

void frmHelp::MakeToolBar() {
    tbToolBar->setObjectName("tbToolBar");
    tbToolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    actBack->setObjectName("actBack");
    actForward->setObjectName("actForward");
    actLargerText->setObjectName("actLargerText");
    actSmallerText->setObjectName("actSmallerText");
    actNormalText->setObjectName("actNormalText");
    actBack->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
    actForward->setIcon(style()->standardIcon(QStyle::SP_ArrowForward));
    actBack->setShortcuts(QKeySequence::Back);
    actForward->setShortcuts(QKeySequence::Forward);
    actLargerText->setShortcuts({QKeySequence(QKeySequence::ZoomIn), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    actSmallerText->setShortcuts(QKeySequence::ZoomOut);
    actNormalText->setShortcut(Qt::CTRL | Qt::Key_0);
    actBack->setEnabled(false);
    actForward->setEnabled(false);
    actNormalText->setEnabled(false);
    tbToolBar->addAction(actBack);
    tbToolBar->addAction(actForward);
    tbToolBar->addSeparator();
    tbToolBar->addAction(actLargerText);
    tbToolBar->addAction(actSmallerText);
    tbToolBar->addAction(actNormalText);
    for (QAction* action : tbToolBar->actions())
        if (QWidget* const button = tbToolBar->widgetForAction(action); !action->isSeparator())
            button->setFocusPolicy(Qt::TabFocus);

    connect(actBack, &QAction::triggered, txPage, &QTextBrowser::backward);
    connect(actForward, &QAction::triggered, txPage, &QTextBrowser::forward);
    connect(txPage, &QTextBrowser::backwardAvailable, actBack, &QAction::setEnabled);
    connect(txPage, &QTextBrowser::forwardAvailable, actForward, &QAction::setEnabled);
    connect(actLargerText, &QAction::triggered, this, [this] { SetTextSize(textSize_ + 1); });
    connect(actSmallerText, &QAction::triggered, this, [this] { SetTextSize(textSize_ - 1); });
    connect(actNormalText, &QAction::triggered, this, [this] { SetTextSize(0); });
    connect(txPage, &HelpBrowser::TextSizeWanted, this,
            [this](int steps) { SetTextSize(textSize_ + steps); });
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
            &frmHelp::ShowContents);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, &frmHelp::ShowSearch);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
}

void frmHelp::LoadLanguage() {
    setWindowTitle(book_.Title.empty() ? QtText(TextId::HelpTitle, language_) : ToQString(book_.Title));
    tabPages->setTabText(0, QtText(TextId::HelpContentsTab, language_));
    tabPages->setTabText(1, QtText(TextId::HelpSearchTab, language_));
    actBack->setText(QtText(TextId::HelpBack, language_));
    actForward->setText(QtText(TextId::HelpForward, language_));
    actLargerText->setText(QtText(TextId::HelpLargerText, language_));
    actSmallerText->setText(QtText(TextId::HelpSmallerText, language_));
    actNormalText->setText(QtText(TextId::HelpNormalText, language_));
    lblSearchWords->setText(QtText(TextId::HelpSearchLabel, language_));
    cmdSearch->setText(QtText(TextId::HelpSearchButton, language_));
    tvContents->setAccessibleName(QtPlainText(TextId::HelpContentsTab, language_));
    lbHits->setAccessibleName(QtText(TextId::HelpHits, language_));
    txPage->setAccessibleName(QtText(TextId::HelpPage, language_));
    tabPages->setAccessibleName(QtText(TextId::HelpTitle, language_));
}

void frmHelp::ShowContents() {
    tabPages->setCurrentWidget(tvContents);
    tvContents->setFocus();
}

void frmHelp::ShowSearch() {
    tabPages->setCurrentWidget(searchPage);
    tbSearchWords->setFocus();
    tbSearchWords->selectAll();
}

HelpWindowLook frmHelp::Look() const { return {saveGeometry(), splitter_->saveState(), textSize_}; }

void frmHelp::SetLook(const HelpWindowLook& look, const QScreen& screen) {
    if (look.Geometry.isEmpty()) {
        resize(WithinScreen(WindowSize, screen));
    } else {
        restoreGeometry(look.Geometry);
        splitter_->restoreState(look.Parts);
    }
    SetTextSize(look.TextSize);
}

void frmHelp::Search() {
    const std::vector<std::string> terms = HelpTerms(tbSearchWords->text().toStdString());
    if (terms.empty())
        return;
    markedTerms_ = terms;
    const std::vector<HelpHit> hits = SearchHelp(book_, markedTerms_);
    lbHits->clear();
    for (const HelpHit& hit : hits) {
        auto* item = new QListWidgetItem(ToQString(hit.Title), lbHits);
        item->setData(PageRole, ToQString(hit.Page));
    }
    lblHits->setText(hits.empty() ? QtText(TextId::HelpNothingFound, language_)
                                  : QtText(TextId::HelpPagesFound, language_) + QString::number(hits.size()));
}

void frmHelp::ShowTopic(const QTreeWidgetItem* topic) {
    const QString page = topic ? topic->data(0, PageRole).toString() : QString();
    if (!page.isEmpty())
        txPage->ShowPage(page.toStdString());
}

void frmHelp::ShowHit(const QListWidgetItem* hit) {
    if (!hit)
        return;
    txPage->ShowPage(hit->data(PageRole).toString().toStdString());
    txPage->MarkTerms(markedTerms_);
}

void frmHelp::SelectTopicOf(const QString& page) {
    // The contents follow the page but do not show it again, which would lose the place on it.
    const QSignalBlocker blocker(tvContents);
    QTreeWidgetItem* const topic = FindTopic(tvContents->invisibleRootItem(), page);
    const bool isShown = tvContents->currentItem() &&
                         tvContents->currentItem()->data(0, PageRole).toString().section('#', 0, 0) == page;
    if (topic && !isShown)
        tvContents->setCurrentItem(topic);
}

void frmHelp::SetTextSize(int size) {
    const int allowed = std::clamp(size, SmallestText, LargestText);
    txPage->zoomIn(allowed - textSize_);
    textSize_ = allowed;
    actLargerText->setEnabled(allowed < LargestText);
    actSmallerText->setEnabled(allowed > SmallestText);
    actNormalText->setEnabled(allowed != 0);
}
