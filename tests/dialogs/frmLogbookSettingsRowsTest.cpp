// SPDX-License-Identifier: MIT
#include "dialogs/LogbookSettingsTest.h"
#include "dialogs/frmFilterSettings.h"

#include "support/WindowTest.h"

#include <QComboBox>
#include <QTextDocument>

#include <optional>

class frmLogbookSettingsRowsTest : public LogbookSettingsTest {
    Q_OBJECT

  private slots:
    void init() { BeginWithoutSettings(); }

    void FirstRowIsSelectedAtOnce() {
        StoreFilters({"X|3|N938|ABC|PLC|1", "I|0||||1"});
        Open();
        QVERIFY(List().hasFocus() || Dialog->focusWidget() == &List());
        QCOMPARE(List().selectedItems(), QList<QTreeWidgetItem*>({List().topLevelItem(0)}));
        AnswerFilter(Filter("X|3|N938|ABC|PLC|1"), "H|2|N940||GEO|1");
        QTest::keyClick(&List(), Qt::Key_Menu);
        Choose(*Dialog, "mnuFilterEdit");
        QTRY_COMPARE(Answered, 1);
        QCOMPARE(Rows(List()), QStringList({"Warning/N940//GEO", "All entries///"}));
        Find<QMenu>(*Dialog, "mnuPopup")->close();
        QTest::keyClick(&List(), Qt::Key_Delete);
        QTest::keyClick(&List(), Qt::Key_Delete);
        QCOMPARE(Rows(List()), QStringList());
    }

    void ToolTipsWrapAndShowBlanksAsTheyAre() {
        const QString numbers = QString("1000,").repeated(60).chopped(1);
        StoreFilters({"X|3|  two  blanks |A  B| PLC|1", "X|8|" + numbers + "|||1"});
        Open();
        const auto tip = [this](int row, int column) {
            const QString text = List().topLevelItem(row)->toolTip(column);
            return text;
        };
        const auto shown = [&](int row, int column) {
            QTextDocument document;
            document.setHtml(tip(row, column));
            return document.toPlainText().remove(QChar(0x200B));
        };
        for (const int column : {FilterColumns::String, FilterColumns::Name, FilterColumns::Emitter})
            QCOMPARE(shown(0, column), List().topLevelItem(0)->text(column));
        QCOMPARE(shown(1, FilterColumns::String), numbers);
        QLabel label(tip(1, FilterColumns::String)); // as the tool tip is one
        label.setWordWrap(true);
        QVERIFY(label.sizeHint().width() < 100 * label.fontMetrics().horizontalAdvance('x'));
        QCOMPARE(tip(1, FilterColumns::Name), QString());
    }

    void SpaceTogglesTheCheckBox() {
        Open();
        Select(List(), {0});
        QTest::keyClick(&List(), Qt::Key_Space);
        QCOMPARE(Checks(), QList<bool>({false}));
    }

    void DoubleClickOnACheckBoxEditsNothing() {
        StoreFilters({"I|0||||1", "X|3||||0"});
        Open();
        Select(List(), {0});
        const QRect row = List().visualItemRect(List().topLevelItem(1));
        QStyleOptionViewItem option;
        option.initFrom(&List());
        option.rect = row;
        option.features = QStyleOptionViewItem::HasCheckIndicator;
        const QPoint box =
            List().style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &List()).center();
        QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, box);
        QVERIFY(!Find<QTimer>(*Dialog, "Timer1")->isActive());
        QCOMPARE(Checks().first(), true);

        // Beside the box it edits the row that was clicked.
        QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, RowPoint(List(), 1));
        QVERIFY(List().topLevelItem(1)->isSelected());
        QVERIFY(Find<QTimer>(*Dialog, "Timer1")->isActive());
        Find<QTimer>(*Dialog, "Timer1")->stop();
    }

    void PopupComesWithTheMouseUpOfTheRightButton() {
        Open();
        const auto* const popup = Find<QMenu>(*Dialog, "mnuPopup");
        QTest::mousePress(List().viewport(), Qt::RightButton, {}, RowPoint(List(), 0));
        QVERIFY(!popup->isVisible());
        QTest::mouseRelease(List().viewport(), Qt::RightButton, {}, RowPoint(List(), 0));
        QVERIFY(popup->isVisible());
    }

    void PopupComesWithItsKeys() {
        Open();
        auto* const popup = Find<QMenu>(*Dialog, "mnuPopup");
        QTest::keyClick(&List(), Qt::Key_Menu);
        QVERIFY(popup->isVisible());
        popup->close();
        QTest::keyClick(&List(), Qt::Key_F10, Qt::ShiftModifier);
        QVERIFY(popup->isVisible());
    }

    void AddedFilterIsActive() {
        Open();
        AnswerFilter(FilterDefinition(), "X|3|N938|ABC|PLC|1");
        Choose(*Dialog, "mnuFilterAdd");
        QVERIFY(QApplication::activeModalWidget() == Dialog.get());
        QTRY_COMPARE(Answered, 1);
        QVERIFY(!Find<QTimer>(*Dialog, "Timer1")->isActive());
        QCOMPARE(Rows(List()), QStringList({"All entries///", "Error/N938/ABC/PLC"}));
        QCOMPARE(Checks(), QList<bool>({true, true}));
        QCOMPARE(ActionTexts().last(), "Error: Removed from the list");
        QCOMPARE(StoredFilters(), QStringList());
        Click(*Dialog, "cmdOK");
        QCOMPARE(StoredFilters(), QStringList({"I|0||||1", "X|3|N938|ABC|PLC|1"}));
    }

    void SameFilterIsNotAddedAgain() {
        StoreFilters({"I|0||||0", "X|3|N938|ABC|PLC|1"});
        Open();
        AnswerFilter(FilterDefinition(), "X|3|N938|ABC|PLC|1");
        Choose(*Dialog, "mnuFilterAdd");
        QTRY_COMPARE(Answered, 1);
        AnswerFilter(FilterDefinition(), "I|0||||1");
        Choose(*Dialog, "mnuFilterAdd");
        QTRY_COMPARE(Answered, 2);
        QCOMPARE(List().topLevelItemCount(), 2);
        QCOMPARE(Checks(), QList<bool>({false, true}));
        AnswerFilter(FilterDefinition(), "H|0||||1");
        Choose(*Dialog, "mnuFilterAdd");
        QTRY_COMPARE(Answered, 3);
        QCOMPARE(List().topLevelItemCount(), 3);
    }

    void CancelledAddAddsNothing() {
        Open();
        AnswerFilter(FilterDefinition(), "X|3||||1", "cmdCancel");
        Choose(*Dialog, "mnuFilterAdd");
        QTRY_COMPARE(Answered, 1);
        QCOMPARE(List().topLevelItemCount(), 1);
    }

    void EditKeepsTheCheckBox_data() {
        QTest::addColumn<bool>("doubleClick");
        QTest::newRow("double click") << true;
        QTest::newRow("popup") << false;
    }

    void EditKeepsTheCheckBox() {
        QFETCH(bool, doubleClick);
        StoreFilters({"I|0||||1", "X|3|N938|ABC|PLC|0"});
        Open();
        AnswerFilter(Filter("X|3|N938|ABC|PLC|1"), "H|2|N940||GEO|1");
        if (doubleClick) {
            DoubleClick(List(), 1);
        } else {
            Select(List(), {1});
            Choose(*Dialog, "mnuFilterEdit");
        }
        QTRY_COMPARE(Answered, 1);
        QCOMPARE(Rows(List()), QStringList({"All entries///", "Warning/N940//GEO"}));
        QCOMPARE(Checks(), QList<bool>({true, false}));
        QCOMPARE(ActionTexts().last(), "Warning: Highlighted");
    }

    void CancelledEditChangesNothing() {
        StoreFilters({"X|4|N938|ABC|PLC|0"});
        Open();
        Select(List(), {0});
        AnswerFilter(std::nullopt, "H|2|N940||GEO|1", "cmdCancel");
        Choose(*Dialog, "mnuFilterEdit");
        QTRY_COMPARE(Answered, 1);
        QCOMPARE(Rows(List()), QStringList({"System error/N938/ABC/PLC"}));
    }

    void EditWithoutASelectedRowDoesNothing() {
        Open();
        List().clearSelection();
        Choose(*Dialog, "mnuFilterEdit");
        QTRY_VERIFY(!Find<QTimer>(*Dialog, "Timer1")->isActive());
        QCoreApplication::processEvents();
        QVERIFY(QApplication::activeModalWidget() == Dialog.get());
        QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, List().viewport()->rect().bottomRight());
        QTRY_VERIFY(!Find<QTimer>(*Dialog, "Timer1")->isActive());
        QVERIFY(QApplication::activeModalWidget() == Dialog.get());
    }

    void DuplicateMadeByEditStays() {
        StoreFilters({"I|0||||1", "X|3||||1"});
        Open();
        Select(List(), {1});
        AnswerFilter(std::nullopt, "I|0||||1");
        Choose(*Dialog, "mnuFilterEdit");
        QTRY_COMPARE(Answered, 1);
        QCOMPARE(Rows(List()), QStringList({"All entries///", "All entries///"}));
    }

    void TypesWithoutNameAndSenderLeaveThemEmpty_data() {
        QTest::addColumn<int>("type");
        for (const int type : {0, 4, 5, 6, 7, 8, 9})
            QTest::addRow("%d", type) << type;
    }

    void TypesWithoutNameAndSenderLeaveThemEmpty() {
        QFETCH(int, type);
        StoreFilters({"X|3|5|ABC|PLC|1"});
        Open();
        Select(List(), {0});
        Answer<frmFilterSettings>([&](frmFilterSettings& dialog) {
            Find<QComboBox>(dialog, "cbFilterType")->setCurrentIndex(type);
            QCOMPARE(Find<QComboBox>(dialog, "cbName")->currentText(), "ABC");
            QVERIFY(!Find<QComboBox>(dialog, "cbName")->isEnabled());
            QVERIFY(!Find<QComboBox>(dialog, "cbEmitter")->isEnabled());
            Click(dialog, "cmdOK");
        });
        Choose(*Dialog, "mnuFilterEdit");
        QTRY_COMPARE(Answered, 1);
        Click(*Dialog, "cmdOK");
        QCOMPARE(StoredFilters(), QStringList(QString("X|%1|5|||1").arg(type)));
    }

    void DeleteKeyRemovesTheSelectedRows() {
        StoreFilters({"I|0||||1", "I|1||||1", "I|2||||1", "I|3||||1"});
        Open();
        Select(List(), {0, 2});
        QTest::keyClick(&List(), Qt::Key_Delete);
        QCOMPARE(Rows(List()), QStringList({"Info///", "Error///"}));
        Select(List(), {0});
        Choose(*Dialog, "mnuFilterRemove");
        QTRY_COMPARE(Rows(List()), QStringList({"Error///"}));
    }

    void FilterThatCannotBeStoredIsTold() {
        Open();
        AnswerFilter(FilterDefinition(), "I|0||||1", "cmdOK", "a|b");
        Choose(*Dialog, "mnuFilterAdd");
        QTRY_COMPARE(Answered, 1);
        QCOMPARE(
            TextOf(*Dialog, "lblNote"),
            "A filter with \"|\" cannot be stored: the whole list would fall back to the default filter.");
        QVERIFY(Find<QLabel>(*Dialog, "lblNote")->isVisible());
        Select(List(), {1});
        QTest::keyClick(&List(), Qt::Key_Delete);
        QVERIFY(!Find<QLabel>(*Dialog, "lblNote")->isVisible());
    }

    void CheckBoxThatMakesAFilterTooLongIsNoted() {
        // Only the form without a flag, which is active, has room for it.
        StoreFilters({"I|0||||1", "X|8|" + QString(1017, '7') + "|||1"});
        QCOMPARE(StoredFilters().last().size(), 1023);
        Open();
        QVERIFY(!Find<QLabel>(*Dialog, "lblNote")->isVisible());
        Select(List(), {1});
        QTest::keyClick(&List(), Qt::Key_Space);
        QCOMPARE(
            TextOf(*Dialog, "lblNote"),
            "This filter is too long to be stored: the whole list would fall back to the default filter.");
        QTest::keyClick(&List(), Qt::Key_Space);
        QVERIFY(!Find<QLabel>(*Dialog, "lblNote")->isVisible());
        Click(*Dialog, "cmdOK");
        QCOMPARE(StoredFilters().size(), 2);
        QCOMPARE(LoadFilterList(Settings).Filters.back(),
                 Filter(("X|8|" + QString(1017, '7') + "||").toUtf8()));
    }

  private:
    // The person finds this filter in the next dialog, defines another and presses a button. A text that is
    // given by itself is typed into the string box.
    void AnswerFilter(const std::optional<FilterDefinition>& found, const char* defined,
                      const char* button = "cmdOK", const char* text = nullptr) {
        Answer<frmFilterSettings>([=](frmFilterSettings& dialog) {
            if (found)
                QCOMPARE(FormatFilter(dialog.Definition()), FormatFilter(*found));
            dialog.Preset(Filter(defined));
            if (text != nullptr)
                Find<QComboBox>(dialog, "cbStringFilter")->setEditText(text);
            Click(dialog, button);
        });
    }
};

QORVIX_WINDOW_TEST(frmLogbookSettingsRowsTest)
#include "frmLogbookSettingsRowsTest.moc"
