// SPDX-License-Identifier: MIT
// The orders of the analysis menu that move in the list.
#include "app/MainWindowTest.h"

#include "dialogs/frmGoToTime.h"
#include "filter/FilterStorage.h"
#include "support/WindowTest.h"

#include <QMenuBar>

#include <functional>

class MainWindowAnalysisTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void init() { StartAfresh(); }
    void cleanup() { Window.reset(); }

    void KeysStepFromErrorToError() {
        OpenErrors();
        Press(Qt::Key_F4);
        QCOMPARE(SelectedRow(), 1);
        QCOMPARE(Find<QPlainTextEdit>("txContent")->toPlainText(), QString("N938 one\n"));
        Press(Qt::Key_F4);
        QCOMPARE(SelectedRow(), 3);
        Press(Qt::Key_F4, Qt::ShiftModifier);
        QCOMPARE(SelectedRow(), 1);
        Item("mnuAnalysisNextError")->trigger();
        Item("mnuAnalysisPrevError")->trigger();
        QCOMPARE(SelectedRow(), 1);
    }

    void WithoutASelectedRowTheFirstOrTheLastErrorIsFound() {
        OpenErrors();
        List()->clearSelection();
        Press(Qt::Key_F4, Qt::ShiftModifier);
        QCOMPARE(SelectedRow(), 3);
        List()->clearSelection();
        Press(Qt::Key_F4);
        QCOMPARE(SelectedRow(), 1);
    }

    void KeysStepFromHighlightedRowToHighlightedRow() {
        OpenErrors();
        List()->SelectAndShow(2);
        Window->Run(Command::ToggleHighlighting);
        List()->SelectAndShow(4);
        Window->Run(Command::ToggleHighlighting);
        List()->SelectAndShow(0);
        Press(Qt::Key_F7);
        QCOMPARE(SelectedRow(), 2);
        Press(Qt::Key_F7);
        QCOMPARE(SelectedRow(), 4);
        Press(Qt::Key_F7, Qt::ShiftModifier);
        QCOMPARE(SelectedRow(), 2);
    }

    void KeysStepFromCommentedRowToCommentedRow() {
        OpenErrors();
        Book->Entries.SetComment(1, "oil");
        Book->Entries.SetComment(2, "");
        Book->Entries.SetComment(4, "door");
        Press(Qt::Key_F8);
        QCOMPARE(SelectedRow(), 1);
        Press(Qt::Key_F8);
        QCOMPARE(SelectedRow(), 4);
        Press(Qt::Key_F8, Qt::ShiftModifier);
        QCOMPARE(SelectedRow(), 1);
    }

    void EndsAreToldInBothLanguages() {
        for (const int number : {0, 1}) {
            WriteLanguage(*Settings, {number});
            OpenWindow();
            OpenErrors();
            AnswerMessages(6);
            List()->SelectAndShow(3);
            for (const Qt::Key key : {Qt::Key_F4, Qt::Key_F7, Qt::Key_F8}) {
                Press(key);
                Press(key, Qt::ShiftModifier);
                if (key == Qt::Key_F4)
                    List()->SelectAndShow(1);
            }
            const QString end = number == 0 ? "End reached" : "Ende erreicht";
            const QString begin = number == 0 ? "Begin reached" : "Anfang erreicht";
            QCOMPARE(MessageTexts, QStringList({end, end, begin, end, begin}));
            QCOMPARE(SelectedRow(), 1);
            AnswerMessages(0);
        }
    }

    void EmptyListIsNoFault() {
        AnswerMessages(1);
        Press(Qt::Key_F4);
        QCOMPARE(MessageTexts, QStringList({"End reached"}));
    }

    void TheListIsSortedInTheChosenDirection() {
        OpenErrors();
        List()->SelectAndShow(1);
        SortItem(5, SortDirection::Descending)->trigger();
        QCOMPARE(Column(5), QStringList({"4", "3", "2", "1", "0"}));
        QCOMPARE(SelectedRow(), 3);
        // Again, and after a click that inverted it.
        SortItem(5, SortDirection::Descending)->trigger();
        QCOMPARE(Cell(0, 5), QString("4"));
        ClickHeader(5);
        QCOMPARE(Cell(0, 5), QString("0"));
        SortItem(5, SortDirection::Ascending)->trigger();
        QCOMPARE(Cell(0, 5), QString("0"));
        SortItem(1, SortDirection::Ascending)->trigger();
        QCOMPARE(List()->horizontalHeader()->sortIndicatorSection(), 1);
        QCOMPARE(List()->horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
        // Column 0 is that of the last sort when there was none.
        OpenWindow();
        OpenErrors();
        SortItem(0, SortDirection::Descending)->trigger();
        QCOMPARE(List()->horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    }

    void SortItemsAreNamedAfterTheColumns() {
        const auto texts = [&] {
            QStringList names;
            for (const QAction* item : Find<QMenu>("mnuAnalysisSort")->actions())
                names << item->text();
            return names;
        };
        QCOMPARE(texts().mid(0, 2), QStringList({"Event type, ascending", "Event type, descending"}));
        QCOMPARE(texts().size(), 14);
        QCOMPARE(Find<QMenu>("mnuAnalysisSort")->title(), QString("&Sort by"));
        WriteLanguage(*Settings, {1});
        OpenWindow();
        QCOMPARE(texts().mid(8, 2), QStringList({"Zeit, aufsteigend", "Zeit, absteigend"}));
        QCOMPARE(Find<QMenu>("mnuAnalysisSort")->title(), QString("&Sortieren nach"));
    }

    void GoToTimeSelectsTheFirstRowAtOrAfterIt() {
        OpenTimes();
        List()->SelectAndShow(0);
        GoToTime("14:12");
        QCOMPARE(SelectedRow(), 2);
        // The day of the selected row counts.
        GoToTime("08:00");
        QCOMPARE(SelectedRow(), 0);
        GoToTime("21.11. 08:00");
        QCOMPARE(SelectedRow(), 3);
        GoToTime("8:30");
        QCOMPARE(SelectedRow(), 4);
        QVERIFY(MessageTexts.isEmpty());
        AnswerMessages(1);
        GoToTime("23.11. 08:00");
        QCOMPARE(MessageTexts, QStringList({"End reached"}));
        QCOMPARE(SelectedRow(), 4);
    }

    void GoToTimeFindsTheNearestRowOfAnotherOrder() {
        OpenTimes();
        SortItem(5, SortDirection::Descending)->trigger();
        GoToTime("20.11.2010 14:11");
        QCOMPARE(Cell(SelectedRow(), 5), QString("2"));
    }

    void GoToTimeSaysWhatFiltersHide() {
        for (const int number : {0, 1}) {
            StartAfresh();
            WriteLanguage(*Settings, {number});
            OpenWindow();
            OpenTimes();
            List()->SelectAndShow(2);
            Window->Run(Command::RemoveFromList);
            List()->SelectAndShow(0);
            AnswerMessages(1);
            GoToTime("14:12");
            QCOMPARE(
                MessageTexts,
                QStringList({number == 0
                                 ? "Filters hide an entry that is nearer: 20.11.2010 14:12:30"
                                 : "Filter verbergen einen Eintrag, der näher liegt: 20.11.2010 14:12:30"}));
            QCOMPARE(Cell(SelectedRow(), 5), QString("3"));
        }
    }

    void GoToTimeSaysThatFiltersHideAllThatIsLater() {
        OpenTimes();
        List()->SelectRanges({{1, List()->Logbook()->Rows().size() - 1}}, 1);
        Window->Run(Command::RemoveFromList);
        AnswerMessages(1);
        GoToTime("22.11.2010 10:00");
        QCOMPARE(MessageTexts, QStringList("End reached"));
        MessageTexts.clear();
        AnswerMessages(1);
        GoToTime("20.11.2010 13:30");
        QCOMPARE(MessageTexts.size(), 1);
        QVERIFY2(MessageTexts[0].startsWith("Filters hide an entry that is nearer: "),
                 qPrintable(MessageTexts[0]));
    }

    void GoToTimeMayBeCancelled() {
        OpenTimes();
        List()->SelectAndShow(1);
        OnDialog([](frmGoToTime& dialog) {
            dialog.findChild<QLineEdit*>("tbTime")->setText("14:12");
            dialog.reject();
        });
        Press(Qt::Key_G, Qt::ControlModifier);
        QCOMPARE(SelectedRow(), 1);
    }

    void OnlyFromFirstToLastSelectedEntryIsOneFilter() {
        OpenErrors();
        List()->SelectRanges({{1, 1}, {3, 3}}, 3);
        Item("mnuAnalysisKeepBetween")->trigger();
        QCOMPARE(Column(5), QStringList({"1", "2", "3"}));
        QCOMPARE(Column(5).value(SelectedRow()), QString("3"));
        const auto filters = LoadFilterList(*Settings).Filters;
        QCOMPARE(filters.size(), 2U);
        QCOMPARE(filters[1], Filter("X|8|0,4-2147483647|||1"));
        // Nothing selected, nothing done.
        List()->clearSelection();
        List()->setCurrentIndex({});
        Item("mnuAnalysisKeepBetween")->trigger();
        QCOMPARE(LoadFilterList(*Settings).Filters.size(), 2U);
        QCOMPARE(UndoText(), QString("Undo: Only from first to last selected entry"));
        Press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(List()->model()->rowCount(), 5);
        QVERIFY(!Item("mnuAnalysisUndo")->isEnabled());
    }

    void UndoNamesWhatItTakesBack() {
        QCOMPARE(UndoText(), QString("Undo"));
        QVERIFY(!Item("mnuAnalysisUndo")->isEnabled());
        QVERIFY(!Item("mnuAnalysisRedo")->isEnabled());
        OpenErrors();
        List()->SelectAndShow(1);
        Window->Run(Command::RemoveFromList);
        QCOMPARE(UndoText(), QString("Undo: Remove from list"));
        List()->SelectAndShow(2);
        Window->Run(Command::ToggleHighlighting);
        QCOMPARE(UndoText(), QString("Undo: Toggle highlighting"));
        Press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(UndoText(), QString("Undo: Remove from list"));
        QCOMPARE(Item("mnuAnalysisRedo")->text().remove('&'), QString("Redo: Toggle highlighting"));
        QCOMPARE(Column(5), QStringList({"0", "2", "3", "4"}));
        QVERIFY(!model()->Rows()[2].Highlighted);
        Press(Qt::Key_Y, Qt::ControlModifier);
        QVERIFY(model()->Rows()[2].Highlighted);
        Press(Qt::Key_Z, Qt::ControlModifier);
        Press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(Column(5), QStringList({"0", "1", "2", "3", "4"}));
        QVERIFY(!Item("mnuAnalysisUndo")->isEnabled());
        // Another logbook begins anew.
        Press(Qt::Key_Y, Qt::ControlModifier);
        OpenErrors();
        QVERIFY(!Item("mnuAnalysisUndo")->isEnabled());
        WriteLanguage(*Settings, {1});
        OpenWindow();
        OpenErrors();
        Window->Run(Command::RemoveFromList);
        QCOMPARE(UndoText(), QString("Rückgängig: Entfernen"));
    }

    void FiltersThatWereChangedElsewhereStay() {
        for (const int number : {0, 1}) {
            StartAfresh();
            WriteLanguage(*Settings, {number});
            OpenWindow();
            OpenErrors();
            Window->Run(Command::RemoveFromList);
            WriteFilter(*Settings, 1, Filter("X|8|3|||1"));
            AnswerMessages(1);
            Press(Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(
                MessageTexts,
                QStringList({number == 0
                                 ? "This cannot be done: the filters have been changed otherwise since then."
                                 : "Das ist nicht möglich: Die Filter wurden seitdem anders geändert."}));
            QCOMPARE(LoadFilterList(*Settings).Filters[1], Filter("X|8|3|||1"));
        }
    }

    void ColumnsFitTheirTexts() {
        OpenErrors();
        List()->setColumnWidth(1, 10);
        List()->setColumnWidth(2, 900);
        Item("mnuAnalysisFitColumns")->trigger();
        QVERIFY(List()->columnWidth(1) > List()->fontMetrics().horizontalAdvance("N938 one"));
        QVERIFY(List()->columnWidth(2) < 400);
        Window->OpenLogbook(File("long.log", {Header("BERR:    " + std::string(3000, 'x'))}));
        Item("mnuAnalysisFitColumns")->trigger();
        QVERIFY(List()->columnWidth(1) <= List()->viewport()->width());
    }

  private:
    void OpenErrors() {
        Window->OpenLogbook(
            File("errors.log", {Header("STIB:    On"), Header("BERR:    N938 one"), Header("STIB:    Off"),
                                Header("BERR:    N939 two"), Header("STIB:    On")}));
        List()->SelectAndShow(0);
    }
    QString UndoText() const { return Item("mnuAnalysisUndo")->text().remove('&'); }
    LogbookModel* model() const { return List()->Logbook(); }
    void OpenTimes() {
        Window->OpenLogbook(
            File("times.log",
                 {Header("BERR:    1", "20.11.2010 13:00:00"), Header("BERR:    2", "20.11.2010 14:00:00"),
                  Header("BERR:    3", "20.11.2010 14:12:30"), Header("BERR:    4", "21.11.2010 08:00:00"),
                  Header("BERR:    5", "21.11.2010 09:00:00")}));
    }
    void OnDialog(const std::function<void(frmGoToTime&)>& act) {
        QTimer::singleShot(0, Person.get(), [this, act] {
            if (auto* const dialog = qobject_cast<frmGoToTime*>(QApplication::activeModalWidget()))
                act(*dialog);
            else
                OnDialog(act);
        });
    }
    void GoToTime(const char* text) {
        OnDialog([text](frmGoToTime& dialog) {
            auto* const box = dialog.findChild<QLineEdit*>("tbTime");
            box->clear();
            QTest::keyClicks(box, text);
            QTest::keyClick(box, Qt::Key_Return);
        });
        Press(Qt::Key_G, Qt::ControlModifier);
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        // Without a window manager nobody does this when a dialog has closed.
        Window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(Window.get()));
        QTest::keyClick(Window.get(), key, modifiers);
    }
    int SelectedRow() const { return List()->SelectedRow().value_or(-1); }
    QAction* SortItem(int column, SortDirection direction) const {
        return Find<QMenu>("mnuAnalysisSort")
            ->actions()
            .at(column * 2 + (direction == SortDirection::Descending ? 1 : 0));
    }
};

QORVIX_WINDOW_TEST(MainWindowAnalysisTest)
#include "MainWindowAnalysisTest.moc"
