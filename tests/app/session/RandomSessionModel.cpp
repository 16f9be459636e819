// SPDX-License-Identifier: MIT
#include "app/session/RandomSessionModel.h"

#include <QDateTime>

#include <algorithm>

namespace {

// What a cell is compared by. Texts without regard to case, in which "ß" is "ss".
QString SortKey(const QString& cell, int column) {
    if (column == 5)
        return cell.rightJustified(10, '0');
    if (column != 4)
        return cell.toLower().replace("ß", "ss");
    const QDateTime time = QDateTime::fromString(cell.left(19), "dd.MM.yyyy hh:mm:ss");
    return time.isValid() ? time.toString("yyyyMMddhhmmss") : QString();
}

bool CellMatches(QString cell, const SessionSearch& search) {
    QString text = search.Text;
    if (!search.CaseSensitive) {
        cell = cell.toLower();
        text = text.toLower();
    }
    if (!search.WholeWord)
        return cell.contains(text);
    return cell.startsWith(text + ' ') || cell.contains(' ' + text + ' ') ||
           cell.indexOf(' ' + text) + 1 == cell.size() - text.size();
}

// The filters that numbers are collected in.
auto IsCollecting(char action) {
    return [action](const SessionFilter& filter) {
        return filter.Action == action && filter.Type == 8 && filter.Active;
    };
}

} // namespace

void RandomSessionModel::Read(const SessionEntries& entries, const QString& name) {
    Entries = entries;
    Title = name + " - Qorvix";
    CommentsEdited = false;
    Noted.clear();
    Changed.clear();
    Content.clear();
    if (!name.isEmpty()) {
        Steps.clear();
        Done = 0;
    }
    Fill();
}

void RandomSessionModel::Fill() {
    ShowStatus();
    const SessionFilters filters = Filters();
    const auto anyMatches = [&](char action, int number) {
        return std::any_of(filters.begin(), filters.end(), [&](const SessionFilter& filter) {
            return filter.Active && filter.Action == action && Matches(filter, Entries[number], number);
        });
    };
    Rows.clear();
    for (int number = 0; number < static_cast<int>(Entries.size()); ++number)
        if (anyMatches('I', number) && !anyMatches('X', number))
            Rows.push_back({number, anyMatches('H', number)});
    Selected.clear();
    Current = -1;
    Sorted = false;
    TagColumn = -1;
}

void RandomSessionModel::Filter() {
    const int before = SelectedRow() < 0 ? -1 : Rows[SelectedRow()].Entry;
    Fill();
    for (int row = 0; before >= 0 && row < RowCount(); ++row)
        if (Rows[row].Entry >= before)
            return SelectAlone(row);
}

void RandomSessionModel::Sort(int column) { Sort(column, Descending != (column == SortColumn)); }

void RandomSessionModel::Sort(int column, bool descending) {
    Descending = descending;
    SortColumn = column;
    Sorted = true;
    if (column == 4 || column == 5)
        TagColumn = column;

    struct Item {
        QString Key;
        SessionRow Row;
        bool IsSelected;
        bool IsCurrent;
    };
    std::vector<Item> items;
    for (int row = 0; row < RowCount(); ++row)
        items.push_back(
            {SortKey(Cell(row, column), column), Rows[row], Selected.contains(row), Current == row});
    std::stable_sort(items.begin(), items.end(), [&](const Item& a, const Item& b) {
        return Descending ? b.Key < a.Key : a.Key < b.Key;
    });
    Rows.clear();
    Selected.clear();
    for (const Item& item : items) {
        if (item.IsSelected)
            Selected.insert(RowCount());
        if (item.IsCurrent)
            Current = RowCount();
        Rows.push_back(item.Row);
    }
}

bool RandomSessionModel::Undo() {
    if (Steps[Done - 1].second != StoredFilters)
        return false;
    StoredFilters = Steps[--Done].first;
    NoteNumbers(Steps[Done].second);
    Filter();
    return true;
}

bool RandomSessionModel::Redo() {
    if (Steps[Done].first != StoredFilters)
        return false;
    StoredFilters = Steps[Done++].second;
    NoteNumbers(Steps[Done - 1].first);
    Filter();
    return true;
}

void RandomSessionModel::NoteStep(const QStringList& before) {
    if (before == StoredFilters)
        return;
    NoteNumbers(before);
    Steps.resize(Done++);
    Steps << std::pair(before, StoredFilters);
}

void RandomSessionModel::KeepBetween() {
    const QStringList before = StoredFilters;
    int first = Rows[*Selected.begin()].Entry;
    int last = first;
    for (const int row : Selected) {
        first = std::min(first, Rows[row].Entry);
        last = std::max(last, Rows[row].Entry);
    }
    QString numbers = first == 0 ? "" : first == 1 ? "0," : QString("0-%1,").arg(first - 1);
    numbers += QString("%1-2147483647").arg(last + 1);
    SessionFilters filters = Filters();
    filters << SessionFilter{'X', 8, numbers, "", "", true};
    Store(filters);
    NoteStep(before);
    Filter();
}

void RandomSessionModel::RemoveSelected() {
    if (Selected.empty())
        return;
    const QStringList before = StoredFilters;
    for (const int row : Selected)
        Add(Rows[row].Entry, 'X');
    NoteStep(before);
    const int next = *Selected.rbegin() + 1 - static_cast<int>(Selected.size());
    for (auto row = Selected.rbegin(); row != Selected.rend(); ++row)
        Rows.erase(Rows.begin() + *row);
    Selected.clear();
    Current = -1;
    if (RowCount() == 0)
        return;
    SelectAlone(std::min(next, RowCount() - 1));
    ShowContent();
}

void RandomSessionModel::ToggleSelected() {
    const QStringList before = StoredFilters;
    for (const int row : Selected) {
        SessionRow& toggled = Rows[row];
        if (!toggled.Highlighted)
            Add(toggled.Entry, 'H');
        else if (!TakeOut(toggled.Entry, 'H'))
            continue;
        toggled.Highlighted = !toggled.Highlighted;
    }
    NoteStep(before);
}

void RandomSessionModel::RemoveEntries(const std::set<int>& entries) {
    const QStringList before = StoredFilters;
    for (const int entry : entries)
        Add(entry, 'X');
    NoteStep(before);
    const bool hadSelection = !Selected.empty();
    std::set<int> kept;
    int removed = 0;
    int next = 0;
    QList<SessionRow> rows;
    for (int row = 0; row < RowCount(); ++row) {
        if (entries.count(Rows[row].Entry) != 0) {
            ++removed;
            next = row + 1 - removed;
            continue;
        }
        if (Selected.count(row) != 0)
            kept.insert(row - removed);
        rows.append(Rows[row]);
    }
    if (removed == 0)
        return ShowContent();
    Rows = rows;
    Selected = kept;
    Current = kept.empty() ? -1 : *kept.begin();
    if (hadSelection && kept.empty() && RowCount() > 0)
        SelectAlone(std::min(next, RowCount() - 1));
    ShowContent();
}

void RandomSessionModel::HighlightEntries(const std::set<int>& entries) {
    const QStringList before = StoredFilters;
    std::set<int> plain = entries;
    for (SessionRow& row : Rows)
        if (entries.count(row.Entry) != 0 && std::exchange(row.Highlighted, true))
            plain.erase(row.Entry);
    for (const int entry : plain)
        Add(entry, 'H');
    NoteStep(before);
}

void RandomSessionModel::Add(int entry, char action) {
    SessionFilters filters = Filters();
    auto filter = std::find_if(filters.begin(), filters.end(), IsCollecting(action));
    if (filter == filters.end())
        filter = filters.insert(filters.end(), SessionFilter{action, 8, "", "", "", true});
    filter->Text = WithNumber(filter->Text, entry);
    Store(filters);
}

// Of the first one only: any other is a list of its own, unless the first is longer than lists get here.
bool RandomSessionModel::TakeOut(int entry, char action) {
    SessionFilters filters = Filters();
    const auto filter = std::find_if(filters.begin(), filters.end(), IsCollecting(action));
    if (filter == filters.end())
        return false;
    if (NamesNumber(filter->Text, entry))
        filter->Text = WithoutNumber(filter->Text, entry);
    Store(filters);
    return true;
}

void RandomSessionModel::Store(const SessionFilters& filters) {
    StoredFilters.clear();
    for (const SessionFilter& filter : filters)
        StoredFilters << TextForm(filter);
}

bool RandomSessionModel::Find(bool up) {
    return Step(up, [this](int row) { return IsHit(row); });
}

bool RandomSessionModel::GoToNext(SessionMark mark, bool up) {
    return Step(up, [this, mark](int row) {
        switch (mark) {
        case SessionMark::Error:
            return EntryOf(row).Type == 3 || EntryOf(row).Type == 4;
        case SessionMark::Highlighted:
            return Rows[row].Highlighted;
        case SessionMark::Commented:
            return !EntryOf(row).Comment.isEmpty();
        }
        return false;
    });
}

bool RandomSessionModel::Step(bool up, const std::function<bool(int)>& isWanted) {
    const int step = up ? -1 : 1;
    const int start = SelectedRow() < 0 ? (up ? RowCount() - 1 : 0) : SelectedRow() + step;
    for (int row = start; row >= 0 && row < RowCount(); row += step)
        if (isWanted(row)) {
            SelectAlone(row);
            ShowContent();
            return true;
        }
    return false;
}

bool RandomSessionModel::IsHit(int row) const {
    return CellMatches(Cell(row, 0), Search) || CellMatches(Cell(row, 1), Search) ||
           CellMatches(Cell(row, 6), Search);
}

void RandomSessionModel::Comment(int row, const QString& comment) {
    const QString text = comment == "!!Clear!!" ? QString() : QString(comment).replace("\n", " | ");
    if (Entries[Rows[row].Entry].Comment != text)
        Changed.insert(Rows[row].Entry);
    Entries[Rows[row].Entry].Comment = text;
    CommentsEdited = true;
    Noted[Rows[row].Entry] = Entries[Rows[row].Entry].Comment;
    ShowContentOf(row);
}

SessionEntries RandomSessionModel::BareEntries() const {
    SessionEntries bare = Entries;
    for (SessionEntry& entry : bare)
        entry.Comment.clear();
    return bare;
}

void RandomSessionModel::SelectAlone(int row) {
    Selected = {row};
    Current = row;
}

int RandomSessionModel::SelectedRow() const {
    return Selected.empty() ? -1 : Selected.contains(Current) ? Current : *Selected.begin();
}

void RandomSessionModel::ShowContent() {
    if (SelectedRow() >= 0)
        ShowContentOf(SelectedRow());
}

void RandomSessionModel::ShowContentOf(int row) {
    const SessionEntry& entry = EntryOf(row);
    Content = QString(entry.Data).replace(" | ", "\n") + '\n' + QString(entry.Comment).replace(" | ", "\n");
}

QString RandomSessionModel::Cell(int row, int column) const {
    const SessionEntry& entry = EntryOf(row);
    const QString cells[] = {
        SessionTypeName(entry.Type),      entry.Data,   entry.Sender, entry.Name, entry.Time,
        QString::number(Rows[row].Entry), entry.Comment};
    return cells[column];
}

QString RandomSessionModel::Tag(int row) const {
    return TagColumn < 0 ? QString::number(EntryOf(row).Type) : Cell(row, TagColumn);
}

void RandomSessionModel::SetLanguage(int language) {
    Language = language;
    if (language == 0 || language == 1)
        LabelLanguage = language;
}

void RandomSessionModel::Restart() {
    Steps.clear();
    Done = 0;
    SortColumn = 0;
    Descending = false;
    Search = {};
    CanFindAgain = false;
    LabelLanguage = 0;
    SetLanguage(Language);
}
