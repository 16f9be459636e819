// SPDX-License-Identifier: MIT
// The window of the overview by itself: its tables, its keys, its words, on every screen.
#include "overview/frmOverview.h"

#include "overview/HistoryOfStory.h"
#include "overview/HistoryTable.h"
#include "support/Screens.h"
#include "support/WindowTest.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTabWidget>

class frmOverviewTest : public QObject {
    Q_OBJECT

  private slots:
    void init() { Open({Language::English}); }
    void cleanup() {
        Overview.reset();
        QApplication::setFont(Font);
    }

    void IsEmptyWithoutALogbook() {
        Overview->ShowNothing();
        QCOMPARE(Part<QLabel>("lblState")->text(), QString("No logbook is open"));
        for (const char* const name : {"lvSessions", "lvErrors", "lvMarks"})
            QCOMPARE(Table(name)->model()->rowCount(), 0);
        for (const auto* const button : Overview->findChildren<QPushButton*>())
            QVERIFY2(!button->isEnabled(), qPrintable(button->objectName()));
        QCOMPARE(Part<QLineEdit>("tbSelection")->text(), QString());
        QTest::keyClick(Table("lvErrors"), Qt::Key_Return);
    }

    void TellsHowFarItIs() {
        Overview->ShowNothing();
        Overview->ShowProgress(41.7);
        QCOMPARE(Part<QLabel>("lblState")->text(), QString("The history of the logbook is being determined"));
        QCOMPARE(Part<QProgressBar>("pbHistory")->value(), 41);
        QVERIFY(Part<QProgressBar>("pbHistory")->isVisible());
        Overview->SetLanguage({Language::German});
        QCOMPARE(Part<QLabel>("lblState")->text(), QString("Die Geschichte des Logbuchs wird ermittelt"));
    }

    void HeadersSayWhatColumnsHold() {
        QCOMPARE(Headers("lvSessions"), QStringList({"Session", "Start", "Recorded", "To next", "Entries",
                                                     "Errors", "Warnings", "Last error, clock"}));
        QCOMPARE(Headers("lvErrors").size(), 11);
        QCOMPARE(Headers("lvMarks"), QStringList({"Index", "Time", "Event type", "Mark", "Comment", "Data"}));
    }

    void HeadersSortAndTheSelectionStaysOnItsRecord() {
        HistoryTable* const errors = Errors();
        QCOMPARE(Column(errors, 1), QStringList({"P7", "P9", "PLC/COOLANT low"}));
        errors->selectRow(0);
        errors->sortByColumn(1, Qt::DescendingOrder);
        QCOMPARE(Column(errors, 1), QStringList({"PLC/COOLANT low", "P9", "P7"}));
        QCOMPARE(errors->SelectedRecord(), std::optional<std::size_t>(0));
        errors->sortByColumn(0, Qt::DescendingOrder); // by number
        QCOMPARE(Column(errors, 0), QStringList({"3", "1", "1"}));
        errors->sortByColumn(5, Qt::AscendingOrder); // by first time
        QCOMPARE(Column(errors, 1), QStringList({"P7", "PLC/COOLANT low", "P9"}));
    }

    // The days of a month before it in the text come later in time.
    void MarksSortByTimeNotByText() {
        ReadResult result;
        ReadText(
            Lines({Header("STIB:    On", "30.10.2010 08:00:00"), Header("STIB:    On", "02.11.2010 08:00:00"),
                   Header("STIB:    On", "31.10.2010 08:00:00")}),
            result);
        LogbookHistory history(result.Book, {});
        while (history.Go()) {
        }
        EntrySet all(3);
        for (EntryNumber entry = 0; entry < 3; ++entry)
            all.Add(entry);
        Overview->ShowHistory(history, result.Book.Entries, EntrySet(3), all);
        HistoryTable* const marks = Table("lvMarks");
        QCOMPARE(Column(marks, 0), QStringList({"0", "1", "2"}));
        marks->sortByColumn(1, Qt::AscendingOrder);
        QCOMPARE(Column(marks, 0), QStringList({"0", "2", "1"}));
        Overview->ShowNothing();
    }

    void MarksSayWhichTheyAre() {
        Story.Entries().SetComment(3, "oil");
        Overview->ShowMarks(HistoryOfStory::SetOf({3}), HistoryOfStory::SetOf({3, 5}));
        Story.Entries().SetComment(3, "");
        const HistoryTable* const marks = Table("lvMarks");
        QCOMPARE(Column(marks, 0), QStringList({"3", "5"}));
        QCOMPARE(Column(marks, 3).at(1), QString("Highlighted"));
    }

    void OfVeryManyMarksTheFirstAreShown() {
        std::vector<std::string> lines;
        for (int line = 0; line < 100'002; ++line)
            lines.push_back(Header("STIB:    On", "20.11.2010 08:00:00"));
        ReadResult result;
        ReadText(Lines(lines), result);
        LogbookHistory history(result.Book, {});
        while (history.Go()) {
        }
        EntrySet all(100'002);
        for (EntryNumber entry = 0; entry < 100'002; ++entry)
            all.Add(entry);
        Overview->ShowHistory(history, result.Book.Entries, EntrySet(100'002), all);
        QCOMPARE(Table("lvMarks")->model()->rowCount(), 100'000);
        QCOMPARE(Part<QLabel>("lblMarks")->text(), QString("The first 100000 of 100002"));
        Overview->SetLanguage({Language::German});
        QCOMPARE(Part<QLabel>("lblMarks")->text(), QString("Die ersten 100000 von 100002"));
        Overview->ShowNothing();
    }

    void RowsAreCopiedAsText() {
        HistoryTable* const errors = Errors();
        errors->selectAll();
        QApplication::setActiveWindow(Overview.get());
        errors->setFocus();
        QTest::keyClick(errors, Qt::Key_C, Qt::ControlModifier);
        const QStringList lines = QApplication::clipboard()->text().split('\n');
        QCOMPARE(lines.size(), 5); // the header, three rows, and the end of the last line
        QVERIFY(lines[0].startsWith("Entries\tError\tEnglish\tGerman\t"));
        QVERIFY(lines[1].startsWith("3\tP7\tno text\tno text\t20.11.2010 10:30:00\t20.11.2010 08:10:00\t"));
        for (int line = 0; line < 4; ++line)
            QCOMPARE(lines[line].count('\t'), 10);
    }

    void OrdersNeedAnError() {
        const auto enabled = [&](const char* name) { return Part<QPushButton>(name)->isEnabled(); };
        QVERIFY(!enabled("cmdGoTo"));
        Table("lvSessions")->selectRow(0);
        QVERIFY(enabled("cmdGoTo"));
        QVERIFY(!enabled("cmdNext"));
        QVERIFY(!enabled("cmdRemoveAll"));
        Errors()->selectRow(1);
        for (const char* const name :
             {"cmdGoTo", "cmdNext", "cmdPrevious", "cmdHighlightAll", "cmdRemoveAll"})
            QVERIFY2(enabled(name), name);
        Part<QTabWidget>("tabTables")->setCurrentIndex(2);
        QVERIFY(!enabled("cmdRemoveAll"));
    }

    void OrdersNameTheError() {
        Errors()->selectRow(1);
        const QSignalSpy occurrences(Overview.get(), &frmOverview::OccurrenceWanted);
        const QSignalSpy highlighted(Overview.get(), &frmOverview::HighlightAllWanted);
        const QSignalSpy removed(Overview.get(), &frmOverview::RemoveAllWanted);
        const QSignalSpy entries(Overview.get(), &frmOverview::EntryWanted);
        for (const char* const name :
             {"cmdNext", "cmdPrevious", "cmdHighlightAll", "cmdRemoveAll", "cmdGoTo"})
            QTest::mouseClick(Part<QPushButton>(name), Qt::LeftButton);
        QCOMPARE(occurrences.size(), 2);
        QCOMPARE(occurrences[0][0].value<std::string>(), std::string("P9"));
        QCOMPARE(occurrences[0][1].value<SearchDirection>(), SearchDirection::Down);
        QCOMPARE(occurrences[1][1].value<SearchDirection>(), SearchDirection::Up);
        QCOMPARE(highlighted[0][0].value<std::string>(), std::string("P9"));
        QCOMPARE(removed[0][0].value<std::string>(), std::string("P9"));
        QCOMPARE(entries[0][0].value<EntryNumber>(), EntryNumber{6});
    }

    void ThePopupHasTheOrdersAndSorts() {
        HistoryTable* const errors = Errors();
        errors->selectRow(1);
        emit errors->PopupWanted(QPoint(5, 5));
        auto* const popup = Overview->findChild<QMenu*>("mnuOverviewPopup");
        QVERIFY(popup != nullptr);
        QStringList texts;
        for (const QAction* const item : popup->actions())
            texts << item->text();
        QCOMPARE(texts, QStringList({"&Go to entry", "&Previous", "&Next", "&Highlight all", "&Remove all",
                                     "&Sort by"}));
        const auto sorts = popup->findChild<QMenu*>("mnuOverviewSort")->actions();
        QCOMPARE(sorts.size(), 22);
        sorts[3]->trigger(); // the key, descending
        QCOMPARE(Column(errors, 1), QStringList({"PLC/COOLANT low", "P9", "P7"}));
        const QSignalSpy removed(Overview.get(), &frmOverview::RemoveAllWanted);
        popup->actions()[4]->trigger();
        QCOMPARE(removed.size(), 1);
        popup->close();
    }

    void KeysAreThoseOfTheMainWindow() {
        const QSignalSpy undo(Overview.get(), &frmOverview::UndoWanted);
        const QSignalSpy redo(Overview.get(), &frmOverview::RedoWanted);
        const QSignalSpy help(Overview.get(), &frmOverview::HelpWanted);
        const QSignalSpy hidden(Overview.get(), &frmOverview::Hidden);
        Press(Qt::Key_Z, Qt::ControlModifier);
        Press(Qt::Key_Y, Qt::ControlModifier);
        Press(Qt::Key_F1);
        QCOMPARE(undo.size(), 1);
        QCOMPARE(redo.size(), 1);
        QCOMPARE(help.size(), 1);
        Press(Qt::Key_Escape);
        QCOMPARE(hidden.size(), 1);
    }

    void KeysTurnTheTabs() {
        auto* const tabs = Part<QTabWidget>("tabTables");
        Press(Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(tabs->currentIndex(), 1);
        QVERIFY(Table("lvErrors")->hasFocus());
        Press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(tabs->currentIndex(), 0);
        Press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(tabs->currentIndex(), 2);
        Press(Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(tabs->currentIndex(), 0);
    }

    void TheErrorOfTheListIsSelectedUnlessAPersonIsAtWorkHere() {
        QApplication::setActiveWindow(Overview.get());
        Overview->ShowSelection("1 row", 1); // it was just opened
        QVERIFY(!Table("lvErrors")->SelectedRecord().has_value());
        Press(Qt::Key_Tab, Qt::ControlModifier); // seen only now
        QCOMPARE(Table("lvErrors")->SelectedRecord(), std::optional<std::size_t>(1));
        Table("lvErrors")->selectRow(0);
        Overview->ShowSelection("1 row", 2);
        QCOMPARE(Table("lvErrors")->SelectedRecord(), std::optional<std::size_t>(0));
        QWidget list;
        list.show();
        QApplication::setActiveWindow(&list);
        Overview->ShowSelection("1 row", 2);
        QCOMPARE(Table("lvErrors")->SelectedRecord(), std::optional<std::size_t>(2));
        Overview->ShowSelection("no error", {});
        QCOMPARE(Table("lvErrors")->SelectedRecord(), std::optional<std::size_t>(2));
    }

    void TextsOfTheErrorAreInBothLanguages() {
        Errors()->selectRow(0);
        QCOMPARE(Part<QPlainTextEdit>("txErrorText")->toPlainText(),
                 QString("Data: P7 door\n\nEnglish: no text\n\nGerman: no text"));
        Overview->SetLanguage({Language::German});
        QCOMPARE(Part<QPlainTextEdit>("txErrorText")->toPlainText(),
                 QString("Inhalt: P7 door\n\nDeutsch: kein Text\n\nEnglisch: kein Text"));
    }

    void EveryControlHasAName() {
        for (const Language language : {Language{Language::English}, Language{Language::German}}) {
            Open(language);
            for (int tab = 0; tab < 3; ++tab) {
                Part<QTabWidget>("tabTables")->setCurrentIndex(tab);
                int reached = 0;
                for (QWidget* control = Overview->nextInFocusChain(); control != Overview.get();
                     control = control->nextInFocusChain()) {
                    if ((control->focusPolicy() & Qt::TabFocus) == 0 || !control->isVisibleTo(Overview.get()))
                        continue;
                    ++reached;
                    QVERIFY2(
                        !QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty() ||
                            control->inherits("QTabBar") || control->inherits("QSplitterHandle"),
                        qPrintable(control->metaObject()->className() + (' ' + control->objectName())));
                }
                QVERIFY(reached >= 6);
            }
        }
    }

    // Whatever reads the screen finds the rows of the tables.
    void TablesAreInTheAccessibilityTree() {
        Errors();
        QAccessibleInterface* const table = QAccessible::queryAccessibleInterface(Table("lvErrors"));
        QVERIFY(table->tableInterface() != nullptr);
        QCOMPARE(table->tableInterface()->rowCount(), 3);
        QCOMPARE(table->tableInterface()->cellAt(0, 1)->text(QAccessible::Name), QString("P7"));
        QCOMPARE(table->tableInterface()->columnDescription(1), QString("Error"));
    }

    void AccessKeysDiffer() {
        for (const Language language : {Language{Language::English}, Language{Language::German}}) {
            Open(language);
            QStringList keys;
            for (const auto* const button : Overview->findChildren<QPushButton*>())
                keys << button->shortcut().toString();
            QCOMPARE(keys.size(), 8);
            QCOMPARE(keys.removeDuplicates(), 0);
            QVERIFY(!keys.contains(QString()));
        }
    }

    void StandsOnItsScreen_data() {
        QTest::addColumn<int>("screen");
        QTest::addColumn<int>("points");
        for (int screen = 0; screen < static_cast<int>(QGuiApplication::screens().size()); ++screen)
            for (const int points : {0, 18})
                QTest::addRow("%d wide, %d points", QGuiApplication::screens()[screen]->size().width(),
                              points)
                    << screen << points;
    }
    void StandsOnItsScreen() {
        QFETCH(int, screen);
        QFETCH(int, points);
        QFont font = Font;
        if (points > 0)
            font.setPointSize(points);
        QApplication::setFont(font);
        const QRect place = QGuiApplication::screens()[screen]->availableGeometry();
        for (const Language language : {Language{Language::English}, Language{Language::German}}) {
            Open(language);
            const QSize least = Overview->minimumSizeHint();
            QVERIFY2(least.width() <= place.width() && least.height() <= place.height(),
                     qPrintable(QString("%1 x %2").arg(least.width()).arg(least.height())));
            Overview->setGeometry(
                QRect(place.topLeft(), least.expandedTo({920, 400}).boundedTo(place.size())));
            QApplication::processEvents();
            for (const auto* const button : Overview->findChildren<QPushButton*>()) {
                QVERIFY(button->width() >= button->minimumSizeHint().width());
                // The others can be scrolled to.
                if (button->parentWidget() != Overview.get() && place.width() < 920)
                    continue;
                const QRect there(button->mapTo(Overview.get(), QPoint()), button->size());
                QVERIFY2(Overview->rect().contains(there), qPrintable(QString("%1 at %2, %3 in %4 x %5")
                                                                          .arg(button->objectName())
                                                                          .arg(there.right())
                                                                          .arg(there.bottom())
                                                                          .arg(Overview->width())
                                                                          .arg(Overview->height())));
            }
        }
    }

  private:
    void Open(Language language) {
        Overview = std::make_unique<frmOverview>(nullptr);
        Overview->SetLanguage(language);
        Overview->ShowHistory(Story.History(), Story.Entries(), HistoryOfStory::SetOf({3}),
                              HistoryOfStory::SetOf({5}));
        Overview->show();
        QVERIFY(QTest::qWaitForWindowExposed(Overview.get()));
    }
    template <class T>
    T* Part(const char* name) const {
        return Overview->findChild<T*>(name);
    }
    HistoryTable* Table(const char* name) const { return Part<HistoryTable>(name); }
    HistoryTable* Errors() const {
        Part<QTabWidget>("tabTables")->setCurrentIndex(1);
        return Table("lvErrors");
    }
    QStringList Headers(const char* name) const {
        QStringList headers;
        const QAbstractItemModel* const model = Table(name)->model();
        for (int column = 0; column < model->columnCount(); ++column)
            headers << model->headerData(column, Qt::Horizontal).toString();
        return headers;
    }
    static QStringList Column(const HistoryTable* table, int column) {
        QStringList cells;
        for (int row = 0; row < table->model()->rowCount(); ++row)
            cells << table->model()->index(row, column).data().toString();
        return cells;
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QApplication::setActiveWindow(Overview.get());
        QTest::keyClick(Overview.get(), key, modifiers);
    }

    const QFont Font = QApplication::font();
    HistoryOfStory Story;
    std::unique_ptr<frmOverview> Overview;
};

static int RunOverviewOnScreens(int argc, char** argv) {
    const Screens screens({{1366, 768}, {1920, 1080}, {960, 540}, {853, 600}});
    return RunWindowTest<frmOverviewTest>(argc, argv);
}
QORVIX_WINDOW_TEST_RUN(frmOverviewTest, RunOverviewOnScreens)
#include "frmOverviewTest.moc"
