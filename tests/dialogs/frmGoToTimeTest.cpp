// SPDX-License-Identifier: MIT
#include "dialogs/frmGoToTime.h"

#include "dialogs/DialogTest.h"
#include "support/WindowTest.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

using namespace std::chrono_literals;

class frmGoToTimeTest : public DialogTest {
    Q_OBJECT

  private slots:
    void TextsFollowTheLanguage() {
        const frmGoToTime english({Language::English}, Days, {});
        QCOMPARE(english.windowTitle(), "Go to time");
        QCOMPARE(TextOf(english, "lblTime"), "&Time:");
        QCOMPARE(TextOf(english, "lblDays"), "&Days of the logbook:");
        QCOMPARE(HeaderTexts(*List(english)), QStringList({"Day", "Entries", "Errors"}));
        const frmGoToTime german({Language::German}, Days, {});
        QCOMPARE(german.windowTitle(), "Gehe zu Zeit");
        QCOMPARE(TextOf(german, "lblTime"), "&Zeit:");
        QCOMPARE(TextOf(german, "lblDays"), "&Tage des Logbuchs:");
        QCOMPARE(HeaderTexts(*List(german)), QStringList({"Tag", "Einträge", "Fehler"}));
    }

    void DaysHaveTheirEntriesAndErrors() {
        const frmGoToTime dialog({}, Days, {});
        QCOMPARE(Rows(*List(dialog)), QStringList({"09.02.2010/7/0", "20.11.2010/1200/3", "21.11.2010/5/5"}));
    }

    void TheGivenDayIsSelectedOtherwiseTheLastOne() {
        QCOMPARE(SelectedDay(frmGoToTime({}, Days, {})), "21.11.2010");
        QCOMPARE(SelectedDay(frmGoToTime({}, Days, {2010y / 11 / 20})), "20.11.2010");
        QCOMPARE(SelectedDay(frmGoToTime({}, Days, {2010y / 11 / 19})), "09.02.2010");
        QCOMPARE(SelectedDay(frmGoToTime({}, Days, {2009y / 1 / 1})), "09.02.2010");
        QVERIFY(List(frmGoToTime({}, {}, {}))->selectedItems().isEmpty());
    }

    void TheSelectedDayCounts() {
        frmGoToTime dialog({}, Days, {2010y / 11 / 20});
        dialog.show();
        Enter(dialog, "14:12");
        QCOMPARE(Iso(dialog), "2010-11-20T14:12:00");
        frmGoToTime other({}, Days, {2010y / 11 / 20});
        other.show();
        Select(*List(other), {0});
        Enter(other, "14:12");
        QCOMPARE(Iso(other), "2010-02-09T14:12:00");
    }

    void WithoutATimeTheDayBegins() {
        frmGoToTime dialog({}, Days, {});
        dialog.show();
        Enter(dialog, " ");
        QCOMPARE(Iso(dialog), "2010-11-21T00:00:00");
        frmGoToTime byMouse({}, Days, {});
        byMouse.show();
        DoubleClick(*List(byMouse), 1);
        QTRY_VERIFY(!byMouse.isVisible());
        QCOMPARE(Iso(byMouse), "2010-11-20T00:00:00");
        frmGoToTime byKey({}, Days, {});
        byKey.show();
        List(byKey)->setFocus();
        QTest::keyClick(List(byKey), Qt::Key_Up);
        QTest::keyClick(List(byKey), Qt::Key_Return);
        QTRY_VERIFY(!byKey.isVisible());
        QCOMPARE(Iso(byKey), "2010-11-20T00:00:00");
    }

    void WhatCannotBeReadIsSaidAndNotTaken() {
        for (const std::int32_t language : {Language::English, Language::German}) {
            frmGoToTime dialog({language}, Days, {});
            dialog.show();
            QVERIFY(!Find<QWidget>(dialog, "lblNote")->isVisible());
            Enter(dialog, "yesterday");
            QVERIFY(dialog.isVisible());
            QVERIFY(!Find<QPushButton>(dialog, "cmdOK")->isEnabled());
            QCOMPARE(TextOf(dialog, "lblNote"),
                     language == Language::English
                         ? "Enter a time such as 14:12, 14:12:07, 20.11. 14:12 or 20.11.2010 14:12"
                         : "Geben Sie eine Zeit wie 14:12, 14:12:07, 20.11. 14:12 oder 20.11.2010 14:12 ein");
            Enter(dialog, "14:12");
            QVERIFY(!dialog.isVisible());
        }
        // Without a logbook only a whole time can be read.
        frmGoToTime empty({}, {}, {});
        empty.show();
        QVERIFY(!Find<QPushButton>(empty, "cmdOK")->isEnabled());
        Enter(empty, "14:12");
        QVERIFY(empty.isVisible());
        Enter(empty, "20.11.2010 14:12");
        QCOMPARE(Iso(empty), "2010-11-20T14:12:00");
    }

    void CancelGivesNoTime() {
        frmGoToTime dialog({}, Days, {});
        dialog.show();
        Find<QLineEdit>(dialog, "tbTime")->setText("14:12");
        Click(dialog, "cmdCancel");
        QCOMPARE(Iso(dialog), "none");
    }

    void EveryControlHasANameAndRoom() {
        for (const std::int32_t language : {Language::English, Language::German}) {
            frmGoToTime dialog({language}, Days, {});
            dialog.show();
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            QVERIFY(Find<QLineEdit>(dialog, "tbTime")->hasFocus());
            QCOMPARE(NamelessControls(dialog), QStringList());
            QCOMPARE(CutOffTexts(dialog), QStringList());
        }
    }

  private:
    static QTreeWidget* List(const QWidget& dialog) { return Find<QTreeWidget>(dialog, "lvDays"); }
    static QString SelectedDay(const frmGoToTime& dialog) {
        return List(dialog)->selectedItems().value(0)->text(0);
    }
    static void Enter(frmGoToTime& dialog, const char* text) {
        auto* const box = Find<QLineEdit>(dialog, "tbTime");
        box->clear();
        QTest::keyClicks(box, text);
        QTest::keyClick(box, Qt::Key_Return);
    }
    static QString Iso(const frmGoToTime& dialog) {
        return dialog.Time() ? QString::fromStdString(IsoText(*dialog.Time())) : QString("none");
    }

    const std::vector<LogbookDay> Days{
        {2010y / 2 / 9, 7, 0}, {2010y / 11 / 20, 1200, 3}, {2010y / 11 / 21, 5, 5}};
};

QORVIX_WINDOW_TEST(frmGoToTimeTest)
#include "frmGoToTimeTest.moc"
