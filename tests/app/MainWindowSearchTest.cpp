// SPDX-License-Identifier: MIT
#include "app/MainWindowTest.h"

#include "dialogs/frmSearchForString.h"
#include "filter/FilterStorage.h"
#include "list/QtText.h"
#include "support/WindowTest.h"

#include <QCheckBox>
#include <QImage>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

class MainWindowSearchTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void init() { StartAfresh(); }
    void cleanup() { Window.reset(); }

    void DialogFindsFromTheSelectedRowOn() {
        OpenWords();
        List()->SelectAndShow(1);
        FindByDialog({"axis"});
        QCOMPARE(SelectedRow(), 3);
        FindByDialog({"axis", true});
        QCOMPARE(SelectedRow(), 0);
        QVERIFY(MessageTexts.isEmpty());
    }

    void WithoutSelectedRowTheFirstOrTheLastRowIsIncluded() {
        OpenWords();
        FindByDialog({"axis"});
        QCOMPARE(SelectedRow(), 0);
        List()->clearSelection();
        FindByDialog({"restart", true});
        QCOMPARE(SelectedRow(), 4);
    }

    void NextAndPreviousFindTheSameAgain() {
        OpenWords();
        FindByDialog({"axis"});
        QTest::keyClick(Window.get(), Qt::Key_F3);
        QCOMPARE(SelectedRow(), 3);
        QTest::keyClick(Window.get(), Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(SelectedRow(), 0);
        // Upwards, next and previous change places.
        List()->SelectAndShow(4);
        FindByDialog({"axis", true});
        QCOMPARE(SelectedRow(), 3);
        Item("mnuExtrasFindNext")->trigger();
        QCOMPARE(SelectedRow(), 0);
        Item("mnuExtrasFindPrev")->trigger();
        QCOMPARE(SelectedRow(), 3);
    }

    void EndsAreToldInBothLanguages() {
        for (const int number : {0, 1}) {
            WriteLanguage(*Settings, {number});
            OpenWindow();
            OpenWords();
            const QString end = number == 0 ? "End reached" : "Ende erreicht";
            const QString begin = number == 0 ? "Begin reached" : "Anfang erreicht";
            AnswerMessages(6);
            List()->SelectAndShow(3);
            FindByDialog({"axis"});
            QCOMPARE(MessageTexts, QStringList({end}));
            QCOMPARE(SelectedRow(), 3);
            Item("mnuExtrasFindNext")->trigger();
            List()->SelectAndShow(0);
            Item("mnuExtrasFindPrev")->trigger();
            QCOMPARE(MessageTexts, QStringList({end, end, begin}));
            QCOMPARE(SelectedRow(), 0);

            // At the ends of the list at once, also where that row matches; the row stays selected.
            FindByDialog({"axis", true});
            QCOMPARE(SelectedRow(), 0);
            List()->SelectAndShow(4);
            Item("mnuExtrasFindPrev")->trigger();
            QCOMPARE(SelectedRow(), 4);
            FindByDialog({"restart"});
            QCOMPARE(MessageTexts, QStringList({end, end, begin, begin, end, end}));
            QCOMPARE(SelectedRow(), 4);
        }
    }

    void EmptyListIsNoFault() {
        AnswerMessages(2);
        FindByDialog({"a"});
        FindByDialog({"a", true});
        QCOMPARE(MessageTexts, QStringList({"End reached", "Begin reached"}));
    }

    void OptionsHoldForTheNextSearchesToo() {
        OpenWords();
        AnswerMessages(2);
        FindByDialog({"AXIS", false, 0, 1});
        QCOMPARE(MessageTexts, QStringList({"End reached"}));
        FindByDialog({"X", false, 1, 0});
        QCOMPARE(SelectedRow(), 0);
        Item("mnuExtrasFindNext")->trigger();
        QCOMPARE(SelectedRow(), 3);
        Item("mnuExtrasFindNext")->trigger();
        QCOMPARE(MessageTexts.size(), 2);
    }

    void SenderNameTimeAndIndexAreNotSearched() {
        OpenWords();
        AnswerMessages(4);
        for (const char* text : {"GEO", "MODULE", "2010", "12:34"})
            FindByDialog({text});
        QCOMPARE(MessageTexts.size(), 4);
        QVERIFY(List()->SelectedRanges().empty());
    }

    void CommentsAreSearched() {
        OpenWords();
        Book->Entries.SetComment(2, "seen by Jürgen");
        FindByDialog({"JÜRGEN"});
        QCOMPARE(SelectedRow(), 2);
    }

    void FollowsTheOrderOfTheList() {
        OpenWords();
        ClickHeader(5);
        ClickHeader(5);
        QCOMPARE(Cell(0, 5), QString("4"));
        FindByDialog({"axis"});
        QCOMPARE(SelectedRow(), 1);
        QCOMPARE(Cell(1, 5), QString("3"));
        Item("mnuExtrasFindNext")->trigger();
        QCOMPARE(Cell(SelectedRow(), 5), QString("0"));
    }

    void HitAloneIsSelected() {
        OpenWords();
        List()->SelectRanges({{0, 1}, {4, 4}}, 1);
        FindByDialog({"axis"});
        QCOMPARE(List()->SelectedRanges(), RowRanges({{3, 3}}));
    }

    void WithoutAHitTheSelectionIsAsItWas() {
        OpenWords();
        List()->SelectRanges({{0, 1}, {4, 4}}, 1);
        AnswerMessages(1);
        FindByDialog({"no such text"});
        QCOMPARE(List()->SelectedRanges(), RowRanges({{0, 1}, {4, 4}}));
        QCOMPARE(List()->currentIndex().row(), 1);
        QCOMPARE(MessageTexts, QStringList({"End reached"}));
    }

    void NextAndPreviousAreEnabledByAText() {
        OpenWords();
        QVERIFY(Item("mnuExtrasSearch")->isEnabled());
        FindByDialog({"axis"}, "cmdCancel");
        QVERIFY(!NextIsEnabled());
        QVERIFY(List()->SelectedRanges().empty());
        FindByDialog({"axis"});
        QVERIFY(NextIsEnabled());
        // Nothing of a cancelled dialog is kept.
        FindByDialog({""}, "cmdCancel");
        QVERIFY(NextIsEnabled());
        FindByDialog({""});
        QVERIFY(!NextIsEnabled());
        AnswerMessages(1);
        FindByDialog({"no such text"});
        QVERIFY(NextIsEnabled());
    }

    void DialogShowsTheLastSearch() {
        OpenWords();
        FindByDialog({"drive", false, 0, 0});
        QCOMPARE(Seen, SearchState());
        FindByDialog({"axis", true, 1, 1}, "cmdCancel");
        QCOMPARE(Seen, (SearchState{"drive", false, 0, 0}));
        FindByDialog({"FATAL", true, 0, 0});
        List()->SelectAndShow(4);
        FindByDialog({"Axis", true, 0, 1});
        QCOMPARE(Seen, (SearchState{"FATAL", true, 0, 0}));
        FindByDialog({"a"}, "cmdCancel");
        QCOMPARE(Seen, (SearchState{"Axis", true, 0, 1}));
        QCOMPARE(MessageTexts.size(), 0);
    }

    void HitIsSeenWithThreeRowsBeyondIt() {
        Window->OpenLogbook(FileOfErrors(1000));
        List()->SelectAndShow(0);
        FindByDialog({"500"});
        QCOMPARE(SelectedRow(), 500);
        QVERIFY(IsSeen(500) && IsSeen(503));
        QVERIFY(!IsSeen(504));
        FindByDialog({"200", true});
        QCOMPARE(SelectedRow(), 200);
        QVERIFY(IsSeen(200) && IsSeen(197));
        QVERIFY(!IsSeen(196));
        // Also where it comes from the other side, and at the ends.
        List()->scrollToBottom();
        FindByDialog({"300"});
        QVERIFY(IsSeen(300) && IsSeen(303));
        FindByDialog({"999"});
        QVERIFY(IsSeen(999));
        FindByDialog({"0", true});
        List()->SelectAndShow(1);
        Item("mnuExtrasFindNext")->trigger();
        QCOMPARE(SelectedRow(), 0);
        QVERIFY(IsSeen(0));
    }

    void HitDoesNotScrollSideways() {
        OpenWords();
        List()->setColumnWidth(1, 3000);
        QTRY_VERIFY(List()->horizontalScrollBar()->maximum() > 500);
        List()->horizontalScrollBar()->setValue(500);
        FindByDialog({"axis"});
        QCOMPARE(List()->horizontalScrollBar()->value(), 500);
    }

    void ContentPaneShowsTheRowLineByLine() {
        Window->OpenLogbook(
            File("a.log", {Header("INFO:    GEO AXIS"), "first", " second", Header("BERR:    x")}));
        Book->Entries.SetComment(0, "seen | twice");
        Item("mnuVContent")->trigger();
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, RowPoint(0));
        QCOMPARE(Content(), QString("first\nsecond\n\nseen\ntwice"));
        QTest::keyClick(List(), Qt::Key_Down);
        QCOMPARE(Content(), QString("x\n"));
        QTest::mouseClick(List()->viewport(), Qt::RightButton, {}, RowPoint(0));
        Find<QMenu>("mnuPopup")->close();
        QCOMPARE(Content(), QString("first\nsecond\n\nseen\ntwice"));
    }

    void ContentPaneIsFilledWhileHiddenAndBySearches() {
        OpenWords();
        FindByDialog({"restart"});
        QCOMPARE(Content(), QString("\n"));
        FindByDialog({"axis", true});
        QCOMPARE(Content(), QString("Axis X 12\n"));
        // A key without a selected row leaves it.
        List()->clearSelection();
        QTest::keyClick(List(), Qt::Key_Shift);
        QCOMPARE(Content(), QString("Axis X 12\n"));
        Window->OpenLogbook(FileOfErrors(3));
        QCOMPARE(Content(), QString());
    }

    void TagViewerFollowsTheList() {
        StoreHighlightOf("Axis");
        OpenWords();
        QTRY_COMPARE(Marks(), QString("c..c."));
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, RowPoint(1));
        QTRY_COMPARE(Marks(), QString("cr.c."));
        QTest::keyClick(List(), Qt::Key_Down);
        QTRY_COMPARE(Marks(), QString("c.rc."));
        FindByDialog({"axis"});
        QTRY_COMPARE(Marks(), QString("c..r."));
        ClickHeader(5);
        ClickHeader(5);
        QTRY_COMPARE(Marks(), QString(".r..c"));
        Window->ApplyFilter();
        QTRY_COMPARE(Marks(), QString("c..r."));
        List()->RemoveFromList(List()->SelectedRanges());
        QTRY_COMPARE(Marks(), QString("c..r"));
        const auto* viewer = Find<QWidget>("pbTagViewer");
        QTest::mouseClick(const_cast<QWidget*>(viewer), Qt::LeftButton, {},
                          QPoint(5, viewer->height() / 4 + 2));
        QTRY_COMPARE(Marks(), QString("cr.."));
        Document->ReadAndShowLogbook("", "");
        QTRY_COMPARE(Marks(), QString());
    }

  private:
    // Five rows; 0 and 3 speak of an axis.
    void OpenWords() {
        Window->OpenLogbook(
            File("words.log", {Header("BERR:    Axis X"), Header("INFO:    GEO MODULE"), "no drive",
                               Header("BERR:    drive"), Header("BERR:    Axis X 12"), Header("RESET:")}));
        QCOMPARE(List()->model()->rowCount(), 5);
    }

    // Fills the find dialog, remembering what it showed, and presses a button.
    void FindByDialog(const SearchState& search, const char* button = "cmdOK") {
        AnswerDialog(search, button);
        Item("mnuExtrasSearch")->trigger();
        QApplication::setActiveWindow(Window.get());
    }

    void AnswerDialog(const SearchState& search, const char* button) {
        QTimer::singleShot(0, Person.get(), [this, search, button] {
            auto* dialog = qobject_cast<frmSearchForString*>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return AnswerDialog(search, button);
            auto* text = dialog->findChild<QLineEdit*>("tbSearchString");
            auto* up = dialog->findChild<QRadioButton*>("obAscending");
            auto* word = dialog->findChild<QCheckBox*>("checkboxWholeWord");
            auto* letterCase = dialog->findChild<QCheckBox*>("checkboxCaseSensitive");
            Seen = {text->text().toStdString(), up->isChecked(), word->isChecked(), letterCase->isChecked()};
            text->setText(QString::fromStdString(search.SearchText));
            (search.SearchUp ? up : dialog->findChild<QRadioButton*>("obDescending"))->setChecked(true);
            word->setChecked(search.SearchWholeWord != 0);
            letterCase->setChecked(search.SearchCaseSensitive != 0);
            dialog->findChild<QPushButton*>(button)->click();
        });
    }

    int SelectedRow() const { return List()->SelectedRow().value_or(-1); }
    bool NextIsEnabled() const {
        return Item("mnuExtrasFindNext")->isEnabled() && Item("mnuExtrasFindPrev")->isEnabled();
    }
    bool IsSeen(int row) const {
        return List()->viewport()->rect().contains(List()->visualRect(List()->model()->index(row, 0)));
    }
    QString Content() const { return Find<QPlainTextEdit>("txContent")->toPlainText(); }

    void StoreHighlightOf(const char* text) {
        std::vector<FilterDefinition> filters = DefaultFilters();
        filters.push_back(Filter(("H|0|" + std::string(text) + "|||1").c_str()));
        FilterLists lists = LoadFilters(*Settings, {});
        lists.Filters = std::move(filters);
        SaveFilters(*Settings, lists, "");
    }

    // The tag viewer's picture, a character a row: c(yan), r(ed) or "." in the middle of the row's part.
    QString Marks() const {
        const QImage picture = Find<QWidget>("pbTagViewer")->grab().toImage();
        QString marks;
        const int rows = List()->model()->rowCount();
        for (int row = 0; row < rows; ++row) {
            const QColor colour = picture.pixelColor(0, (2 * row + 1) * picture.height() / (2 * rows));
            marks += colour == QColor(Qt::cyan) ? 'c' : colour == QColor(Qt::red) ? 'r' : '.';
        }
        return marks;
    }

    SearchState Seen;
};

QORVIX_WINDOW_TEST(MainWindowSearchTest)
#include "MainWindowSearchTest.moc"
