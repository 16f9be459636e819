// SPDX-License-Identifier: MIT
// What a person does with the overview, and what it must show.
#include "app/session/RandomSession.h"

#include "overview/HistoryTable.h"
#include "overview/frmOverview.h"

#include <QRegularExpression>
#include <QTabWidget>

namespace {

// The key of an error or warning, by the rules alone: its code, or its words with "#" for numbers.
QString KeyOf(const SessionEntry& entry) {
    static const QRegularExpression Code("^([NP])(\\d+)");
    static const QRegularExpression Digits("[0-9]+");
    const QRegularExpressionMatch code = Code.match(entry.Data);
    if (code.hasMatch() && QString(entry.Data).remove(" | ").contains(' '))
        return code.captured(1) + QString::number(code.captured(2).toLongLong());
    return entry.Sender + '/' + entry.Name + ' ' + QString(entry.Data).replace(Digits, "#");
}

bool HasKey(const SessionEntry& entry) { return entry.Type >= 2 && entry.Type <= 4; }

QString Joined(const std::map<QString, int>& counts) {
    QStringList texts;
    for (const auto& [text, count] : counts)
        texts << QString("%1 x %2").arg(count).arg(text);
    return texts.join("; ");
}

} // namespace

frmOverview* RandomSession::Overview() const {
    auto* const overview = Find<frmOverview>("frmOverview");
    return overview != nullptr && overview->isVisible() ? overview : nullptr;
}

void RandomSession::ToggleOverview() {
    Say(Overview() != nullptr ? "closes the overview" : "opens the overview");
    if (Overview() == nullptr)
        return Press(Qt::Key_F9);
    QApplication::setActiveWindow(Overview());
    QTest::keyClick(Overview(), Chance(2) ? Qt::Key_Escape : Qt::Key_F9);
}

void RandomSession::UseOverview() {
    if (Overview() == nullptr)
        return Say("no overview to use");
    QTRY_VERIFY(Overview()->HasHistory());
    auto* const errors = Overview()->findChild<HistoryTable*>("lvErrors");
    if (errors->model()->rowCount() == 0)
        return Say("no error in the overview");
    Overview()->findChild<QTabWidget*>("tabTables")->setCurrentIndex(1);
    errors->selectRow(Below(errors->model()->rowCount()));
    const QString key = errors->model()->index(errors->SelectedRow().value_or(0), 1).data().toString();
    const auto hasKey = [&](int row) {
        return HasKey(Model.EntryOf(row)) && KeyOf(Model.EntryOf(row)) == key;
    };
    std::set<int> entries;
    for (int entry = 0; entry < Model.Entries.size(); ++entry)
        if (HasKey(Model.Entries[entry]) && KeyOf(Model.Entries[entry]) == key)
            entries.insert(entry);
    QApplication::setActiveWindow(Overview());
    switch (Below(5)) {
    case 0:
        return GoToFirst(key);
    case 1:
    case 2: {
        const bool up = Chance(2);
        Say(QString("goes to the %1 %2").arg(up ? "previous" : "next", key));
        if (!Model.GoToNext(hasKey, up))
            Answers.ExpectMessage(up ? Localised("Begin reached", "Anfang erreicht")
                                     : Localised("End reached", "Ende erreicht"),
                                  QMessageBox::Ok);
        QTest::keyClick(Overview(), Qt::Key_F4, up ? Qt::ShiftModifier : Qt::NoModifier);
        return;
    }
    case 3: {
        Say("highlights all of " + key);
        Model.HighlightEntries(entries);
        QTest::mouseClick(Overview()->findChild<QPushButton*>("cmdHighlightAll"), Qt::LeftButton);
        return;
    }
    default: {
        Say("removes all of " + key);
        Model.RemoveEntries(entries);
        QTest::mouseClick(Overview()->findChild<QPushButton*>("cmdRemoveAll"), Qt::LeftButton);
    }
    }
}

// The next row behind a first entry that is hidden.
void RandomSession::GoToFirst(const QString& key) {
    Say("goes to the first " + key);
    int first = 0;
    while (!HasKey(Model.Entries[first]) || KeyOf(Model.Entries[first]) != key)
        ++first;
    int next = -1;
    for (int row = 0; row < Model.RowCount(); ++row)
        if (Model.Rows[row].Entry >= first && (next < 0 || Model.Rows[row].Entry < Model.Rows[next].Entry))
            next = row;
    if (next >= 0) {
        Model.SelectAlone(next);
        Model.ShowContent();
    }
    if (next < 0 || Model.Rows[next].Entry != first)
        Answers.ExpectMessage(Localised("Filters hide an entry that is nearer: ",
                                        "Filter verbergen einen Eintrag, der näher liegt: ") +
                                  Model.Entries[first].Time,
                              QMessageBox::Ok);
    QTest::keyClick(Overview()->findChild<HistoryTable*>("lvErrors"), Qt::Key_Return);
}

QString RandomSession::OverviewDifference() const {
    if (Overview() == nullptr || Model.Entries.isEmpty())
        return {};
    if (!QTest::qWaitFor([this] { return Overview()->HasHistory(); }))
        return "the overview has no history";
    QTest::qWait(0);
    QApplication::processEvents();
    std::map<QString, int> expected;
    for (const SessionEntry& entry : Model.Entries)
        if (HasKey(entry))
            ++expected[KeyOf(entry)];
    std::map<QString, int> shown;
    const QAbstractItemModel* const errors = Overview()->findChild<HistoryTable*>("lvErrors")->model();
    for (int row = 0; row < errors->rowCount(); ++row)
        shown[errors->index(row, 1).data().toString()] += errors->index(row, 0).data().toInt();
    if (shown != expected)
        return "the errors of the overview are \"" + Joined(shown) + "\" instead of \"" + Joined(expected) +
               '"';

    std::map<QString, int> expectedMarks;
    for (int entry = 0; entry < Model.Entries.size(); ++entry)
        if (!Model.Entries[entry].Comment.isEmpty())
            expectedMarks[QString::number(entry)] += 1;
    for (const SessionRow& row : Model.Rows)
        if (row.Highlighted)
            expectedMarks[QString::number(row.Entry)] += 2;
    std::map<QString, int> shownMarks;
    const QAbstractItemModel* const marks = Overview()->findChild<HistoryTable*>("lvMarks")->model();
    for (int row = 0; row < marks->rowCount(); ++row) {
        const QString words = marks->index(row, 3).data().toString();
        shownMarks[marks->index(row, 0).data().toString()] =
            (words.contains(Localised("Comment", "Kommentar")) ? 1 : 0) +
            (words.contains(Localised("Highlighted", "Markiert")) ? 2 : 0);
    }
    if (shownMarks != expectedMarks)
        return "the marks of the overview are \"" + Joined(shownMarks) + "\" instead of \"" +
               Joined(expectedMarks) + '"';

    const QString selection = Overview()->findChild<QLineEdit*>("tbSelection")->text();
    const std::size_t count = Model.Selected.size();
    const QString begin = count == 0 ? Localised("No row selected", "Keine Zeile gewählt")
                          : count == 1
                              ? Localised("1 row selected, ", "1 Zeile gewählt, ")
                              : QString::number(count) + Localised(" rows selected, ", " Zeilen gewählt, ");
    return selection.startsWith(begin) ? QString() : "the overview says \"" + selection + '"';
}
