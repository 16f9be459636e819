// SPDX-License-Identifier: MIT
#pragma once

#include "app/session/SessionEntry.h"
#include "app/session/SessionFilters.h"

#include <QStringList>

#include <functional>
#include <map>
#include <set>

// A row of the list.
struct SessionRow {
    int Entry = 0;
    bool Highlighted = false;
};

// What rows a person steps to.
enum class SessionMark { Error, Highlighted, Commented };

// What is searched for.
struct SessionSearch {
    QString Text;
    bool Up = false;
    bool WholeWord = false;
    bool CaseSensitive = false;

    bool operator==(const SessionSearch&) const = default;
};

// What the main window must show and store, from the rules alone: lists of plain values, and no line of the
// program's own. Rows count from 0, a row of -1 is none.
class RandomSessionModel {
  public:
    // The logbook is read: a new list, without a selected row.
    void Read(const SessionEntries& entries, const QString& name);

    // A filter run. The entry that was selected is selected again, or the next one that is shown.
    void Filter();

    // By a click on the header, or in a direction.
    void Sort(int column);
    void Sort(int column, bool descending);

    // The selected entries, into or out of the number filter of their action, in list order. The row behind
    // removed ones is selected and shown.
    void RemoveSelected();
    void ToggleSelected();

    // Entries by number, also those that no row shows.
    void RemoveEntries(const std::set<int>& entries);
    void HighlightEntries(const std::set<int>& entries);

    // Takes the last change of the filters back, or makes it again. False, and nothing changes, when the
    // filters are no longer as it left them. There must be one.
    bool Undo();
    bool Redo();

    // All entries outside the selected ones go, by one filter at the end. There must be selected ones.
    void KeepBetween();

    // A hit is selected alone; false when there is none.
    bool Find(bool up);
    bool IsHit(int row) const;

    // Selects the next row of this kind; false when there is none.
    bool GoToNext(SessionMark mark, bool up);
    bool GoToNext(const std::function<bool(int row)>& isWanted, bool up) { return Step(up, isWanted); }

    // The comment as the entry dialog returns it, lines separated by line feeds.
    void Comment(int row, const QString& comment);

    void SelectAlone(int row);
    int SelectedRow() const;

    // The content pane takes the selected row, if there is one.
    void ShowContent();

    SessionFilters Filters() const { return FiltersOf(StoredFilters); }
    const SessionEntry& EntryOf(int row) const { return Entries[Rows[row].Entry]; }
    QString Cell(int row, int column) const;
    QString Tag(int row) const;
    int RowCount() const { return static_cast<int>(Rows.size()); }

    // The entries as they were read, without comments.
    SessionEntries BareEntries() const;

    // A logbook was opened, perhaps with filters of its own. Comes behind Read.
    void LogbookIsOpen(bool withFilters);

    // What was told of the logbook stands no longer.
    void ShowStatus() { OfOthers = 0; }

    // The filters were these until the person changed them.
    void NoteNumbers(const QStringList& before);

    // What the status and the tool tip of the counts say, and whether the filter button is filled.
    QString Status() const;
    QString WhyHidden() const;
    bool HasOtherFilters() const;

    // Another language; only English and German change the labels of the filter types.
    void SetLanguage(int language);

    // The program was ended and started again.
    void Restart();

    SessionEntries Entries;
    QStringList StoredFilters;                        // in their text form
    QList<std::pair<QStringList, QStringList>> Steps; // before and after the changes made in the list
    int Done = 0;                                     // so many of them are in force
    SessionEntries NumbersOf; // the logbook on which filters by number were changed last; empty = unknown
    // The stored filters before the first change on this logbook, and which one their numbers were for.
    std::optional<std::pair<QStringList, SessionEntries>> NumbersBefore;
    int OfOthers = 0;             // so many entries are told to be hidden by such filters of another logbook
    bool OfOthersForSure = false; // not only perhaps of another
    QStringList StoredStrings;
    QList<SessionRow> Rows;
    std::set<int> Selected;
    int Current = -1; // row
    int SortColumn = 0;
    bool Descending = false;
    bool Sorted = false;
    int TagColumn = -1; // -1 = the event type
    SessionSearch Search;
    bool CanFindAgain = false;
    int Language = 0;
    int LabelLanguage = 0;
    bool CommentsEdited = false;
    std::map<int, QString>
        Noted;             // the comments that were entered and are neither saved nor dropped, by entry
    std::set<int> Changed; // entries whose comments the person changed since they were read or saved
    bool ContentShown = false;
    QString Title;
    QString Content;

  private:
    void NoteStep(const QStringList& before);
    bool Step(bool up, const std::function<bool(int)>& isWanted);
    void Fill();
    void ShowContentOf(int row);
    void Add(int entry, char action);
    bool TakeOut(int entry, char action);
    void Store(const SessionFilters& filters);
};
