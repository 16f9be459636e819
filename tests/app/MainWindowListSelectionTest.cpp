// SPDX-License-Identifier: MIT
#include "app/MainWindowTest.h"

#include "support/WindowTest.h"

#include <QMouseEvent>

class MainWindowListSelectionTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void init() { StartAfresh(); }
    void cleanup() { Window.reset(); }

    void SelectedRowIsTheCurrentOneOrTheFirstThatIsSelected() {
        Window->OpenLogbook(FileOfErrors(3));
        QVERIFY(!List()->SelectedRow());
        List()->selectRow(1);
        QCOMPARE(List()->SelectedRow(), std::optional(1));
        List()->selectionModel()->setCurrentIndex(List()->model()->index(2, 0),
                                                  QItemSelectionModel::NoUpdate);
        QCOMPARE(List()->SelectedRow(), std::optional(1));
        List()->clearSelection();
        QVERIFY(!List()->SelectedRow());
    }

    void HomeAndEndGoToTheFirstAndTheLastRow() {
        Window->OpenLogbook(FileOfErrors(500));
        for (const Qt::KeyboardModifiers ctrl : {Qt::NoModifier, Qt::ControlModifier}) {
            List()->SelectAndShow(250);
            PressAndCompare(Qt::Key_End, ctrl, {{499, 499}});
            PressAndCompare(Qt::Key_Home, ctrl, {{0, 0}});
            PressAndCompare(Qt::Key_End, ctrl | Qt::ShiftModifier, {{0, 499}});
            QVERIFY(List()->viewport()->rect().contains(RowPoint(499)));
            PressAndCompare(Qt::Key_End, ctrl, {{499, 499}});
            List()->SelectAndShow(250);
            PressAndCompare(Qt::Key_Home, ctrl | Qt::ShiftModifier, {{0, 250}});
            QVERIFY(List()->viewport()->rect().contains(RowPoint(0)));
            // At the first row already, yet with others.
            PressAndCompare(Qt::Key_Home, ctrl, {{0, 0}});
        }
    }

    void ShiftBeginsWhereTheProgramSelected() {
        Window->OpenLogbook(FileOfErrors(50));
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, RowPoint(2));
        List()->SelectAndShow(20);
        PressAndCompare(Qt::Key_Down, Qt::ShiftModifier, {{20, 21}});
        List()->SelectRanges({{30, 30}}, 30);
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, Qt::ShiftModifier, RowPoint(25));
        QCOMPARE(List()->SelectedRanges(), RowRanges({{25, 30}}));
    }

    void ListOfOneRowHasKeys() {
        Window->OpenLogbook(FileOfErrors(1));
        for (const Qt::Key key :
             {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End})
            for (const Qt::KeyboardModifier modifier : {Qt::NoModifier, Qt::ShiftModifier})
                for (const bool isCurrent : {false, true}) {
                    List()->selectionModel()->clear();
                    if (isCurrent)
                        List()->SelectRanges({}, 0);
                    QVERIFY(List()->SelectedRanges().empty());
                    PressAndCompare(key, modifier, {{0, 0}});
                }
        QCOMPARE(Content(), QString("0\n"));
        // With Ctrl the arrows move without selecting.
        List()->SelectRanges({}, 0);
        PressAndCompare(Qt::Key_Down, Qt::ControlModifier, {});
    }

    void ArrowsBeginAtTheCurrentRow() {
        Window->OpenLogbook(FileOfErrors(5));
        List()->SelectRanges({}, 0);
        PressAndCompare(Qt::Key_Down, Qt::NoModifier, {{0, 0}});
        PressAndCompare(Qt::Key_Down, Qt::NoModifier, {{1, 1}});
        PressAndCompare(Qt::Key_Down, Qt::ControlModifier, {{1, 1}});
        QCOMPARE(List()->currentIndex().row(), 2);
        PressAndCompare(Qt::Key_Down, Qt::NoModifier, {{3, 3}});
    }

    void TypedLettersDoNothing() {
        Window->OpenLogbook(
            File("a.log", {Header("BERR:    a"), Header("RESET:"), Header("INFO:    GEO AXIS")}));
        QCOMPARE(Column(0), QStringList({"Fatal", "Restart", "Info"}));
        List()->SelectAndShow(0);
        const LogbookRows before = List()->Logbook()->Rows();
        QTest::keyClicks(List(), "res");
        QCOMPARE(List()->SelectedRow(), std::optional(0));
        QVERIFY(List()->Logbook()->Rows() == before);
    }

    void DragThatEndsOutsideShowsItsRow() {
        Window->OpenLogbook(FileOfErrors(4));
        QWidget* const rows = List()->viewport();
        QTest::mousePress(rows, Qt::LeftButton, {}, RowPoint(2));
        Drag(RowPoint(1));
        QTest::mouseRelease(rows, Qt::LeftButton, {}, QPoint(30, -40));
        QCOMPARE(List()->SelectedRow(), std::optional(1));
        QCOMPARE(Content(), QString("1\n"));

        // A click beside the rows is none on a row.
        Window->RefreshContentText(0);
        QTest::mouseClick(rows, Qt::LeftButton, Qt::ControlModifier, rows->rect().bottomLeft());
        QCOMPARE(List()->SelectedRow(), std::optional(1));
        QCOMPARE(Content(), QString("0\n"));
    }

  private:
    // Moves the mouse, whose left button is down.
    void Drag(QPoint place) const {
        QMouseEvent move(QEvent::MouseMove, place, List()->viewport()->mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(List()->viewport(), &move);
    }

    void PressAndCompare(Qt::Key key, Qt::KeyboardModifiers modifiers, const RowRanges& selected) const {
        QTest::keyClick(List(), key, modifiers);
        QCOMPARE(List()->SelectedRanges(), selected);
    }

    QString Content() const { return Find<QPlainTextEdit>("txContent")->toPlainText(); }
};

QORVIX_WINDOW_TEST(MainWindowListSelectionTest)
#include "MainWindowListSelectionTest.moc"
