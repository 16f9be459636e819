// SPDX-License-Identifier: MIT
// Searching, and the language.
#include "app/session/RandomSession.h"
#include "app/session/SessionWords.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

namespace {
constexpr const char* Searches[] = {"n938", "KEY", "läuft",  "LÄUFT", "straße", "X",      "restart", "Info",
                                    "->",   "öl",  "Öffnen", "1",     "a",      "no hit", "PLC",     ""};
}

void RandomSession::FindByDialog() {
    const SessionSearch before = Model.Search;
    SessionSearch search{AnyOf(dice_, Searches), Chance(2), Chance(3), Chance(3)};
    const bool confirmed = !Chance(6);
    Say(QString("finds \"%1\" %2%3%4%5")
            .arg(search.Text, search.Up ? "up" : "down", search.WholeWord ? " whole words" : "",
                 search.CaseSensitive ? " by case" : "", confirmed ? "" : " but cancels"));
    Answers.Expect("frmSearchForString", [=, this](QWidget& dialog) {
        auto* const text = dialog.findChild<QLineEdit*>("tbSearchString");
        auto* const up = dialog.findChild<QRadioButton*>("obAscending");
        auto* const word = dialog.findChild<QCheckBox*>("checkboxWholeWord");
        auto* const letterCase = dialog.findChild<QCheckBox*>("checkboxCaseSensitive");
        if (SessionSearch{text->text(), up->isChecked(), word->isChecked(), letterCase->isChecked()} !=
            before)
            Answers.Blame("the find dialog does not show the last search");
        text->setText(search.Text);
        (search.Up ? up : dialog.findChild<QRadioButton*>("obDescending"))->click();
        word->setChecked(search.WholeWord);
        letterCase->setChecked(search.CaseSensitive);
        dialog.findChild<QAbstractButton*>(confirmed ? "cmdOK" : "cmdCancel")->click();
    });
    if (confirmed) {
        Model.Search = search;
        if (!Model.Find(search.Up))
            Answers.ExpectMessage(search.Up ? Localised("Begin reached", "Anfang erreicht")
                                            : Localised("End reached", "Ende erreicht"),
                                  QMessageBox::Ok);
    }
    Model.CanFindAgain = !Model.Search.Text.isEmpty();
    if (Chance(2))
        Item("mnuExtrasSearch")->trigger();
    else
        Press(Qt::Key_F, Qt::ControlModifier);
}

void RandomSession::FindAgain() {
    const bool next = !Chance(3);
    const bool up = Model.Search.Up == next;
    Say(next ? "finds the next" : "finds the previous");
    if (Model.CanFindAgain && !Model.Find(up))
        Answers.ExpectMessage(up ? Localised("Begin reached", "Anfang erreicht")
                                 : Localised("End reached", "Ende erreicht"),
                              QMessageBox::Ok);
    Press(Qt::Key_F3, next ? Qt::NoModifier : Qt::ShiftModifier);
}

void RandomSession::StepToMark() {
    struct Step {
        SessionMark Mark;
        Qt::Key Key;
        const char* Item;
        const char* ItemBack;
    };
    static constexpr Step Steps[] = {
        {SessionMark::Error, Qt::Key_F4, "mnuAnalysisNextError", "mnuAnalysisPrevError"},
        {SessionMark::Highlighted, Qt::Key_F7, "mnuAnalysisNextHighlighted", "mnuAnalysisPrevHighlighted"},
        {SessionMark::Commented, Qt::Key_F8, "mnuAnalysisNextCommented", "mnuAnalysisPrevCommented"},
    };
    const Step& step = dice_.Pick(Steps);
    const bool up = Chance(3);
    Say(QString("goes to %1").arg(up ? step.ItemBack : step.Item));
    if (!Model.GoToNext(step.Mark, up))
        Answers.ExpectMessage(up ? Localised("Begin reached", "Anfang erreicht")
                                 : Localised("End reached", "Ende erreicht"),
                              QMessageBox::Ok);
    if (Chance(3))
        Item(up ? step.ItemBack : step.Item)->trigger();
    else
        Press(step.Key, up ? Qt::ShiftModifier : Qt::NoModifier);
}

// From the first row on, until there is no further one: as many as the rules say.
void RandomSession::FindAll() {
    if (!Model.CanFindAgain || Model.RowCount() == 0)
        return Say("nothing to find");
    const int first = Model.Search.Up ? Model.RowCount() - 1 : 0;
    int expected = 0;
    for (int row = 0; row < Model.RowCount(); ++row)
        expected += row != first && Model.IsHit(row) ? 1 : 0;
    Say(QString("finds all, %1 hits").arg(expected));
    ClickAlone(first);
    Answers.ExpectMessage(Model.Search.Up ? Localised("Begin reached", "Anfang erreicht")
                                          : Localised("End reached", "Ende erreicht"),
                          QMessageBox::Ok);
    for (int hit = 0; hit <= expected; ++hit) {
        Press(Qt::Key_F3);
        Model.Find(Model.Search.Up);
        if (const QString difference = SelectionDifference(); !difference.isEmpty())
            return Answers.Blame(QString("hit %1: ").arg(hit) + difference);
    }
}

void RandomSession::ChangeLanguage() {
    static constexpr int Languages[] = {0, 0, 1, 1, 5, 10};
    const int language = dice_.Pick(Languages);
    const bool confirmed = !Chance(4);
    Say(QString("chooses language %1 %2").arg(language).arg(confirmed ? "OK" : "Cancel"));
    const int before = Model.Language;
    const QString title = Localised("Change Language", "Sprache auswählen");
    Answers.Expect("frmLanguageDialog", [=, this](QWidget& dialog) {
        auto* const rows = dialog.findChild<QComboBox*>("cbDialogLanguage");
        if (rows->currentIndex() != before || dialog.windowTitle() != title)
            Answers.Blame("language dialog " + dialog.windowTitle());
        rows->setCurrentIndex(language);
        dialog.findChild<QAbstractButton*>(confirmed ? "cmdOK" : "cmdCancel")->click();
    });
    if (confirmed)
        Model.SetLanguage(language);
    Item("mnuExtrasDialogLanguage")->trigger();
}
