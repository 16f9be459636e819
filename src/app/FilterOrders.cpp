// SPDX-License-Identifier: MIT
#include "app/FilterOrders.h"

#include "app/MainMenus.h"
#include "app/WaitPointer.h"
#include "list/LogbookModel.h"
#include "list/LogbookView.h"
#include "rows/EntryActions.h"
#include "settings/Texts.h"
#include "settings/UserInterface.h"

#include <utility>

namespace {

std::optional<TextId> NameOf(std::optional<FilterHistory::Act> act) {
    if (!act)
        return std::nullopt;
    switch (*act) {
    case FilterHistory::Act::Remove:
        return TextId::mnuPopupRemove;
    case FilterHistory::Act::ToggleHighlighting:
        return TextId::mnuPopupToggle;
    case FilterHistory::Act::KeepBetween:
        return TextId::mnuAnalysisKeepBetween;
    }
    return std::nullopt;
}

RowRanges AllOf(const LogbookRows& rows) {
    return rows.empty() ? RowRanges() : RowRanges{{0, rows.size() - 1}};
}

} // namespace

FilterOrders::FilterOrders(LogbookView& list, Registry& registry, MainMenus& menus, UserInterface& user,
                           Events events)
    : list_(list),
      registry_(registry),
      menus_(menus),
      user_(user),
      events_(std::move(events)),
      history_(registry, events_.StoredFiltersChanged) {}

void FilterOrders::SetLanguage(Language language) {
    language_ = language;
    OfferUndo();
}

void FilterOrders::Clear() {
    history_.Clear();
    OfferUndo();
}

bool FilterOrders::Run(Command command) {
    switch (command) {
    case Command::RemoveFromList:
        Remove(list_.SelectedRanges());
        break;
    case Command::ToggleHighlighting:
        ToggleHighlighting(list_.SelectedRanges());
        break;
    case Command::KeepBetween:
        KeepBetween();
        break;
    case Command::Undo:
        TellOutcome(history_.Undo());
        break;
    case Command::Redo:
        TellOutcome(history_.Redo());
        break;
    default:
        return false;
    }
    OfferUndo();
    return true;
}

void FilterOrders::Remove(const RowRanges& rows) {
    const WaitPointer wait;
    RowRanges removed;
    history_.Record(FilterHistory::Act::Remove,
                    [&] { removed = ::RemoveFromList(registry_, list_.Logbook()->Rows(), rows); });
    list_.RemoveFromList(removed);
    events_.RowsRemoved();
    OfferUndo();
}

void FilterOrders::ToggleHighlighting(const RowRanges& rows) {
    const WaitPointer wait;
    RowRanges toggled;
    history_.Record(FilterHistory::Act::ToggleHighlighting,
                    [&] { toggled = ::ToggleHighlighting(registry_, list_.Logbook()->Rows(), rows); });
    list_.Logbook()->ToggleHighlighting(toggled);
    OfferUndo();
}

void FilterOrders::RemoveEntries(const LogbookRows& entries, const RowRanges& shown) {
    const WaitPointer wait;
    history_.Record(FilterHistory::Act::Remove,
                    [&] { ::RemoveFromList(registry_, entries, AllOf(entries)); });
    if (!shown.empty())
        list_.RemoveBeside(shown);
    events_.RowsRemoved();
    OfferUndo();
}

void FilterOrders::HighlightEntries(const LogbookRows& entries, const RowRanges& shown) {
    const WaitPointer wait;
    history_.Record(FilterHistory::Act::ToggleHighlighting,
                    [&] { ::ToggleHighlighting(registry_, entries, AllOf(entries)); });
    list_.Logbook()->ToggleHighlighting(shown);
    OfferUndo();
}

void FilterOrders::KeepBetween() {
    bool isKept = false;
    history_.Record(FilterHistory::Act::KeepBetween, [&] {
        isKept = ::KeepBetween(registry_, list_.Logbook()->Rows(), list_.SelectedRanges());
    });
    if (isKept)
        events_.FiltersChanged();
}

void FilterOrders::TellOutcome(FilterHistory::Outcome outcome) {
    if (outcome == FilterHistory::Outcome::Done)
        events_.FiltersChanged();
    if (outcome == FilterHistory::Outcome::ChangedElsewhere)
        user_.ShowMessage(Text(TextId::FiltersChangedElsewhere, language_),
                          UserInterface::MessageIcon::Exclamation);
}

void FilterOrders::OfferUndo() {
    menus_.Offer(Command::Undo, NameOf(history_.ToUndo()), language_);
    menus_.Offer(Command::Redo, NameOf(history_.ToRedo()), language_);
}
