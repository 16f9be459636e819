// SPDX-License-Identifier: MIT
// The filter definition dialog and the predefined strings behind it.
#include "app/session/RandomSession.h"
#include "app/session/SessionDialogs.h"
#include "app/session/SessionWords.h"

#include <QComboBox>
#include <QLineEdit>

namespace {

constexpr const char* FilterTexts[] = {"", "N938", "n938", "X", "läuft", "Straße", "->", "12", "START"};
constexpr const char* NumberTexts[] = {"",    "5",    "3-40",  "1,4,9-20", " 7 - 30 ",
                                       "9-2", "x,10", "0-199", "1-2-3"};

} // namespace

SessionFilter RandomSession::AnyFilter() {
    static constexpr char Actions[] = {'I', 'I', 'I', 'X', 'H', 'H'};
    SessionFilter filter;
    filter.Action = dice_.Pick(Actions);
    filter.Type = Chance(3) ? 0 : Below(10);
    // Rarely a text with the sign that separates the fields: it costs the whole list when that is stored.
    filter.Text = filter.Type == 8 ? AnyOf(dice_, NumberTexts)
                  : Chance(60)     ? "a | b"
                  : Chance(3)      ? QString()
                                   : AnyOf(dice_, FilterTexts);
    filter.Name = Chance(3) ? AnyOf(dice_, SessionWords::Names) : QString();
    filter.Sender = Chance(3) ? AnyOf(dice_, SessionWords::Senders) : QString();
    return filter;
}

// The definition dialog gives a filter; false when it is cancelled. Only the types 1 to 3 have a name and a
// sender there.
bool RandomSession::PlanDefinition(SessionFilter& filter, SessionStrings& strings) {
    SessionFilter typed = AnyFilter();
    const int way = typed.Type == 8 ? 0 : Below(4);
    Answers.Expect("frmFilterSettings", [typed, way](QWidget& dialog) {
        const auto box = [&](const char* name) { return dialog.findChild<QComboBox*>(name); };
        box("cbEmitter")->setEditText(typed.Sender);
        box("cbName")->setEditText(typed.Name);
        box("cbFilterType")->setCurrentIndex(typed.Type);
        box("cbStringFilter")->setEditText(typed.Text);
        Click(dialog, typed.Action == 'I'   ? "obIncludeFilter"
                      : typed.Action == 'X' ? "obExcludeFilter"
                                            : "obHighlightFilter");
        if (way == 1)
            QTest::keyClick(box("cbStringFilter"), Qt::Key_Down);
        if (way == 2)
            Click(dialog, "cmdPredefinedStrings");
    });
    if (way == 1 && !strings.empty())
        typed.Text = std::find_if(strings.begin(), strings.end(), [&](const SessionString& string) {
                         return string.Comment == strings.front().Comment;
                     })->Text;
    if (way == 2)
        PlanStrings(strings, typed.Text);
    if (typed.Type < 1 || typed.Type > 3) {
        typed.Name.clear();
        typed.Sender.clear();
    }
    const bool confirmed = !Chance(5);
    Say(TextForm(typed) + (confirmed ? "" : " but cancels"));
    Answers.Expect("frmFilterSettings",
                   [confirmed](QWidget& dialog) { Click(dialog, confirmed ? "cmdOK" : "cmdCancel"); });
    if (confirmed)
        filter = typed;
    return confirmed;
}

// The list of predefined strings; a row that is selected at OK gives the text.
void RandomSession::PlanStrings(SessionStrings& strings, QString& text) {
    SessionStrings rows;
    for (const SessionString& string : strings)
        if (!string.Text.isEmpty())
            rows.push_back(string);
    if (Chance(2)) {
        const SessionString added{AnyOf(dice_, FilterTexts).trimmed(),
                                  Chance(4) ? QString() : AnyText(dice_)};
        Say("adds string " + TextForm(added));
        Answers.Expect("frmStringSettings",
                       [](QWidget& dialog) { dialog.findChild<QAction*>("mnuFilterAdd")->trigger(); });
        Answers.Expect("frmFilterString", [added](QWidget& dialog) {
            dialog.findChild<QLineEdit*>("tbString")->setText(added.Text);
            dialog.findChild<QLineEdit*>("tbComment")->setText(added.Comment);
            Click(dialog, "cmdOK");
        });
        if (!added.Text.isEmpty() && !added.Comment.isEmpty() &&
            std::find(rows.begin(), rows.end(), added) == rows.end()) {
            rows.push_back(added);
            strings = rows;
        }
    }
    const int removed = rows.size() > 3 ? Below(static_cast<int>(rows.size())) : -1;
    if (removed >= 0) {
        Say(QString("removes string %1").arg(removed));
        Answers.Expect("frmStringSettings", [removed](QWidget& dialog) {
            auto* const list = dialog.findChild<QTreeWidget*>("lvFilterStrings");
            SelectAlone(*list, removed);
            dialog.findChild<QAction*>("mnuFilterRemove")->trigger();
        });
        rows.erase(rows.begin() + removed);
        strings = rows;
    }
    const int picked = rows.empty() ? -1 : Below(static_cast<int>(rows.size()) + 1) - 1;
    Say(QString("picks string %1").arg(picked));
    Answers.Expect("frmStringSettings", [this, picked, rows](QWidget& dialog) {
        auto* const list = dialog.findChild<QTreeWidget*>("lvFilterStrings");
        if (list->topLevelItemCount() != static_cast<int>(rows.size()))
            Answers.Blame(QString("%1 predefined strings instead of %2")
                              .arg(list->topLevelItemCount())
                              .arg(rows.size()));
        list->clearSelection();
        if (picked >= 0)
            SelectAlone(*list, picked);
        Click(dialog, "cmdOK");
    });
    if (picked >= 0)
        text = rows[picked].Text;
}
