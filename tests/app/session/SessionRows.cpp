// SPDX-License-Identifier: MIT
// What a person does with the rows of the list.
#include "app/session/RandomSession.h"
#include "app/session/SessionWords.h"

#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace {

constexpr int MostDialogs = 3; // of entries, one after the other
constexpr const char* Comments[] = {"",          "pump",  "Öl, \"neu\"", "a\nb", " blank ",
                                    "!!Clear!!", "a | b", "\n",          "N938"};

QString InWords(const QString& text) { return '"' + QString(text).replace("\n", "\\n") + '"'; }

} // namespace

void RandomSession::ClickOn(int row, Qt::KeyboardModifiers modifiers) {
    List()->scrollTo(List()->model()->index(row, 0));
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, modifiers, RowPoint(row));
}

void RandomSession::PressInList(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QApplication::setActiveWindow(Window.get());
    List()->setFocus();
    QTest::keyClick(List(), key, modifiers);
}

void RandomSession::ClickRow() {
    if (Model.RowCount() == 0)
        return Say("no row to click");
    ClickAlone(AnyRow());
}

void RandomSession::ClickAlone(int row) {
    Say(QString("clicks row %1").arg(row));
    ClickOn(row);
    Model.SelectAlone(row);
    Model.ShowContent();
}

void RandomSession::AddRowByClick() {
    if (Model.RowCount() == 0)
        return Say("no row to add");
    const int row = AnyRow();
    Say(QString("clicks row %1 with Ctrl").arg(row));
    ClickOn(row, Qt::ControlModifier);
    if (!Model.Selected.insert(row).second)
        Model.Selected.erase(row);
    Model.Current = row;
    Model.ShowContent();
}

void RandomSession::SelectRange() {
    if (Model.RowCount() == 0)
        return Say("no rows to select");
    const int from = AnyRow();
    const int to = std::min(Model.RowCount() - 1, std::max(0, from + Below(9) - 4));
    Say(QString("selects rows %1 to %2").arg(from).arg(to));
    ClickOn(from);
    ClickOn(to, Qt::ShiftModifier);
    Model.SelectAlone(to);
    for (int row = std::min(from, to); row <= std::max(from, to); ++row)
        Model.Selected.insert(row);
    Model.ShowContent();
}

void RandomSession::SelectAll() {
    ClickRow();
    Say("selects all");
    PressInList(Qt::Key_A, Qt::ControlModifier);
    for (int row = 0; row < Model.RowCount(); ++row)
        Model.Selected.insert(row);
    Model.ShowContent();
}

void RandomSession::ClickBeside() {
    List()->scrollToBottom();
    const QPoint place(5, List()->viewport()->height() - 1);
    if (List()->indexAt(place).isValid())
        return Say("no place beside the rows");
    Say("clicks beside the rows");
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, place);
    Model.Selected.clear();
}

void RandomSession::MoveByKey() {
    if (Model.Current < 0)
        return ClickRow();
    struct Move {
        Qt::Key Key;
        const char* Name;
        int Row;
    };
    const int last = Model.RowCount() - 1;
    // With nothing selected, the arrows begin at the current row.
    const int step = Model.Selected.empty() ? 0 : 1;
    const Move moves[] = {{Qt::Key_Up, "Up", std::max(0, Model.Current - step)},
                          {Qt::Key_Down, "Down", std::min(last, Model.Current + step)},
                          {Qt::Key_Home, "Home", 0},
                          {Qt::Key_End, "End", last}};
    const Move move = Chance(3) ? moves[2 + Below(2)] : moves[Below(2)];
    const bool withControl = (move.Key == Qt::Key_Home || move.Key == Qt::Key_End) && Chance(3);
    Say(QString(withControl ? "presses Ctrl+%1" : "presses %1").arg(move.Name));
    PressInList(move.Key, withControl ? Qt::ControlModifier : Qt::NoModifier);
    Model.SelectAlone(move.Row);
    Model.ShowContent();
}

void RandomSession::Sort() {
    const int column = Below(7);
    Say(QString("sorts by column %1").arg(column));
    ClickHeader(column);
    Model.Sort(column);
}

void RandomSession::SortByMenu() {
    const int column = Below(7);
    const bool descending = Chance(2);
    Say(QString("sorts by column %1 %2 by the menu").arg(column).arg(descending ? "down" : "up"));
    Find<QMenu>("mnuAnalysisSort")->actions().at(column * 2 + (descending ? 1 : 0))->trigger();
    Model.Sort(column, descending);
}

// Opens the popup menu over a row. A selection that the row belongs to stays.
void RandomSession::OpenPopup(int row) {
    Say(QString("by the menu of row %1").arg(row));
    List()->scrollTo(List()->model()->index(row, 0));
    QTest::mouseClick(List()->viewport(), Qt::RightButton, {}, RowPoint(row));
    if (!Model.Selected.contains(row))
        Model.SelectAlone(row);
    Model.Current = row;
    Model.ShowContent();
}

void RandomSession::ChooseInPopup(const char* item) {
    auto* const popup = Find<QMenu>("mnuPopup");
    if (!popup->isVisible())
        return Answers.Blame("no popup menu");
    QTest::mouseClick(popup, Qt::LeftButton, {}, popup->actionGeometry(Item(item)).center());
}

void RandomSession::Remove() {
    if (Model.Selected.size() > 20)
        SelectRange();
    Say("removes");
    if (Model.RowCount() > 0 && Chance(2)) {
        OpenPopup(AnyRow());
        ChooseInPopup("mnuPopupRemove");
        return Model.RemoveSelected();
    }
    PressInList(Qt::Key_Delete);
    Model.RemoveSelected();
    Model.ShowContent();
}

void RandomSession::Toggle() {
    Say("toggles the highlighting");
    if (Model.RowCount() > 0 && Chance(2)) {
        OpenPopup(AnyRow());
        ChooseInPopup("mnuPopupToggle");
        return Model.ToggleSelected();
    }
    PressInList(Qt::Key_Space);
    Model.ToggleSelected();
    Model.ShowContent();
}

void RandomSession::KeepBetween() {
    Say("keeps from the first to the last selected entry");
    if (!Model.Selected.empty())
        Model.KeepBetween();
    Item("mnuAnalysisKeepBetween")->trigger();
}

void RandomSession::UndoOrRedo() {
    const bool undo = !Chance(3);
    Say(undo ? "undoes" : "redoes");
    const bool isOffered = undo ? Model.Done > 0 : Model.Done < Model.Steps.size();
    if (isOffered && !(undo ? Model.Undo() : Model.Redo()))
        Answers.ExpectMessage(
            Localised("This cannot be done: the filters have been changed otherwise since then.",
                      "Das ist nicht möglich: Die Filter wurden seitdem anders geändert."),
            QMessageBox::Ok);
    if (Chance(3))
        Item(undo ? "mnuAnalysisUndo" : "mnuAnalysisRedo")->trigger();
    else
        Press(undo ? Qt::Key_Z : Qt::Key_Y, Qt::ControlModifier);
}

void RandomSession::Copy() {
    Say("copies");
    QApplication::clipboard()->setText("before");
    PressInList(Qt::Key_C, Qt::ControlModifier);
    QString expected = Localised("Event type\tData\tSender\tName\tTime\tIndex\tComment\n",
                                 "Ereignistyp\tInhalt\tQuelle\tName\tZeit\tIndex\tKommentar\n");
    for (const int row : Model.Selected)
        for (int column = 0; column < 7; ++column)
            expected += Model.Cell(row, column) + (column < 6 ? '\t' : '\n');
    if (Model.Selected.empty())
        expected = "before";
    if (QApplication::clipboard()->text() != expected)
        Answers.Blame("copied \"" + QApplication::clipboard()->text() + "\" instead of \"" + expected + '"');
    Model.ShowContent();
}

void RandomSession::EditComments() {
    Say("edits comments");
    const int way = Model.RowCount() == 0 ? 0 : Below(3);
    const int row = way == 0 ? -1 : AnyRow();
    if (way == 1)
        ClickAlone(row);
    if (way == 2)
        OpenPopup(row);
    int dialogs = 0;
    for (const int selected : Model.Selected)
        if (dialogs < MostDialogs)
            PlanComment(selected, ++dialogs == MostDialogs);
    if (way == 0) {
        PressInList(Qt::Key_Return);
    } else if (way == 1) {
        QTest::mouseDClick(List()->viewport(), Qt::LeftButton, {}, RowPoint(row));
        QTest::mouseRelease(List()->viewport(), Qt::LeftButton, {}, RowPoint(row));
    } else {
        return ChooseInPopup("mnuPopupProperties");
    }
    Model.ShowContent(); // the key or the mouse button is let go when the dialogs are closed
}

// The dialog of the row shows its cells. The last one is closed by its title bar, which ends the dialogs.
void RandomSession::PlanComment(int row, bool isLast) {
    const auto lines = [](QString cell) { return cell.replace(" | ", "\n"); };
    QStringList shown;
    for (int column = 0; column < 7; ++column)
        shown << lines(Model.Cell(row, column));
    shown << Model.Tag(row);
    const QString comment = Chance(3) ? AnyText(dice_) : AnyOf(dice_, Comments);
    const bool confirmed = !isLast && !Chance(4);
    Say(QString("row %1: %2 %3")
            .arg(row)
            .arg(InWords(comment), isLast      ? "and closes"
                                   : confirmed ? "OK"
                                               : "Cancel"));
    Answers.Expect("frmLogbookIdent", [=, this](QWidget& dialog) {
        const auto text = [&](const char* name) { return dialog.findChild<QLineEdit*>(name)->text(); };
        auto* const box = dialog.findChild<QPlainTextEdit*>("tbComment");
        const QStringList fields = {
            text("tbEvent"),    dialog.findChild<QPlainTextEdit*>("tbIdent")->toPlainText(),
            text("tbEmitter"),  text("tbName"),
            text("tbTime"),     text("tbIndex"),
            box->toPlainText(), text("tbEventID")};
        if (fields != shown)
            Answers.Blame("entry dialog with " + fields.join('/') + " instead of " + shown.join('/'));
        box->setPlainText(comment);
        if (isLast)
            dialog.close();
        else
            dialog.findChild<QAbstractButton*>(confirmed ? "cmdOK" : "cmdCancel")->click();
    });
    if (confirmed)
        Model.Comment(row, comment.isEmpty() ? QString("!!Clear!!") : comment);
}
