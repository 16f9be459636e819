// SPDX-License-Identifier: MIT
#include "app/WindowOverview.h"

#include "app/FilterOrders.h"
#include "app/WaitPointer.h"
#include "app/WindowSearch.h"
#include "eventinfo/iZEKEventInfo.h"
#include "filter/Filter.h"
#include "list/LogbookModel.h"
#include "list/LogbookView.h"
#include "overview/Occurrences.h"
#include "overview/SelectionText.h"
#include "overview/frmOverview.h"
#include "settings/Registry.h"

#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace {

// Left, top, width and height at first, in twips.
constexpr std::array<int, 4> DefaultPlace{3000, 1200, 15000, 8800};
constexpr int WhileReading = 50; // milliseconds until the next look whether a read has ended

EntrySet CommentedEntriesOf(const EntryTable& entries) {
    EntrySet commented(entries.Count());
    for (const auto& [entry, comment] : entries.Comments())
        commented.Add(entry);
    return commented;
}

} // namespace

WindowOverview::WindowOverview(const Parts& parts, RunOrder run, QWidget& window)
    : QObject(&window),
      parts_(parts),
      run_(std::move(run)),
      window_(window),
      placement_("Overview", DefaultPlace) {
    follow_.setSingleShot(true);
    connect(&follow_, &QTimer::timeout, this, &WindowOverview::Follow);
}

void WindowOverview::ConnectList() {
    const auto note = [this](bool Changes::*what) {
        return [this, what] {
            changes_.*what = true;
            FollowSoon();
        };
    };
    const auto noteRows = note(&Changes::Rows);
    const LogbookModel* const model = parts_.List.Logbook();
    connect(model, &LogbookModel::modelReset, this, noteRows);
    connect(model, &LogbookModel::layoutChanged, this, noteRows);
    connect(model, &LogbookModel::dataChanged, this, noteRows);
    connect(model, &LogbookModel::CommentsChanged, this, noteRows);
    connect(parts_.List.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            note(&Changes::Selection));
    connect(parts_.List.verticalScrollBar(), &QScrollBar::valueChanged, this, note(&Changes::View));
    connect(parts_.List.verticalScrollBar(), &QScrollBar::rangeChanged, this, note(&Changes::View));
}

void WindowOverview::ConnectOverview() {
    connect(overview_, &frmOverview::EntryWanted, this, [this](EntryNumber entry) {
        run_(Command::GoToEntry, EntrySpan{entry, entry + 1});
    });
    connect(overview_, &frmOverview::SpanSelected, this, [this](EntryNumber first, EntryNumber end) {
        run_(Command::SelectSpan, EntrySpan{first, end});
    });
    connect(overview_, &frmOverview::OccurrenceWanted, this,
            [this](const std::string& key, SearchDirection direction) {
                run_(direction == SearchDirection::Down ? Command::NextOccurrence
                                                        : Command::PreviousOccurrence,
                     key);
            });
    connect(overview_, &frmOverview::HighlightAllWanted, this,
            [this](const std::string& key) { run_(Command::HighlightAll, key); });
    connect(overview_, &frmOverview::RemoveAllWanted, this,
            [this](const std::string& key) { run_(Command::RemoveAll, key); });
    connect(overview_, &frmOverview::UndoWanted, this, [this] { run_(Command::Undo, {}); });
    connect(overview_, &frmOverview::RedoWanted, this, [this] { run_(Command::Redo, {}); });
    connect(overview_, &frmOverview::HelpWanted, this, [this] { run_(Command::HelpContents, {}); });
    connect(overview_, &frmOverview::Shown, this, &WindowOverview::FollowSoon);
    connect(overview_, &frmOverview::Hidden, this, &WindowOverview::StorePlace);
}

void WindowOverview::SetLanguage(Language language) {
    language_ = language;
    if (overview_ == nullptr)
        return;
    overview_->SetLanguage(language);
    changes_.Selection = true;
    FollowSoon();
}

void WindowOverview::Forget() {
    if (overview_ == nullptr)
        return;
    overview_->ShowNothing();
    counter_.reset();
    history_.reset();
    changes_ = {};
    FollowSoon();
}

bool WindowOverview::Run(Command command, const OrderSubject& subject) {
    switch (command) {
    case Command::Overview:
        Show();
        return true;
    case Command::GoToEntry:
        GoToEntry(std::get<EntrySpan>(subject).First);
        return true;
    case Command::SelectSpan:
        SelectSpan(std::get<EntrySpan>(subject));
        return true;
    case Command::NextOccurrence:
        GoToOccurrence(std::get<std::string>(subject), SearchDirection::Down);
        return true;
    case Command::PreviousOccurrence:
        GoToOccurrence(std::get<std::string>(subject), SearchDirection::Up);
        return true;
    case Command::HighlightAll:
        HighlightAll(std::get<std::string>(subject));
        return true;
    case Command::RemoveAll:
        RemoveAll(std::get<std::string>(subject));
        return true;
    default:
        return false;
    }
}

void WindowOverview::Show() {
    if (overview_ == nullptr) {
        overview_ = new frmOverview(&window_);
        ConnectList();
        ConnectOverview();
        overview_->SetLanguage(language_);
        placement_.Load(parts_.Settings, *overview_);
    }
    overview_->setWindowState(overview_->windowState() & ~Qt::WindowMinimized);
    overview_->show();
    overview_->raise();
    overview_->activateWindow();
}

void WindowOverview::StorePlace() {
    const Registry::Transaction transaction(parts_.Settings);
    parts_.Settings.WriteLogbookSetting("OverviewIsMaximized", overview_->isMaximized() ? 1 : 0,
                                        SettingType::Integer);
    placement_.Save(parts_.Settings, *overview_);
}

void WindowOverview::FollowSoon() {
    if (overview_ != nullptr && overview_->isVisible() && !follow_.isActive())
        follow_.start(0);
}

void WindowOverview::Follow() {
    if (!overview_->isVisible())
        return;
    if (parts_.Document.Book().Busy)
        return follow_.start(WhileReading);
    if (!DetermineHistory())
        return;
    if (std::exchange(changes_.Rows, false))
        FollowRows();
    if (std::exchange(changes_.Selection, false))
        FollowSelection();
    if (std::exchange(changes_.View, false))
        FollowView();
}

// Some milliseconds of work at a time, between which the windows stay alive. True when the history is
// complete and shown.
bool WindowOverview::DetermineHistory() {
    const Logbook& book = parts_.Document.Book();
    if (!book.Entries.HasEvents())
        return false;
    if (!history_)
        history_ = std::make_unique<LogbookHistory>(book, LanguageFolders());
    if (overview_->HasHistory())
        return true;
    if (history_->Go()) {
        overview_->ShowProgress(history_->Percent());
        follow_.start(0);
        return false;
    }
    changes_ = {};
    FollowRows();
    return true;
}

void WindowOverview::FollowRows() {
    const EntryTable& entries = parts_.Document.Entries();
    const LogbookRows& rows = parts_.List.Logbook()->Rows();
    highlighted_ = EntrySet(entries.Count());
    for (const LogbookRow& row : rows)
        if (row.Highlighted != 0)
            highlighted_.Add(row.Entry);
    counter_.emplace(entries, rows, history_->Strip().Errors());
    const EntrySet commented = CommentedEntriesOf(entries);
    if (overview_->HasHistory())
        overview_->ShowMarks(commented, highlighted_);
    else
        overview_->ShowHistory(*history_, entries, commented, highlighted_);
    changes_ = {.Rows = false, .Selection = true, .View = true};
}

void WindowOverview::FollowSelection() {
    const RowRanges selected = parts_.List.SelectedRanges();
    std::optional<std::size_t> error;
    const SelectionFacts facts = counter_->FactsOf(selected);
    if (facts.Rows == 1)
        error = history_->ErrorOf(parts_.List.Logbook()->Rows()[selected.front().First].Entry);
    overview_->ShowSelection(SelectionText(facts, language_), error);
    changes_.View = true;
}

void WindowOverview::FollowView() {
    std::optional<Timeline::Place> selected;
    if (const std::optional<int> row = parts_.List.SelectedRow())
        selected =
            history_->Strip().PlaceOf(parts_.List.Logbook()->Rows()[static_cast<std::size_t>(*row)].Entry);
    overview_->ShowList(ShownSpan(), selected);
}

// From the earliest to the latest place of a row on the screen.
std::optional<TimelineSpan> WindowOverview::ShownSpan() const {
    const LogbookRows& rows = parts_.List.Logbook()->Rows();
    const int top = parts_.List.rowAt(0);
    if (top < 0)
        return std::nullopt;
    const int bottom = parts_.List.rowAt(parts_.List.viewport()->height() - 1);
    const std::size_t end = bottom < 0 ? rows.size() : static_cast<std::size_t>(bottom) + 1;
    std::optional<TimelineSpan> span;
    for (auto row = static_cast<std::size_t>(top); row < end; ++row) {
        const Timeline::Place place = history_->Strip().PlaceOf(rows[row].Entry);
        span = span ? TimelineSpan{std::min(span->From, place), std::max(span->To, place)}
                    : TimelineSpan{place, place};
    }
    return span;
}

// An entry that has no row: the next row, with a word that filters hide a nearer one.
void WindowOverview::GoToEntry(EntryNumber entry) {
    const LogbookRows& rows = parts_.List.Logbook()->Rows();
    const auto shown =
        std::find_if(rows.begin(), rows.end(), [&](const LogbookRow& row) { return row.Entry == entry; });
    if (shown != rows.end())
        return parts_.Search.ShowRow(static_cast<std::size_t>(shown - rows.begin()));
    std::optional<std::size_t> next;
    for (std::size_t row = 0; row < rows.size(); ++row)
        if (rows[row].Entry > entry && (!next || rows[row].Entry < rows[*next].Entry))
            next = row;
    if (next)
        parts_.Search.ShowRow(*next);
    if (entry < parts_.Document.Entries().Count())
        parts_.Search.TellHidden(entry);
}

void WindowOverview::SelectSpan(EntrySpan span) {
    const RowRanges ranges = RangesThat(parts_.List.Logbook()->Rows(), [&](const LogbookRow& row) {
        return row.Entry >= span.First && row.Entry < span.End;
    });
    // What was selected before does not lie in the span.
    if (ranges.empty())
        return parts_.List.clearSelection();
    if (ranges.size() > LogbookView::MostSelectedRanges)
        return;
    const int first = static_cast<int>(ranges.front().First);
    parts_.List.SelectRanges(ranges, first);
    parts_.List.scrollTo(parts_.List.model()->index(first, 0));
}

void WindowOverview::GoToOccurrence(const std::string& key, SearchDirection direction) {
    if (!history_)
        return;
    std::optional<std::size_t> start;
    if (const std::optional<int> selected = parts_.List.SelectedRow())
        start = static_cast<std::size_t>(*selected);
    std::optional<std::size_t> found;
    {
        const WaitPointer wait;
        found = Occurrences(parts_.Document.Entries(), history_->Keys(), key)
                    .Next(parts_.List.Logbook()->Rows(), start, direction);
    }
    parts_.Search.ShowFound(found, direction);
}

// Also those that filters hide, whose highlight is not known.
WindowOverview::AllOccurrences WindowOverview::OccurrencesOf(const std::string& key) const {
    if (!history_)
        return {};
    const WaitPointer wait;
    const EntrySet found = Occurrences(parts_.Document.Entries(), history_->Keys(), key).All();
    AllOccurrences all{.Entries = {},
                       .Shown = RangesThat(parts_.List.Logbook()->Rows(),
                                           [&](const LogbookRow& row) { return found.Contains(row.Entry); })};
    for (const EntryNumber entry : found.Numbers())
        all.Entries.push_back({.Entry = entry & MostEntries, .Highlighted = 0});
    return all;
}

void WindowOverview::RemoveAll(const std::string& key) {
    const AllOccurrences all = OccurrencesOf(key);
    parts_.Filters.RemoveEntries(all.Entries, all.Shown);
}

// Those that are highlighted stay so.
void WindowOverview::HighlightAll(const std::string& key) {
    const LogbookRows& rows = parts_.List.Logbook()->Rows();
    AllOccurrences all = OccurrencesOf(key);
    EntrySet highlighted(parts_.Document.Entries().Count());
    RowRanges plain;
    for (const RowRange& range : all.Shown)
        for (std::size_t row = range.First; row <= range.Last; ++row)
            if (rows[row].Highlighted == 0)
                plain.push_back({row, row});
            else
                highlighted.Add(rows[row].Entry);
    std::erase_if(all.Entries, [&](const LogbookRow& row) { return highlighted.Contains(row.Entry); });
    parts_.Filters.HighlightEntries(all.Entries, Joined(std::move(plain)));
}
