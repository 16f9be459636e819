// SPDX-License-Identifier: MIT
#include "overview/frmOverview.h"

#include "dialogs/ElidedLabel.h"
#include "dialogs/ScrolledContent.h"
#include "list/QtText.h"
#include "overview/ErrorModel.h"
#include "overview/HistoryTable.h"
#include "overview/MarkModel.h"
#include "overview/SessionModel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

#include <utility>

namespace {

QWidget* PageOf(std::initializer_list<QWidget*> parts) {
    auto* const page = new QWidget;
    auto* const layout = new QVBoxLayout(page);
    for (QWidget* const part : parts)
        layout->addWidget(part, qobject_cast<QLabel*>(part) == nullptr ? 1 : 0);
    return page;
}

} // namespace

frmOverview::frmOverview(QWidget* parent)
    : QWidget(parent, Qt::Window),
      pbTimeline(new TimelineView(this)),
      lblSeen(new ElidedLabel(1, this)),
      cmdZoomIn(MakeButton("cmdZoomIn")),
      cmdZoomOut(MakeButton("cmdZoomOut")),
      cmdWhole(MakeButton("cmdWhole")),
      tbSelection(new QLineEdit(this)),
      lblState(new QLabel(this)),
      pbHistory(new QProgressBar(this)),
      tabTables(new QTabWidget(this)),
      sessions_(new SessionModel(this)),
      errors_(new ErrorModel(this)),
      marks_(new MarkModel(this)),
      lvSessions(new HistoryTable(this)),
      lvErrors(new HistoryTable(this)),
      lvMarks(new HistoryTable(this)),
      txErrorText(new QPlainTextEdit(this)),
      lblMissing(new QLabel(this)),
      lblMarks(new QLabel(this)),
      cmdGoTo(MakeButton("cmdGoTo")),
      cmdPrevious(MakeButton("cmdPrevious")),
      cmdNext(MakeButton("cmdNext")),
      cmdHighlightAll(MakeButton("cmdHighlightAll")),
      cmdRemoveAll(MakeButton("cmdRemoveAll")) {
    setObjectName("frmOverview");
    // The program ends with the main window.
    setAttribute(Qt::WA_QuitOnClose, false);
    MakeTables();
    MakeTimeline();
    MakeKeys();

    auto* const seen = new QHBoxLayout;
    seen->addWidget(lblSeen, 1);
    for (QPushButton* const button : {cmdZoomIn, cmdZoomOut, cmdWhole})
        seen->addWidget(button);
    auto* const state = new QHBoxLayout;
    state->addWidget(lblState);
    state->addWidget(pbHistory, 1);
    auto* const orders = new QHBoxLayout;
    for (QPushButton* const button : {cmdGoTo, cmdPrevious, cmdNext, cmdHighlightAll, cmdRemoveAll})
        orders->addWidget(button);
    orders->addStretch(1);
    auto* const content = new ScrolledContent(this);
    auto* const parts = new QVBoxLayout(content->widget());
    parts->setContentsMargins(0, 0, 0, 0);
    parts->addWidget(pbTimeline);
    parts->addLayout(seen);
    parts->addWidget(tbSelection);
    parts->addLayout(state);
    parts->addWidget(tabTables, 1);
    auto* const layout = new QVBoxLayout(this);
    // Made last, but what reads the screen reads it before the buttons below.
    content->lower();
    layout->addWidget(content, 1);
    layout->addLayout(orders);
    ShowNothing();
}

QPushButton* frmOverview::MakeButton(const char* name) {
    auto* const button = new QPushButton(this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

void frmOverview::MakeTimeline() {
    lblSeen->setObjectName("lblSeen");
    // A field, which can be reached by keys, read and copied, and needs no more room for a longer text.
    tbSelection->setObjectName("tbSelection");
    tbSelection->setReadOnly(true);
    tbSelection->setFrame(false);
    QPalette plain = tbSelection->palette();
    plain.setBrush(QPalette::Base, Qt::transparent);
    tbSelection->setPalette(plain);
    lblState->setObjectName("lblState");
    pbHistory->setObjectName("pbHistory");
    connect(pbTimeline, &TimelineView::EntryWanted, this, &frmOverview::EntryWanted);
    connect(pbTimeline, &TimelineView::SpanSelected, this, &frmOverview::SpanSelected);
    connect(pbTimeline, &TimelineView::SeenChanged, this,
            [this] { lblSeen->setText(pbTimeline->SeenText()); });
    connect(cmdZoomIn, &QPushButton::clicked, pbTimeline, &TimelineView::ZoomIn);
    connect(cmdZoomOut, &QPushButton::clicked, pbTimeline, &TimelineView::ZoomOut);
    connect(cmdWhole, &QPushButton::clicked, pbTimeline, &TimelineView::ShowAll);
}

void frmOverview::MakeTables() {
    tabTables->setObjectName("tabTables");
    lvSessions->setObjectName("lvSessions");
    lvErrors->setObjectName("lvErrors");
    lvMarks->setObjectName("lvMarks");
    txErrorText->setObjectName("txErrorText");
    txErrorText->setReadOnly(true);
    txErrorText->setTabChangesFocus(true);
    lblMissing->setObjectName("lblMissing");
    lblMarks->setObjectName("lblMarks");
    lvSessions->SetHistory(sessions_);
    lvErrors->SetHistory(errors_);
    lvMarks->SetHistory(marks_);
    auto* const errorsAndText = new QSplitter(Qt::Vertical);
    errorsAndText->setObjectName("splitter");
    errorsAndText->addWidget(lvErrors);
    errorsAndText->addWidget(txErrorText);
    errorsAndText->setStretchFactor(0, 3);
    errorsAndText->setStretchFactor(1, 2);
    errorsAndText->setChildrenCollapsible(false);
    tabTables->addTab(PageOf({lvSessions}), QString());
    tabTables->addTab(PageOf({errorsAndText, lblMissing}), QString());
    tabTables->addTab(PageOf({lvMarks, lblMarks}), QString());
    for (HistoryTable* const table : {lvSessions, lvErrors, lvMarks}) {
        connect(table, &HistoryTable::EntryWanted, this, &frmOverview::GoToSelected);
        connect(table, &HistoryTable::SelectionChanged, this, &frmOverview::EnableOrders);
        connect(table, &HistoryTable::PopupWanted, this,
                [this, table](const QPoint& position) { ShowPopup(*table, position); });
    }
    connect(lvErrors, &HistoryTable::SelectionChanged, this, &frmOverview::ShowErrorText);
    connect(lvErrors, &HistoryTable::RemovalWanted, this,
            [this] { OrderAll(&frmOverview::RemoveAllWanted); });
    connect(tabTables, &QTabWidget::currentChanged, this, [this] {
        SelectWantedError();
        EnableOrders();
    });
    connect(cmdGoTo, &QPushButton::clicked, this, &frmOverview::GoToSelected);
    connect(cmdPrevious, &QPushButton::clicked, this, [this] { OrderOccurrence(SearchDirection::Up); });
    connect(cmdNext, &QPushButton::clicked, this, [this] { OrderOccurrence(SearchDirection::Down); });
    connect(cmdHighlightAll, &QPushButton::clicked, this,
            [this] { OrderAll(&frmOverview::HighlightAllWanted); });
    connect(cmdRemoveAll, &QPushButton::clicked, this, [this] { OrderAll(&frmOverview::RemoveAllWanted); });
}

// The keys of the main window that have a meaning here, too.
void frmOverview::MakeKeys() {
    const auto key = [this](QKeyCombination keys, auto act) {
        connect(new QShortcut(QKeySequence(keys), this), &QShortcut::activated, this, act);
    };
    key(Qt::Key_F4, [this] { OrderOccurrence(SearchDirection::Down); });
    key(Qt::SHIFT | Qt::Key_F4, [this] { OrderOccurrence(SearchDirection::Up); });
    key(Qt::CTRL | Qt::Key_Z, [this] { emit UndoWanted(); });
    key(Qt::CTRL | Qt::Key_Y, [this] { emit RedoWanted(); });
    key(Qt::Key_F1, [this] { emit HelpWanted(); });
    key(Qt::CTRL | Qt::Key_Tab, [this] { TurnTab(1); });
    key(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, [this] { TurnTab(-1); });
    key(Qt::Key_Escape, [this] { close(); });
    key(Qt::Key_F9, [this] { close(); });
}

void frmOverview::SetLanguage(Language language) {
    language_ = language;
    const auto text = [&](TextId id) { return QtText(id, language); };
    setWindowTitle(text(TextId::OverviewTitle));
    tabTables->setAccessibleName(text(TextId::OverviewTitle));
    tabTables->setTabText(0, text(TextId::OverviewSessions));
    tabTables->setTabText(1, text(TextId::OverviewErrors));
    tabTables->setTabText(2, text(TextId::OverviewMarks));
    lvSessions->setAccessibleName(text(TextId::OverviewSessions));
    lvErrors->setAccessibleName(text(TextId::OverviewErrors));
    lvMarks->setAccessibleName(text(TextId::OverviewMarks));
    txErrorText->setAccessibleName(text(TextId::OverviewErrorText));
    tbSelection->setAccessibleName(text(TextId::SelectionLine));
    pbHistory->setAccessibleName(text(TextId::ProgressBar));
    cmdZoomIn->setText(text(TextId::OverviewZoomIn));
    cmdZoomOut->setText(text(TextId::OverviewZoomOut));
    cmdWhole->setText(text(TextId::OverviewWhole));
    cmdGoTo->setText(text(TextId::OverviewGoTo));
    cmdPrevious->setText(text(TextId::OverviewPrevious));
    cmdNext->setText(text(TextId::OverviewNext));
    cmdHighlightAll->setText(text(TextId::OverviewHighlightAll));
    cmdRemoveAll->setText(text(TextId::OverviewRemoveAll));
    pbTimeline->SetLanguage(language);
    for (HistoryModel* const model :
         {static_cast<HistoryModel*>(sessions_), static_cast<HistoryModel*>(errors_),
          static_cast<HistoryModel*>(marks_)})
        model->SetLanguage(language);
    lblMissing->setText(errors_->MissingTexts());
    lblMarks->setText(marks_->Remark());
    if (history_ == nullptr)
        lblState->setText(text(pbHistory->isHidden() ? TextId::OverviewNoLogbook : TextId::OverviewWorking));
    else
        FitColumnWidths();
    ShowErrorText();
}

void frmOverview::ShowNothing() {
    history_ = nullptr;
    entries_ = nullptr;
    wantedError_.reset();
    pbTimeline->ShowHistory(nullptr, EntrySet(), EntrySet());
    sessions_->ShowHistory(nullptr, nullptr);
    errors_->ShowHistory(nullptr);
    marks_->ShowMarks(nullptr, EntrySet(), EntrySet());
    tbSelection->clear();
    lblMissing->clear();
    lblMarks->clear();
    lblState->setText(QtText(TextId::OverviewNoLogbook, language_));
    lblState->show();
    pbHistory->hide();
    ShowErrorText();
    EnableOrders();
}

void frmOverview::ShowProgress(double percent) {
    lblState->setText(QtText(TextId::OverviewWorking, language_));
    pbHistory->setValue(static_cast<int>(percent));
    pbHistory->show();
}

void frmOverview::ShowHistory(const LogbookHistory& history, const EntryTable& entries,
                              const EntrySet& commented, const EntrySet& highlighted) {
    history_ = &history;
    entries_ = &entries;
    lblState->hide();
    pbHistory->hide();
    pbTimeline->ShowHistory(&history, commented, highlighted);
    sessions_->ShowHistory(&history, &entries);
    errors_->ShowHistory(&history);
    marks_->ShowMarks(&entries, commented, highlighted);
    lblMissing->setText(errors_->MissingTexts());
    lblMarks->setText(marks_->Remark());
    FitColumnWidths();
    ShowErrorText();
    EnableOrders();
}

void frmOverview::FitColumnWidths() {
    for (HistoryTable* const table : {lvSessions, lvErrors, lvMarks})
        table->FitColumnWidths(std::max(200, tabTables->width() * 2 / 5));
}

void frmOverview::ShowMarks(const EntrySet& commented, const EntrySet& highlighted) {
    if (history_ == nullptr)
        return;
    pbTimeline->ShowMarks(commented, highlighted);
    marks_->ShowMarks(entries_, commented, highlighted);
    lblMarks->setText(marks_->Remark());
}

void frmOverview::ShowList(const std::optional<TimelineSpan>& rows,
                           const std::optional<Timeline::Place>& selected) {
    pbTimeline->ShowList(rows, selected);
}

void frmOverview::ShowSelection(const std::string& text, std::optional<std::size_t> error) {
    tbSelection->setText(ToQString(text));
    tbSelection->setCursorPosition(0);
    tbSelection->setToolTip(tbSelection->text());
    const bool isJustShown = std::exchange(isJustShown_, false);
    if (error && (isJustShown || !isActiveWindow()))
        wantedError_ = error;
    SelectWantedError();
}

void frmOverview::SelectWantedError() {
    if (wantedError_ && history_ != nullptr && ShownTable() == lvErrors)
        lvErrors->SelectRecord(*std::exchange(wantedError_, std::nullopt));
}

void frmOverview::TurnTab(int tabs) {
    tabTables->setCurrentIndex((tabTables->currentIndex() + tabs + tabTables->count()) % tabTables->count());
    ShownTable()->setFocus(Qt::TabFocusReason);
}

HistoryTable* frmOverview::ShownTable() const {
    HistoryTable* const tables[] = {lvSessions, lvErrors, lvMarks};
    return tables[std::max(tabTables->currentIndex(), 0)];
}

const ErrorRecord* frmOverview::SelectedError() const {
    const std::optional<std::size_t> record = history_ != nullptr ? lvErrors->SelectedRecord() : std::nullopt;
    return record ? &errors_->ErrorOf(*record) : nullptr;
}

void frmOverview::EnableOrders() {
    const bool hasRecord = history_ != nullptr && ShownTable()->SelectedRecord().has_value();
    const bool hasError = ShownTable() == lvErrors && SelectedError() != nullptr;
    cmdGoTo->setEnabled(hasRecord);
    for (QPushButton* const button : {cmdPrevious, cmdNext, cmdHighlightAll, cmdRemoveAll})
        button->setEnabled(hasError);
    for (QPushButton* const button : {cmdZoomIn, cmdZoomOut, cmdWhole})
        button->setEnabled(history_ != nullptr);
}

void frmOverview::GoToSelected() {
    const std::optional<std::size_t> record =
        history_ != nullptr ? ShownTable()->SelectedRecord() : std::nullopt;
    if (!record)
        return;
    std::optional<EntryNumber> entry;
    if (ShownTable() == lvSessions)
        entry = sessions_->FirstEntryOf(*record);
    else if (ShownTable() == lvErrors)
        entry = errors_->ErrorOf(*record).First;
    else
        entry = marks_->EntryOf(*record);
    if (entry)
        emit EntryWanted(*entry);
}

void frmOverview::OrderOccurrence(SearchDirection direction) {
    if (const ErrorRecord* const error = SelectedError(); error != nullptr && ShownTable() == lvErrors)
        emit OccurrenceWanted(error->Key, direction);
}

void frmOverview::OrderAll(void (frmOverview::*order)(const std::string& key)) {
    if (const ErrorRecord* const error = SelectedError(); error != nullptr && ShownTable() == lvErrors) {
        const std::string key = error->Key;
        emit(this->*order)(key);
    }
}

// What the logbook says itself, then the control's whole texts, in the language of the dialogs first.
void frmOverview::ShowErrorText() {
    const ErrorRecord* const error = SelectedError();
    if (error == nullptr)
        return txErrorText->clear();
    const ErrorTexts texts = history_->FullTexts(*error);
    const auto part = [&](TextId language, const std::optional<std::string>& text) {
        return QtText(language, language_) + ": " +
               (text ? ToQString(*text) : QtText(TextId::OverviewNoText, language_));
    };
    const QString english = part(TextId::HistoryEnglish, texts.English);
    const QString german = part(TextId::HistoryGerman, texts.German);
    constexpr int LongestData = 2000; // characters
    const QString inLogbook = QtText(TextId::ColumnData, language_) + ": " +
                              ToQString(entries_->Data(error->First)).left(LongestData) + "\n\n";
    txErrorText->setPlainText(inLogbook +
                              (language_.IsGerman() ? german + "\n\n" + english : english + "\n\n" + german));
}

// The orders, and the columns to sort by, for the keyboard.
void frmOverview::ShowPopup(HistoryTable& table, const QPoint& position) {
    auto* const popup = new QMenu(this);
    popup->setObjectName("mnuOverviewPopup");
    popup->setAttribute(Qt::WA_DeleteOnClose);
    for (QPushButton* const button : {cmdGoTo, cmdPrevious, cmdNext, cmdHighlightAll, cmdRemoveAll})
        if (button->isEnabled())
            connect(popup->addAction(button->text()), &QAction::triggered, button, &QPushButton::click);
    QMenu* const sort = popup->addMenu(QtText(TextId::mnuAnalysisSort, language_));
    sort->setObjectName("mnuOverviewSort");
    for (int column = 0; column < table.model()->columnCount(); ++column)
        for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder})
            connect(sort->addAction(
                        table.model()->headerData(column, Qt::Horizontal).toString() +
                        QtText(order == Qt::AscendingOrder ? TextId::SortAscending : TextId::SortDescending,
                               language_)),
                    &QAction::triggered, &table,
                    [&table, column, order] { table.sortByColumn(column, order); });
    popup->popup(position);
}

void frmOverview::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    isJustShown_ = true;
    emit Shown();
}

void frmOverview::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    emit Hidden();
}
