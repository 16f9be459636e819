// SPDX-License-Identifier: MIT
#include "dialogs/frmLanguageDialog.h"

#include "support/WindowTest.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

class frmLanguageDialogTest : public QObject {
    Q_OBJECT

  private slots:
    void TextsFollowTheLanguage() {
        const frmLanguageDialog english({Language::English});
        QCOMPARE(english.windowTitle(), QString("Change Language"));
        QCOMPARE(Label(english, "lblDialogLanguage")->text(), QString("&Dialog language:"));
        QCOMPARE(Label(english, "lblNote")->text(),
                 QString("Note: The user interface supports only English and German"));
        QCOMPARE(Button(english, "cmdOK")->text(), QString("OK"));
        QCOMPARE(Button(english, "cmdCancel")->text(), QString("Cancel"));
        QCOMPARE(Rows(english), QStringList({"English", "German", "Italian", "Spanish", "French", "Swedish",
                                             "Finnish", "Czech", "Polish", "Danish", "Dutch"}));

        const frmLanguageDialog german({Language::German});
        QCOMPARE(german.windowTitle(), QString("Sprache auswählen"));
        QCOMPARE(Label(german, "lblDialogLanguage")->text(), QString("&Dialogsprache:"));
        QCOMPARE(Label(german, "lblNote")->text(),
                 QString("Hinweis: Die Benutzeroberfläche unterstützt nur Englisch und Deutsch"));
        QCOMPARE(Button(german, "cmdCancel")->text(), QString("Abbrechen"));
        QCOMPARE(Rows(german),
                 QStringList({"Englisch", "Deutsch", "Italienisch", "Spanisch", "Französisch", "Schwedisch",
                              "Finnisch", "Tschechisch", "Polnisch", "Dänisch", "Niederländisch"}));
    }

    void CurrentLanguageIsSelected() {
        for (int number = 0; number <= 10; ++number)
            QCOMPARE(List(frmLanguageDialog({number}))->currentIndex(), number);
        for (const int number : {-1, 11, 12})
            QCOMPARE(List(frmLanguageDialog({number}))->currentIndex(), -1);
    }

    void OkGivesTheRow() {
        frmLanguageDialog dialog({Language::English});
        dialog.show();
        List(dialog)->setCurrentIndex(10);
        QTest::mouseClick(Button(dialog, "cmdOK"), Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.Choice()->Number, 10);
        QCOMPARE(LanguageCode(*dialog.Choice()), std::string_view("hu"));
    }

    void CancelGivesNothing() {
        frmLanguageDialog dialog({Language::English});
        dialog.show();
        List(dialog)->setCurrentIndex(1);
        QTest::mouseClick(Button(dialog, "cmdCancel"), Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
        QVERIFY(!dialog.Choice().has_value());
    }

    void OkWithoutARowGivesNothing() {
        frmLanguageDialog dialog({12});
        dialog.show();
        QTest::mouseClick(Button(dialog, "cmdOK"), Qt::LeftButton);
        QVERIFY(!dialog.Choice().has_value());
    }

  private:
    static QComboBox* List(const QWidget& dialog) { return dialog.findChild<QComboBox*>("cbDialogLanguage"); }
    static QLabel* Label(const QWidget& dialog, const char* name) { return dialog.findChild<QLabel*>(name); }
    static QPushButton* Button(const QWidget& dialog, const char* name) {
        return dialog.findChild<QPushButton*>(name);
    }

    static QStringList Rows(const QWidget& dialog) {
        QStringList rows;
        for (int i = 0; i < List(dialog)->count(); ++i)
            rows << List(dialog)->itemText(i);
        return rows;
    }
};

QORVIX_WINDOW_TEST(frmLanguageDialogTest)
#include "frmLanguageDialogTest.moc"
