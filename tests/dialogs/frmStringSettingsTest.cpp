// SPDX-License-Identifier: MIT
#include "dialogs/frmStringSettings.h"

#include "dialogs/DialogTest.h"
#include "dialogs/frmFilterString.h"
#include "support/WindowTest.h"

#include <QHeaderView>
#include <QLineEdit>

class frmStringSettingsTest : public DialogTest {
    Q_OBJECT

  private slots:
    void init() {
        StartAfresh();
        Strings = {{"N938", "keys"}, {"n12", "Axes"}, {"", ""}};
    }

    void TextsFollowTheLanguage() {
        const frmStringSettings english(Settings, {Language::English}, Strings);
        QCOMPARE(english.windowTitle(), "String Filter");
        QCOMPARE(TextOf(english, "lblFilterStrings"), "&List of predefined string filters:");
        QCOMPARE(HeaderTexts(*List(english)), QStringList({"String", "Comment"}));
        QCOMPARE(PopupTexts(english), QStringList({"&Add...", "&Remove", "&Edit..."}));
        QCOMPARE(TextOf(english, "cmdOK"), "OK");
        QCOMPARE(TextOf(english, "cmdCancel"), "Cancel");

        const frmStringSettings german(Settings, {Language::German}, Strings);
        QCOMPARE(german.windowTitle(), "Zeichenfolge-Filter");
        QCOMPARE(TextOf(german, "lblFilterStrings"), "&Liste der vordefinierten Zeichenfolgen-Filter:");
        QCOMPARE(HeaderTexts(*List(german)), QStringList({"Zeichenfolge", "Kommentar"}));
        QCOMPARE(PopupTexts(german), QStringList({"&Neu...", "&Löschen", "&Bearbeiten..."}));
        QCOMPARE(TextOf(german, "cmdCancel"), "Abbrechen");
    }

    void StringFiltersWithoutAStringAreNotShown() {
        Strings = {{"", "no string"}, {"N938", "keys"}, {"N940", ""}, {}};
        const frmStringSettings dialog(Settings, {}, Strings);
        QCOMPARE(Rows(*List(dialog)), QStringList({"N938/keys", "N940/"}));
        QCOMPARE(Strings.size(), 4U);
    }

    void OkGivesTheStringOfTheSelectedRow() {
        frmStringSettings dialog(Settings, {}, Strings);
        dialog.show();
        Select(*List(dialog), {1});
        Click(dialog, "cmdOK");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.ResultText(), "n12");
    }

    void OkWithoutASelectedRowGivesNothing() {
        frmStringSettings dialog(Settings, {}, Strings);
        dialog.show();
        Click(dialog, "cmdOK");
        QCOMPARE(dialog.ResultText(), "");
    }

    void CancelAndEscapeGiveNothing() {
        for (const bool escape : {false, true}) {
            frmStringSettings dialog(Settings, {}, Strings);
            dialog.show();
            Select(*List(dialog), {1});
            if (escape)
                QTest::keyClick(&dialog, Qt::Key_Escape);
            else
                Click(dialog, "cmdCancel");
            QVERIFY(!dialog.isVisible());
            QCOMPARE(dialog.ResultText(), "");
        }
    }

    void AddedRowIsOfferedAtOnce() {
        frmStringSettings dialog(Settings, {}, Strings);
        dialog.show();
        AnswerString("", "", "N1", "one", "cmdOK");
        Choose(dialog, "mnuFilterAdd");
        QTRY_COMPARE(Answered, 1);
        QCOMPARE(Rows(*List(dialog)), QStringList({"N938/keys", "n12/Axes", "N1/one"}));
        QCOMPARE(Strings, (std::vector<StringFilter>{{"N938", "keys"}, {"n12", "Axes"}, {"N1", "one"}}));
    }

    void SameRowIsNotAddedAgain() {
        frmStringSettings dialog(Settings, {}, Strings);
        dialog.show();
        AnswerString("", "", "N938", "keys", "cmdOK");
        Choose(dialog, "mnuFilterAdd");
        QTRY_COMPARE(Answered, 1);
        QCOMPARE(List(dialog)->topLevelItemCount(), 2);

        for (const auto& [text, comment] : {std::pair("N938", "Keys"), {"n938", "keys"}, {"N938", "keys "}}) {
            const int answers = Answered + 1;
            AnswerString("", "", text, comment, "cmdOK");
            Choose(dialog, "mnuFilterAdd");
            QTRY_COMPARE(Answered, answers);
        }
        QCOMPARE(List(dialog)->topLevelItemCount(), 5);
    }

    void CancelledOrEmptyAddAddsNothing() {
        frmStringSettings dialog(Settings, {}, Strings);
        dialog.show();
        AnswerString("", "", "N1", "one", "cmdCancel");
        Choose(dialog, "mnuFilterAdd");
        QTRY_COMPARE(Answered, 1);
        AnswerString("", "", "N1", "", "cmdOK");
        Choose(dialog, "mnuFilterAdd");
        QTRY_COMPARE(Answered, 2);
        QCOMPARE(List(dialog)->topLevelItemCount(), 2);
        QCOMPARE(Strings.size(), 3U);
    }

    void EditChangesTheRow_data() {
        QTest::addColumn<bool>("doubleClick");
        QTest::newRow("double click") << true;
        QTest::newRow("popup") << false;
    }
    void EditChangesTheRow() {
        QFETCH(bool, doubleClick);
        frmStringSettings dialog(Settings, {}, Strings);
        dialog.show();
        AnswerString("n12", "Axes", "N938", "keys", "cmdOK");
        if (doubleClick) {
            DoubleClick(*List(dialog), 1);
        } else {
            Select(*List(dialog), {1});
            Choose(dialog, "mnuFilterEdit");
        }
        QTRY_COMPARE(Answered, 1);
        QCOMPARE(Rows(*List(dialog)), QStringList({"N938/keys", "N938/keys"}));
        QCOMPARE(Strings, (std::vector<StringFilter>{{"N938", "keys"}, {"N938", "keys"}}));
    }

    void MenuKeyIsForTheFirstRowAtOnce() {
        frmStringSettings dialog(Settings, {}, Strings);
        dialog.show();
        QVERIFY(dialog.focusWidget() == List(dialog));
        QCOMPARE(List(dialog)->currentItem(), List(dialog)->topLevelItem(0));
        QTest::keyClick(List(dialog), Qt::Key_Menu);
        QVERIFY(Find<QMenu>(dialog, "mnuPopup")->isVisible());
        AnswerString("N938", "keys", "N939", "other keys", "cmdOK");
        Choose(dialog, "mnuFilterEdit");
        QTRY_COMPARE(Answered, 1);
        QCOMPARE(Rows(*List(dialog)), QStringList({"N939/other keys", "n12/Axes"}));
        Click(dialog, "cmdOK");
        QCOMPARE(dialog.ResultText(), "N939");
    }

    void EditWithoutASelectedRowDoesNothing() {
        frmStringSettings dialog(Settings, {}, Strings);
        dialog.show();
        Choose(dialog, "mnuFilterEdit");
        QCoreApplication::processEvents();
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        QCOMPARE(Strings.size(), 3U);
    }

    void RemoveTakesAllSelectedRows() {
        Strings = {{"a", "1"}, {"b", "2"}, {"c", "3"}, {"d", "4"}};
        frmStringSettings dialog(Settings, {}, Strings);
        Select(*List(dialog), {0, 2});
        Choose(dialog, "mnuFilterRemove");
        QTRY_COMPARE(Rows(*List(dialog)), QStringList({"b/2", "d/4"}));
        QCOMPARE(Strings, (std::vector<StringFilter>{{"b", "2"}, {"d", "4"}}));
        QCOMPARE(List(dialog)->selectedItems(), QList<QTreeWidgetItem*>({List(dialog)->topLevelItem(1)}));
        Select(*List(dialog), {0, 1});
        Choose(dialog, "mnuFilterRemove");
        QTRY_COMPARE(List(dialog)->topLevelItemCount(), 0);
        QVERIFY(Strings.empty());
    }

    void PopupComesWithTheMouseUpOfTheRightButton() {
        frmStringSettings dialog(Settings, {}, Strings);
        dialog.show();
        const auto* const popup = Find<QMenu>(dialog, "mnuPopup");
        QTest::mousePress(List(dialog)->viewport(), Qt::RightButton, {}, RowPoint(*List(dialog), 1));
        QVERIFY(!popup->isVisible());
        QTest::mouseRelease(List(dialog)->viewport(), Qt::RightButton, {}, RowPoint(*List(dialog), 1));
        QVERIFY(popup->isVisible());
        QVERIFY(List(dialog)->topLevelItem(1)->isSelected());
    }

    void ClickOnAHeaderSorts() {
        Strings = {{"b", "x"}, {"Ä", "y"}, {"A", "x"}, {"ä", "Z"}};
        frmStringSettings dialog(Settings, {}, Strings);
        dialog.show();
        Select(*List(dialog), {2});
        // Another column than the last one, which is the first at the start, keeps the direction.
        ClickHeader(dialog, 1);
        QCOMPARE(Rows(*List(dialog)), QStringList({"b/x", "A/x", "Ä/y", "ä/Z"}));
        ClickHeader(dialog, 1);
        QCOMPARE(Rows(*List(dialog)), QStringList({"ä/Z", "Ä/y", "b/x", "A/x"}));
        ClickHeader(dialog, 0);
        QCOMPARE(Rows(*List(dialog)), QStringList({"ä/Z", "Ä/y", "b/x", "A/x"}));
        ClickHeader(dialog, 0);
        QCOMPARE(Rows(*List(dialog)), QStringList({"A/x", "b/x", "ä/Z", "Ä/y"}));
        QVERIFY(List(dialog)->topLevelItem(0)->isSelected());
        QCOMPARE(List(dialog)->selectedItems().size(), 1);
        QCOMPARE(List(dialog)->header()->sortIndicatorSection(), 0);
        QCOMPARE(List(dialog)->header()->sortIndicatorOrder(), Qt::AscendingOrder);
        QCOMPARE(Strings.front().FilterString, "b");
    }

    void FirstClickOnTheFirstHeaderSortsDescending() {
        Strings = {{"a", "1"}, {"c", "2"}, {"b", "3"}};
        frmStringSettings dialog(Settings, {}, Strings);
        dialog.show();
        ClickHeader(dialog, 0);
        QCOMPARE(Rows(*List(dialog)), QStringList({"c/2", "b/3", "a/1"}));
    }

    void ColumnWidthsAreKept() {
        {
            frmStringSettings dialog(Settings, {}, Strings);
            QCOMPARE(List(dialog)->columnWidth(0), 1300 / 15);
            QCOMPARE(List(dialog)->columnWidth(1), 3500 / 15);
            dialog.show();
            List(dialog)->setColumnWidth(1, 200);
            Click(dialog, "cmdCancel");
        }
        QCOMPARE(StoredNumber("StringFilter", "FilterCol(1).Width"), 1300);
        QCOMPARE(StoredNumber("StringFilter", "FilterCol(2).Width"), 3000);
        const frmStringSettings dialog(Settings, {}, Strings);
        QCOMPARE(List(dialog)->columnWidth(1), 200);
    }

    void DamagedWidthsAreNoDanger() {
        Settings.WriteSetting("FilterCol(1).Width", -2147483647, SettingType::Integer, "StringFilter");
        Settings.WriteSetting("FilterCol(2).Width", 2147483647, SettingType::Integer, "StringFilter");
        frmStringSettings dialog(Settings, {}, Strings);
        dialog.show();
        QCOMPARE(List(dialog)->columnWidth(0), 0);
    }

    void EveryControlHasANameAndRoom() {
        for (const std::int32_t language : {Language::English, Language::German}) {
            frmStringSettings dialog(Settings, {language}, Strings);
            dialog.show();
            QCOMPARE(NamelessControls(dialog), QStringList());
            QCOMPARE(CutOffTexts(dialog), QStringList());
        }
    }

  private:
    static QTreeWidget* List(const QWidget& dialog) { return Find<QTreeWidget>(dialog, "lvFilterStrings"); }

    static void ClickHeader(const QWidget& dialog, int column) {
        const QHeaderView* const header = List(dialog)->header();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          {header->sectionViewportPosition(column) + 20, header->height() / 2});
    }

    // The person finds these texts in the next dialog, types others and presses a button.
    void AnswerString(const char* text, const char* comment, const char* newText, const char* newComment,
                      const char* button) {
        Answer<frmFilterString>([=](frmFilterString& dialog) {
            QCOMPARE(dialog.Filter(), (StringFilter{text, comment}));
            Find<QLineEdit>(dialog, "tbString")->setText(newText);
            Find<QLineEdit>(dialog, "tbComment")->setText(newComment);
            Click(dialog, button);
        });
    }

    std::vector<StringFilter> Strings;
};

QORVIX_WINDOW_TEST(frmStringSettingsTest)
#include "frmStringSettingsTest.moc"
