// SPDX-License-Identifier: MIT
// The filter list dialog.
#include "app/session/RandomSession.h"
#include "app/session/SessionDialogs.h"

#include <numeric>
#include <utility>

namespace {

constexpr int MostFilters = 9;
constexpr int LongestList = 500; // characters

constexpr const char* TypeLabels[][2] = {
    {"All entries", "Alle Einträge"},
    {"Info", "Information"},
    {"Warning", "Warnung"},
    {"Error", "Fehler"},
    {"System error", "Systemfehler"},
    {"Program status change", "Programmstatus Änderung (STIB)"},
    {"Key", "Tastenbetätigung"},
    {"Restart", "Restart"},
    {"Entry number(s)", "Nur bestimmte Nummern"},
    {"Keystr", "Zeichenfolgen"},
};

} // namespace

void RandomSession::EditFilters() {
    PlanFilterDialog();
    if (Chance(2))
        Item("mnuExtrasFilters")->trigger();
    else
        Window->ToolBarButtonClick("Filter");
}

void RandomSession::EditFiltersByPopup() {
    if (Model.RowCount() == 0)
        return EditFilters();
    OpenPopup(AnyRow());
    ChooseInPopup("mnuPopupEditFilter");
    PlanFilterDialog();
}

void RandomSession::PlanFilterDialog() {
    Say("edits the filters");
    SessionFilters rows = Model.Filters();
    SessionStrings strings = StringsOf(Model.StoredStrings, Model.Language);
    const bool isFull =
        rows.size() > MostFilters || std::any_of(rows.begin(), rows.end(), [](const SessionFilter& filter) {
            return filter.Text.size() > LongestList;
        });
    if (isFull || (Model.RowCount() < Model.Entries.size() / 4 && Chance(2))) {
        QList<int> all(rows.size());
        std::iota(all.begin(), all.end(), 0);
        PlanRemoving(rows, all);
    }
    for (int changes = Below(3); changes > 0; --changes) {
        const int what = Below(4);
        const int row = rows.empty() ? -1 : Below(static_cast<int>(rows.size()));
        if (what == 0 || row < 0) {
            PlanAdding(rows, strings);
        } else if (what == 1) {
            PlanEditing(rows, strings);
        } else if (what == 2) {
            PlanRemoving(rows, {row});
        } else {
            Say(QString("switches filter %1").arg(row));
            Answers.Expect("frmLogbookSettings", [row](QWidget& dialog) {
                auto* const list = dialog.findChild<QTreeWidget*>("lvFilter");
                QTreeWidgetItem* const item = list->topLevelItem(row);
                item->setCheckState(0, item->checkState(0) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
            });
            bool& active = rows[row].Active;
            active = !active;
        }
    }
    PlanClosing(rows, strings);
}

// A new filter that is like one in the list, but for being active, is not added.
void RandomSession::PlanAdding(SessionFilters& rows, SessionStrings& strings) {
    Answers.Expect("frmLogbookSettings",
                   [](QWidget& dialog) { dialog.findChild<QAction*>("mnuFilterAdd")->trigger(); });
    Say("adds");
    SessionFilter filter;
    if (!PlanDefinition(filter, strings))
        return;
    const bool isThere = std::any_of(rows.begin(), rows.end(), [&](SessionFilter row) {
        row.Active = true;
        return row == filter;
    });
    if (!isThere)
        rows.push_back(filter);
}

void RandomSession::PlanEditing(SessionFilters& rows, SessionStrings& strings) {
    const int row = Below(static_cast<int>(rows.size()));
    Say(QString("edits filter %1").arg(row));
    Answers.Expect("frmLogbookSettings", [row](QWidget& dialog) {
        auto* const list = dialog.findChild<QTreeWidget*>("lvFilter");
        SelectAlone(*list, row);
        dialog.findChild<QAction*>("mnuFilterEdit")->trigger();
    });
    SessionFilter& edited = rows[row];
    const bool active = edited.Active;
    PlanDefinition(edited, strings);
    edited.Active = active;
}

void RandomSession::PlanRemoving(SessionFilters& rows, const QList<int>& removed) {
    Say(removed.size() == 1 ? QString("removes filter %1").arg(removed.front())
                            : QString("removes all filters"));
    Answers.Expect("frmLogbookSettings", [removed](QWidget& dialog) {
        auto* const list = dialog.findChild<QTreeWidget*>("lvFilter");
        list->clearSelection();
        for (const int row : removed)
            list->topLevelItem(row)->setSelected(true);
        QTest::keyClick(list, Qt::Key_Delete);
    });
    for (auto row = removed.rbegin(); row != removed.rend(); ++row)
        rows.erase(rows.begin() + *row);
}

// The dialog shows these filters.
void RandomSession::PlanLook(const SessionFilters& rows) {
    const int language = Model.LabelLanguage;
    Answers.Expect("frmLogbookSettings", [=, this](QWidget& dialog) {
        const auto* const list = dialog.findChild<QTreeWidget*>("lvFilter");
        QStringList shown;
        for (int row = 0; row < list->topLevelItemCount(); ++row) {
            const QTreeWidgetItem* const item = list->topLevelItem(row);
            shown << QStringList({item->text(0), item->text(1), item->text(2), item->text(3),
                                  item->checkState(0) == Qt::Checked ? "on" : "off"})
                         .join('/');
        }
        QStringList expected;
        for (const SessionFilter& filter : rows)
            expected << QStringList({TypeLabels[filter.Type][language], filter.Text, filter.Name,
                                     filter.Sender, filter.Active ? "on" : "off"})
                            .join('/');
        if (shown != expected)
            Answers.Blame("the dialog shows " + shown.join("; ") + " instead of " + expected.join("; "));
    });
}

void RandomSession::PlanClosing(SessionFilters& rows, const SessionStrings& strings) {
    PlanLook(rows);
    const bool applies = Chance(4);
    const bool confirmed = !Chance(5);
    const bool asks = rows.empty() && (applies || confirmed);
    const bool showsAll = !Chance(4);
    const auto press = [&](const char* button) {
        Answers.Expect("frmLogbookSettings", [button](QWidget& dialog) { Click(dialog, button); });
    };
    const char* const first = applies ? "cmdApply" : confirmed ? "cmdOK" : "cmdCancel";
    Say(QString("and presses ") + first);
    press(first);
    if (asks) {
        Say(showsAll ? "shows all entries" : "does not want an empty list");
        Answers.ExpectMessage(Localised("You have no filter in the list\nShow all items?",
                                        "Sie haben keinen Filter in der Liste eingetragen.\n"
                                        "Möchten Sie alle Einträge anzeigen?"),
                              showsAll ? QMessageBox::Yes : QMessageBox::No);
        if (!showsAll)
            return press("cmdCancel");
        rows = SessionFilters(1);
    }
    if (applies || confirmed)
        Save(rows, strings);
    if (!applies)
        return;
    Say(confirmed ? "then OK" : "then Cancel");
    press(confirmed ? "cmdOK" : "cmdCancel");
    if (confirmed)
        Save(rows, strings);
}

// The filters are stored and the list is filtered anew.
void RandomSession::Save(const SessionFilters& rows, const SessionStrings& strings) {
    const QStringList before = std::exchange(Model.StoredFilters, {});
    for (const SessionFilter& filter : rows)
        Model.StoredFilters << TextForm(filter);
    Model.NoteNumbers(before);
    Model.StoredStrings.clear();
    for (const SessionString& string : strings)
        Model.StoredStrings << TextForm(string);
    Model.Filter();
}
