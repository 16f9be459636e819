// SPDX-License-Identifier: MIT
#include "dialogs/DialogList.h"

#include "dialogs/DialogTest.h"
#include "support/WindowTest.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>

#include <memory>

class DialogListTest : public DialogTest {
    Q_OBJECT

  private slots:
    void init() {
        Window = std::make_unique<QWidget>();
        List = new DialogList(3, Window.get());
        for (int column = 0; column < 3; ++column)
            List->setColumnWidth(column, 400);
        List->resize(500, 200);
        Window->show();
    }
    void cleanup() { Window.reset(); }

    void RowBehindTheRemovedOnesIsSelected() {
        Fill(7);
        Select(*List, {1, 2, 4});
        List->RemoveSelectedRows();
        QCOMPARE(Firsts(), QStringList({"0", "3", "5", "6"}));
        QCOMPARE(Selected(), QList<int>({2}));
        List->RemoveSelectedRows();
        QCOMPARE(Firsts(), QStringList({"0", "3", "6"}));
        Press(Qt::Key_Down);
        QCOMPARE(Selected(), QList<int>({2}));
        List->RemoveSelectedRows();
        QCOMPARE(Selected(), QList<int>({1}));
        List->selectAll();
        List->RemoveSelectedRows();
        QCOMPARE(List->topLevelItemCount(), 0);
        List->RemoveSelectedRows();
    }

    void WithoutASelectedRowNoneIsRemoved() {
        Fill(2);
        List->setCurrentItem(List->topLevelItem(1), 0, QItemSelectionModel::NoUpdate);
        List->RemoveSelectedRows();
        QCOMPARE(List->topLevelItemCount(), 2);
        QCOMPARE(Selected(), QList<int>());
    }

    void SidewaysTheListStaysWhereItIs() {
        Fill(60);
        QScrollBar* const bar = List->horizontalScrollBar();
        QTRY_VERIFY(bar->maximum() > 600);
        bar->setValue(300);
        for (const int x : {1, 250, List->viewport()->width() - 2}) {
            QTest::mouseClick(List->viewport(), Qt::LeftButton, {},
                              {x, List->visualItemRect(List->topLevelItem(2)).center().y()});
            QCOMPARE(Selected(), QList<int>({2}));
            QCOMPARE(bar->value(), 300);
        }
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_End, Qt::Key_Home, Qt::Key_PageDown}) {
            Press(key);
            QCOMPARE(bar->value(), 300);
        }
        List->SelectAndShow(List->topLevelItem(59));
        QVERIFY(List->viewport()->rect().intersects(List->visualItemRect(List->topLevelItem(59))));
        QCOMPARE(bar->value(), 300);
        List->RemoveSelectedRows();
        QCOMPARE(bar->value(), 300);
        std::vector<std::uint32_t> backwards;
        for (std::uint32_t row = 59; row-- > 0;)
            backwards.push_back(row);
        List->Reorder(backwards);
        QCOMPARE(Selected(), QList<int>({0}));
        QCOMPARE(bar->value(), 300);
    }

    void LeftAndRightScrollSideways() {
        Fill(3);
        Select(*List, {1});
        QTRY_VERIFY(List->horizontalScrollBar()->maximum() > 600);
        Press(Qt::Key_Right);
        QVERIFY(List->horizontalScrollBar()->value() > 0);
        Press(Qt::Key_Left);
        QCOMPARE(List->horizontalScrollBar()->value(), 0);
        QCOMPARE(Selected(), QList<int>({1}));
    }

    void HomeAndEndGoToTheFirstAndTheLastRow() {
        Fill(60);
        for (const Qt::KeyboardModifiers ctrl : {Qt::NoModifier, Qt::ControlModifier}) {
            List->SelectAndShow(List->topLevelItem(30));
            Press(Qt::Key_End, ctrl);
            QCOMPARE(Selected(), QList<int>({59}));
            Press(Qt::Key_Home, ctrl);
            QCOMPARE(Selected(), QList<int>({0}));
            Press(Qt::Key_End, ctrl | Qt::ShiftModifier);
            QCOMPARE(Selected().size(), 60);
            Press(Qt::Key_End, ctrl);
            QCOMPARE(Selected(), QList<int>({59}));
        }
    }

    void ListOfOneRowHasKeys() {
        Fill(1);
        for (const Qt::Key key :
             {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End}) {
            List->clearSelection();
            Press(key);
            QCOMPARE(Selected(), QList<int>({0}));
        }
    }

    void TypedLettersDoNothing() {
        Fill(9);
        List->topLevelItem(0)->setCheckState(0, Qt::Checked);
        List->SelectAndShow(List->topLevelItem(0));
        QTest::keyClicks(List, "5");
        QCOMPARE(Selected(), QList<int>({0}));
    }

    void PopupKeyWithoutASelectedRowIsForTheCurrentOne() {
        Fill(3);
        QSignalSpy popup(List, &DialogList::PopupWanted);
        List->setCurrentItem(List->topLevelItem(1), 0, QItemSelectionModel::NoUpdate);
        List->clearSelection();
        Press(Qt::Key_Menu);
        QCOMPARE(Selected(), QList<int>({1}));
        List->clearSelection();
        Press(Qt::Key_F10, Qt::ShiftModifier);
        QCOMPARE(Selected(), QList<int>({1}));
        QCOMPARE(popup.size(), 2);
    }

  private:
    void Fill(int rows) {
        for (int row = 0; row < rows; ++row)
            new QTreeWidgetItem(List, {QString::number(row), "second", "third"});
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(List, key, modifiers);
    }

    QStringList Firsts() const {
        QStringList texts;
        for (int row = 0; row < List->topLevelItemCount(); ++row)
            texts << List->topLevelItem(row)->text(0);
        return texts;
    }

    QList<int> Selected() const {
        QList<int> rows;
        for (int row = 0; row < List->topLevelItemCount(); ++row)
            if (List->topLevelItem(row)->isSelected())
                rows << row;
        return rows;
    }

    std::unique_ptr<QWidget> Window;
    DialogList* List = nullptr;
};

QORVIX_WINDOW_TEST(DialogListTest)
#include "DialogListTest.moc"
