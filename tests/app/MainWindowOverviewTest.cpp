// SPDX-License-Identifier: MIT
// The overview beside the main window: it follows the list, and its orders are those of the window.
#include "app/MainWindowTest.h"

#include "overview/HistoryTable.h"
#include "overview/TimelineView.h"
#include "overview/frmOverview.h"
#include "support/WindowTest.h"

#include <QClipboard>
#include <QProgressBar>
#include <QTabWidget>

namespace {

std::string ClockOf(const std::string& clock) { return "20.11.2010 " + clock; }

} // namespace

class MainWindowOverviewTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void init() { StartAfresh(); }
    void cleanup() { Window.reset(); }

    void IsMadeAndShownByItsKey() {
        QVERIFY(Overview() == nullptr);
        OpenStory();
        QVERIFY(Overview() == nullptr); // what is closed costs nothing
        OpenOverview();
        QVERIFY(Overview()->isVisible());
        QCOMPARE(Overview()->windowTitle(), QString("Overview"));
        QVERIFY(!Overview()->isModal());
        PressThere(Qt::Key_F9);
        QVERIFY(!Overview()->isVisible());
        Item("mnuAnalysisOverview")->trigger();
        QVERIFY(Overview()->isVisible());
        PressThere(Qt::Key_Escape);
        QVERIFY(!Overview()->isVisible());
    }

    void WithoutALogbookSaysSo() {
        Press(Qt::Key_F9);
        QCOMPARE(Part<QLabel>("lblState")->text(), QString("No logbook is open"));
        QVERIFY(!Part<QPushButton>("cmdGoTo")->isEnabled());
        QCOMPARE(Table("lvSessions")->model()->rowCount(), 0);
        OpenStory();
        QTRY_VERIFY(Overview()->HasHistory());
        QVERIFY(Part<QLabel>("lblState")->isHidden());
        QVERIFY(Part<QProgressBar>("pbHistory")->isHidden());
    }

    void TablesHaveSessionsErrorsAndTheirTexts() {
        OpenStory();
        OpenOverview();
        const HistoryTable* const sessions = Table("lvSessions");
        QCOMPARE(sessions->model()->rowCount(), 2);
        QCOMPARE(RowOf(sessions, 1), QStringList({"2", "20.11.2010 14:00:00", "0:20:00", "-", "5", "3", "0",
                                                  "P7, 0:08:00 before the last entry"}));
        const HistoryTable* const errors = Table("lvErrors");
        QCOMPARE(errors->model()->rowCount(), 3); // the warning, too
        QCOMPARE(RowOf(errors, 0).mid(0, 5),
                 QStringList({"3", "P7", "no text", "no text", "20.11.2010 14:12:00"}));
        QCOMPARE(Part<QLabel>("lblMissing")->text(),
                 QString("3 of 3 keys have no text in English, 3 none in German"));
    }

    void ReturnGoesToTheFirstEntry() {
        OpenStory();
        OpenOverview();
        Table("lvSessions")->selectRow(1);
        QTest::keyClick(Table("lvSessions"), Qt::Key_Return);
        QCOMPARE(SelectedData(), QString("")); // the start
        ShowErrors();
        SelectError("P7");
        QTest::keyClick(Table("lvErrors"), Qt::Key_Return);
        QCOMPARE(SelectedData(), QString("P7 door"));
        QCOMPARE(List()->SelectedRow(), 1);
        QTest::mouseDClick(Table("lvErrors")->viewport(), Qt::LeftButton, {},
                           Table("lvErrors")->visualRect(Table("lvErrors")->model()->index(1, 0)).center());
        QVERIFY(List()->SelectedRow() != 1);
    }

    void KeysWalkTheOccurrencesOfTheError() {
        OpenStory();
        OpenOverview();
        ShowErrors();
        SelectError("P7");
        List()->clearSelection();
        PressThere(Qt::Key_F4);
        QCOMPARE(List()->SelectedRow(), 1);
        PressThere(Qt::Key_F4);
        QCOMPARE(List()->SelectedRow(), 5);
        QTest::mouseClick(Part<QPushButton>("cmdNext"), Qt::LeftButton);
        QCOMPARE(List()->SelectedRow(), 7);
        AnswerMessages(1);
        PressThere(Qt::Key_F4);
        QCOMPARE(MessageTexts, QStringList("End reached"));
        PressThere(Qt::Key_F4, Qt::ShiftModifier);
        QCOMPARE(List()->SelectedRow(), 5);
    }

    void HighlightAllAndRemoveAllAreOrdinaryFiltersAndCanBeUndone() {
        OpenStory();
        OpenOverview();
        ShowErrors();
        SelectError("P7");
        const std::size_t filters = Filters->Load().size();
        List()->SelectAndShow(5);
        Window->Run(Command::ToggleHighlighting);
        QTest::mouseClick(Part<QPushButton>("cmdHighlightAll"), Qt::LeftButton);
        QCOMPARE(Highlighted(), (std::vector<int>{1, 5, 7})); // the one that was stays
        QTRY_COMPARE(Table("lvMarks")->model()->rowCount(), 3);
        QTest::mouseClick(Part<QPushButton>("cmdRemoveAll"), Qt::LeftButton);
        QCOMPARE(List()->model()->rowCount(), 6);
        QVERIFY(Filters->Load().size() > filters);
        PressThere(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(List()->model()->rowCount(), 9);
        QCOMPARE(Highlighted(), (std::vector<int>{1, 5, 7}));
        PressThere(Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(List()->model()->rowCount(), 6);
        PressThere(Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(Table("lvErrors"), Qt::Key_Delete);
        QCOMPARE(List()->model()->rowCount(), 6);
    }

    void HighlightAllAndRemoveAllTakeHiddenEntriesToo() {
        OpenStory();
        OpenOverview();
        ShowErrors();
        SelectError("P7");
        List()->SelectAndShow(5);
        Window->Run(Command::RemoveFromList); // one of the three
        List()->SelectAndShow(2);
        QTest::mouseClick(Part<QPushButton>("cmdHighlightAll"), Qt::LeftButton);
        QCOMPARE(Filters->Load().back().StringFilter, std::string("1,5,7"));
        PressThere(Qt::Key_Z, Qt::ControlModifier);
        QTest::mouseClick(Part<QPushButton>("cmdRemoveAll"), Qt::LeftButton);
        QCOMPARE(Filters->Load().back().StringFilter, std::string("5,1,7"));
        QCOMPARE(List()->model()->rowCount(), 6);
        QCOMPARE(SelectedData(), QString("P8 oil")); // it stays selected
        QCOMPARE(List()->SelectedRow(), 1);
    }

    void SelectionLineFollowsTheList() {
        OpenStory();
        OpenOverview();
        List()->clearSelection();
        QTRY_COMPARE(SelectionText(), QString("No row selected"));
        List()->SelectAndShow(7);
        QTRY_COMPARE(SelectionText(),
                     QString("1 row selected, at 20.11.2010 14:12:00, since the entry before: 0:02:00, since "
                             "the error before: 0:02:00"));
        List()->SelectRanges({{4, 7}}, {});
        QTRY_COMPARE(SelectionText(),
                     QString("4 rows selected, from 20.11.2010 14:00:00 to 20.11.2010 14:12:00, time "
                             "between: 0:12:00, errors among them: 3"));
        Window->Run(Command::SortInOrder, ColumnOrder{5, SortDirection::Descending});
        QTRY_VERIFY(SelectionText().startsWith("4 rows selected, from 20.11.2010 14:00:00"));
    }

    void FollowsFiltersCommentsAndAnotherLogbook() {
        OpenStory();
        OpenOverview();
        List()->SelectAndShow(0);
        Window->Run(Command::RemoveFromList);
        QTRY_VERIFY(Timeline()->Content().Cursor.has_value());
        EnterComment(3, "oil");
        QTRY_COMPARE(Table("lvMarks")->model()->rowCount(), 1);
        QCOMPARE(RowOf(Table("lvMarks"), 0).mid(3, 2), QStringList({"Comment", "oil"}));
        AnswerQuestion(QMessageBox::No);
        Window->OpenLogbook(File("other.log", {Header("BERR:    N1 one"), Header("BERR:    N2 two")}));
        QTRY_VERIFY(Overview()->HasHistory());
        QCOMPARE(Table("lvErrors")->model()->rowCount(), 2);
        QCOMPARE(Table("lvMarks")->model()->rowCount(), 0);
        Press(Qt::Key_F5);
        QTRY_VERIFY(Overview()->HasHistory());
        QCOMPARE(Table("lvErrors")->model()->rowCount(), 2);
    }

    void ClosedItKeepsItsHistoryAndCatchesUpWhenItOpens() {
        OpenStory();
        OpenOverview();
        Overview()->close();
        List()->SelectAndShow(7);
        Window->Run(Command::ToggleHighlighting);
        QTest::qWait(20);
        QCOMPARE(Table("lvMarks")->model()->rowCount(), 0);
        Press(Qt::Key_F9);
        QTRY_COMPARE(Table("lvMarks")->model()->rowCount(), 1);
        QVERIFY(SelectionText().startsWith("1 row selected"));
        Overview()->close();
        Window->OpenLogbook(File("other.log", {Header("BERR:    N1 one")}));
        QVERIFY(!Overview()->HasHistory());
        Press(Qt::Key_F9);
        QTRY_COMPARE(Table("lvErrors")->model()->rowCount(), 1);
    }

    void ASpanOfTheTimelineIsSelectedInTheListAndCanBeKept() {
        OpenStory();
        OpenOverview();
        TimelineView* const timeline = Timeline();
        timeline->setFocus();
        QTest::keyClick(timeline, Qt::Key_End);
        for (int i = 0; i < 6; ++i)
            QTest::keyPress(timeline, Qt::Key_Left, Qt::ShiftModifier);
        QTest::keyRelease(timeline, Qt::Key_Shift);
        QVERIFY(!List()->SelectedRanges().empty());
        QCOMPARE(List()->SelectedRanges().back().Last, std::size_t{8});
        const std::size_t first = List()->SelectedRanges().front().First;
        QVERIFY(first > 0);
        Window->Run(Command::KeepBetween);
        QCOMPARE(List()->model()->rowCount(), 9 - static_cast<int>(first));
    }

    void ASpanWithoutEntriesSelectsNothing() {
        OpenStory();
        OpenOverview();
        List()->SelectAndShow(1);
        emit Timeline()->SpanSelected(3, 3);
        QVERIFY(List()->SelectedRanges().empty());
    }

    void AnEntryThatFiltersHideIsTold() {
        OpenStory();
        OpenOverview();
        ShowErrors();
        SelectError("P7");
        List()->SelectAndShow(1);
        Window->Run(Command::RemoveFromList);
        AnswerMessages(1);
        QTest::keyClick(Table("lvErrors"), Qt::Key_Return);
        QCOMPARE(MessageTexts, QStringList("Filters hide an entry that is nearer: 20.11.2010 08:01:00"));
        QCOMPARE(List()->SelectedRow(), 1);
    }

    void TheSelectedErrorIsFoundAmongTheErrors() {
        OpenStory();
        List()->SelectAndShow(6);
        OpenOverview();
        PressThere(Qt::Key_Tab, Qt::ControlModifier);
        QTRY_COMPARE(SelectedKey(), QString("P9"));
        PressThere(Qt::Key_Up);
        QApplication::setActiveWindow(Window.get());
        List()->SelectAndShow(7);
        QTRY_COMPARE(SelectedKey(), QString("P7"));
        List()->SelectAndShow(3); // no error
        QTest::qWait(20);
        QCOMPARE(SelectedKey(), QString("P7"));
    }

    void SpeaksBothLanguages() {
        OpenStory();
        OpenOverview();
        WriteLanguage(*Settings, {Language::German});
        OpenWindow();
        OpenStory();
        OpenOverview();
        QCOMPARE(Overview()->windowTitle(), QString("Übersicht"));
        QCOMPARE(Part<QTabWidget>("tabTables")->tabText(1), QString("Fehler und Warnungen"));
        QCOMPARE(RowOf(Table("lvErrors"), 0).mid(2, 2), QStringList({"kein Text", "kein Text"}));
        List()->SelectAndShow(7);
        QTRY_COMPARE(SelectionText(),
                     QString("1 Zeile gewählt, um 20.11.2010 14:12:00, seit dem Eintrag davor: 0:02:00, seit "
                             "dem Fehler davor: 0:02:00"));
        List()->SelectRanges({{4, 7}}, {});
        QTRY_COMPARE(SelectionText(),
                     QString("4 Zeilen gewählt, von 20.11.2010 14:00:00 bis 20.11.2010 14:12:00, Zeit "
                             "dazwischen: 0:12:00, davon Fehler: 3"));
        QCOMPARE(Part<QLabel>("lblMissing")->text(),
                 QString("3 von 3 Schlüsseln haben keinen Text auf Englisch, 3 keinen auf Deutsch"));
    }

    void RemembersItsPlaceAndSize() {
        OpenStory();
        OpenOverview();
        Overview()->setGeometry(60, 70, 720, 540);
        const QPoint place = Overview()->pos();
        Overview()->close();
        OpenWindow();
        OpenStory();
        OpenOverview();
        QCOMPARE(Overview()->pos(), place);
        QCOMPARE(Overview()->size(), QSize(720, 540));
        Overview()->resize(760, 560);
        Window->close(); // stores it, too
        QVERIFY(!Overview()->isVisible());
        OpenWindow();
        Press(Qt::Key_F9);
        QCOMPARE(Overview()->size(), QSize(760, 560));
    }

    void ClosesWithTheMainWindow() {
        OpenStory();
        OpenOverview();
        Window->close();
        QVERIFY(!Overview()->isVisible());
    }

    void ALogbookWithoutEventsHasNoHistory() {
        Press(Qt::Key_F9);
        AnswerMessages(1);
        Window->OpenLogbook(File("empty.log", {}));
        QTest::qWait(30);
        QVERIFY(!Overview()->HasHistory());
        QCOMPARE(Part<QLabel>("lblState")->text(), QString("No logbook is open"));
    }

  private:
    // Two sessions; row 1, 5 and 7 are one error.
    void OpenStory() {
        Window->OpenLogbook(File(
            "story.log",
            {Header("RESET:", ClockOf("08:00:00")), Header("BERR:    P7 door", ClockOf("08:01:00")),
             Header("BERR:    P8 oil", ClockOf("08:02:00")), Header("STIB:    On", ClockOf("08:05:00")),
             Header("RESET:", ClockOf("14:00:00")), Header("BERR:    P7 door", ClockOf("14:05:00")),
             Header("BERR:    P9 air", ClockOf("14:10:00")), Header("BERR:    P7 door", ClockOf("14:12:00")),
             Header("STIB:    On", ClockOf("14:20:00"))}));
    }
    void OpenOverview() {
        Press(Qt::Key_F9);
        QVERIFY(QTest::qWaitForWindowExposed(Overview()));
        QTRY_VERIFY(Overview()->HasHistory());
    }
    frmOverview* Overview() const { return Find<frmOverview>("frmOverview"); }
    template <class T>
    T* Part(const char* name) const {
        return Overview()->findChild<T*>(name);
    }
    HistoryTable* Table(const char* name) const { return Part<HistoryTable>(name); }
    TimelineView* Timeline() const { return Part<TimelineView>("pbTimeline"); }
    QString SelectionText() const { return Part<QLineEdit>("tbSelection")->text(); }
    void ShowErrors() const { Part<QTabWidget>("tabTables")->setCurrentIndex(1); }

    static QStringList RowOf(const HistoryTable* table, int row) {
        QStringList cells;
        for (int column = 0; column < table->model()->columnCount(); ++column)
            cells << table->model()->index(row, column).data().toString();
        return cells;
    }
    void SelectError(const QString& key) const {
        HistoryTable* const errors = Table("lvErrors");
        for (int row = 0; row < errors->model()->rowCount(); ++row)
            if (errors->model()->index(row, 1).data().toString() == key)
                return errors->selectRow(row);
        QFAIL("no such error");
    }
    QString SelectedKey() const {
        const HistoryTable* const errors = Table("lvErrors");
        const std::optional<int> row = errors->SelectedRow();
        return row ? errors->model()->index(*row, 1).data().toString() : QString();
    }
    // A key in the overview, which a message or the main window may have left inactive.
    void PressThere(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QApplication::setActiveWindow(Overview());
        QTest::keyClick(Overview(), key, modifiers);
    }
    QString SelectedData() const { return Cell(List()->SelectedRow().value_or(0), 1); }
    std::vector<int> Highlighted() const {
        std::vector<int> rows;
        for (int row = 0; row < List()->model()->rowCount(); ++row)
            if (List()->Logbook()->Rows()[static_cast<std::size_t>(row)].Highlighted != 0)
                rows.push_back(row);
        return rows;
    }
};

QORVIX_WINDOW_TEST(MainWindowOverviewTest)
#include "MainWindowOverviewTest.moc"
