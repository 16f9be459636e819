// SPDX-License-Identifier: MIT
#include "dialogs/frmFilterString.h"

#include "dialogs/DialogTest.h"
#include "support/WindowTest.h"

#include <QLineEdit>

class frmFilterStringTest : public DialogTest {
    Q_OBJECT

  private slots:
    void TextsFollowTheLanguage() {
        const frmFilterString english({Language::English}, {});
        QCOMPARE(english.windowTitle(), "Definition of string filters");
        QCOMPARE(TextOf(english, "lblString"), "&String:");
        QCOMPARE(TextOf(english, "lblComment"), "&Comment:");
        QCOMPARE(TextOf(english, "cmdOK"), "OK");
        QCOMPARE(TextOf(english, "cmdCancel"), "Cancel");

        const frmFilterString german({Language::German}, {});
        QCOMPARE(german.windowTitle(), "Definition Zeichenfolge-Filter");
        QCOMPARE(TextOf(german, "lblString"), "&Zeichenfolge:");
        QCOMPARE(TextOf(german, "lblComment"), "&Kommentar:");
        QCOMPARE(TextOf(german, "cmdOK"), "OK");
        QCOMPARE(TextOf(german, "cmdCancel"), "Abbrechen");
    }

    void OkGivesBothTexts() {
        frmFilterString dialog({}, {"N938", "keys"});
        dialog.show();
        QCOMPARE(dialog.Filter(), (StringFilter{"N938", "keys"}));
        Box(dialog, "tbString")->setText("N939");
        Box(dialog, "tbComment")->setText("Töne");
        Click(dialog, "cmdOK");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.ResultText(), "OK");
        QCOMPARE(dialog.Filter(), (StringFilter{"N939", "Töne"}));
    }

    void OkWithAnEmptyTextIsCancel() {
        for (const StringFilter& filter : {StringFilter{"N938", ""}, {"", "keys"}, {"", ""}}) {
            frmFilterString dialog({}, filter);
            dialog.show();
            Click(dialog, "cmdOK");
            QVERIFY(!dialog.isVisible());
            QCOMPARE(dialog.ResultText(), "CANCEL");
        }
    }

    void CancelAndEscapeCancel() {
        for (const bool escape : {false, true}) {
            frmFilterString dialog({}, {"N938", "keys"});
            dialog.show();
            if (escape)
                QTest::keyClick(&dialog, Qt::Key_Escape);
            else
                Click(dialog, "cmdCancel");
            QVERIFY(!dialog.isVisible());
            QCOMPARE(dialog.ResultText(), "CANCEL");
        }
    }

    void EnterIsOk() {
        frmFilterString dialog({}, {"N938", "keys"});
        dialog.show();
        QTest::keyClick(Box(dialog, "tbString"), Qt::Key_Return);
        QCOMPARE(dialog.ResultText(), "OK");
    }

    void BoxWithTheFocusIsSelected() {
        frmFilterString dialog({}, {"N938", "keys"});
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QVERIFY(Box(dialog, "tbString")->hasFocus());
        QCOMPARE(Box(dialog, "tbString")->selectedText(), "N938");
        QTest::keyClick(&dialog, Qt::Key_Tab);
        QCOMPARE(Box(dialog, "tbComment")->selectedText(), "keys");
        QTest::keyClicks(Box(dialog, "tbComment"), "new");
        QCOMPARE(Box(dialog, "tbComment")->text(), "new");

        QTest::mouseClick(Box(dialog, "tbString"), Qt::LeftButton, {}, {5, 5});
        QVERIFY(Box(dialog, "tbString")->hasFocus());
        QCOMPARE(Box(dialog, "tbString")->selectedText(), "N938");
        QTest::mouseClick(Box(dialog, "tbString"), Qt::LeftButton, {}, {5, 5});
        QCOMPARE(Box(dialog, "tbString")->selectedText(), "");
    }

    void WhatCannotBeStoredIsTold() {
        frmFilterString english({Language::English}, {"N938", "keys"});
        english.show();
        const auto* const note = Find<QLabel>(english, "lblNote");
        QVERIFY(!note->isVisible());
        Box(english, "tbComment")->setText("a|b");
        QVERIFY(note->isVisible());
        QCOMPARE(note->text(), "\"|\" cannot be stored: the text would be cut there.");
        Box(english, "tbComment")->setText(QString(1023, 'a'));
        QCOMPARE(note->text(), "This string filter is too long to be stored: it would be lost.");
        Box(english, "tbComment")->setText("ab");
        QVERIFY(!note->isVisible());

        const frmFilterString german({Language::German}, {"N|938", "keys"});
        QCOMPARE(TextOf(german, "lblNote"),
                 "\"|\" kann nicht gespeichert werden: Der Text würde dort abgeschnitten.");
        const frmFilterString tooLong({Language::German}, {std::string(1023, 'a'), "keys"});
        QCOMPARE(TextOf(tooLong, "lblNote"),
                 "Dieser Zeichenfolge-Filter ist zu lang, um gespeichert zu werden: Er ginge verloren.");
    }

    void EveryControlHasANameAndRoom() {
        for (const std::int32_t language : {Language::English, Language::German}) {
            frmFilterString dialog({language}, {"a|b", "keys"});
            dialog.show();
            QCOMPARE(NamelessControls(dialog), QStringList());
            QCOMPARE(CutOffTexts(dialog), QStringList());
        }
    }

  private:
    static QLineEdit* Box(const QWidget& dialog, const char* name) { return Find<QLineEdit>(dialog, name); }
};

QORVIX_WINDOW_TEST(frmFilterStringTest)
#include "frmFilterStringTest.moc"
