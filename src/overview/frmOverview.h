// SPDX-License-Identifier: MIT
#pragma once

#include "overview/TimelineView.h"
#include "rows/RowMatches.h"
#include "settings/Language.h"

#include <QWidget>

#include <cstddef>
#include <optional>
#include <string>

class ElidedLabel;
class ErrorModel;
class HistoryTable;
class MarkModel;
class QLabel;
class QLineEdit;
class QMenu;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QTabWidget;
class SessionModel;

// The overview of a logbook: its timeline, what is to say of the selected rows, and tables of its sessions,
// errors and marks. It shows what it is given, and signals what the person orders.
class frmOverview : public QWidget {
    Q_OBJECT

  public:
    explicit frmOverview(QWidget* parent);

    void SetLanguage(Language language);

    // Nothing is known of a logbook, because there is none, or none yet.
    void ShowNothing();

    // The history is being determined, 0 to 100 percent of it is done.
    void ShowProgress(double percent);

    // A complete history and the table that it is of. Both must outlive their being shown; ShowNothing ends
    // that. The sets are of the table's entries.
    void ShowHistory(const LogbookHistory& history, const EntryTable& entries, const EntrySet& commented,
                     const EntrySet& highlighted);

    void ShowMarks(const EntrySet& commented, const EntrySet& highlighted);

    // The rows on the screen and the selected entry, on the timeline; the line about the selection, and the
    // error (a place in the history's errors) that a single selected row is. The table of errors selects it
    // when the person is at work in the list; not when that would change what the next order here means.
    void ShowList(const std::optional<TimelineSpan>& rows, const std::optional<Timeline::Place>& selected);
    void ShowSelection(const std::string& text, std::optional<std::size_t> error);

    bool HasHistory() const { return history_ != nullptr; }

  signals:
    void EntryWanted(EntryNumber entry);
    void SpanSelected(EntryNumber first, EntryNumber end); // to before `end`

    // Of the error with this key.
    void OccurrenceWanted(const std::string& key, SearchDirection direction);
    void HighlightAllWanted(const std::string& key);
    void RemoveAllWanted(const std::string& key);

    void UndoWanted();
    void RedoWanted();
    void HelpWanted();

    // The window is on the screen from now on, or no more.
    void Shown();
    void Hidden();

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void MakeTimeline();
    void MakeTables();
    QPushButton* MakeButton(const char* name);
    void MakeKeys();
    void FitColumnWidths();
    HistoryTable* ShownTable() const;
    void EnableOrders();
    void GoToSelected();
    void OrderOccurrence(SearchDirection direction);
    void OrderAll(void (frmOverview::*order)(const std::string& key));
    const ErrorRecord* SelectedError() const;
    void ShowErrorText();
    void SelectWantedError();
    void TurnTab(int tabs);
    void ShowPopup(HistoryTable& table, const QPoint& position);

    Language language_;
    const LogbookHistory* history_ = nullptr;
    const EntryTable* entries_ = nullptr;
    bool isJustShown_ = false;
    std::optional<std::size_t> wantedError_; // to be selected when the table of errors is seen
    TimelineView* pbTimeline;
    ElidedLabel* lblSeen;
    QPushButton* cmdZoomIn;
    QPushButton* cmdZoomOut;
    QPushButton* cmdWhole;
    QLineEdit* tbSelection;
    QLabel* lblState;
    QProgressBar* pbHistory;
    QTabWidget* tabTables;
    SessionModel* sessions_;
    ErrorModel* errors_;
    MarkModel* marks_;
    HistoryTable* lvSessions;
    HistoryTable* lvErrors;
    HistoryTable* lvMarks;
    QPlainTextEdit* txErrorText;
    QLabel* lblMissing;
    QLabel* lblMarks;
    QPushButton* cmdGoTo;
    QPushButton* cmdPrevious;
    QPushButton* cmdNext;
    QPushButton* cmdHighlightAll;
    QPushButton* cmdRemoveAll;
};
