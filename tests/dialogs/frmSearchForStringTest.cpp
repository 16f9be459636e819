// SPDX-License-Identifier: MIT
#include "dialogs/frmSearchForString.h"

#include "support/WindowTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

class frmSearchForStringTest : public QObject {
    Q_OBJECT

  private slots:
    void TextsFollowTheLanguage() {
        const frmSearchForString english({}, {Language::English});
        QCOMPARE(Texts(english),
                 QStringList({"Search", "Find &string:", "Match &whole words only", "&Case sensitive",
                              "Direction", "&Up", "&Down", "&Find", "Cancel"}));
        const frmSearchForString german({}, {Language::German});
        QCOMPARE(Texts(german), QStringList({"Suchen", "Suchen &nach:", "Nur ganze &Wörter suchen",
                                             "Groß-/&Kleinschreibung beachten", "Richtung", "A&ufwärts",
                                             "A&bwärts", "&Suchen", "Abbrechen"}));
    }

    void LastSearchIsShown() {
        for (const bool up : {false, true})
            for (const std::int16_t word : std::initializer_list<std::int16_t>{0, 1})
                for (const std::int16_t letterCase : std::initializer_list<std::int16_t>{0, 1}) {
                    const frmSearchForString dialog({"Kühl | k", up, word, letterCase}, {Language::English});
                    QCOMPARE(Text(dialog)->text(), QString("Kühl | k"));
                    QCOMPARE(Get<QRadioButton>(dialog, "obAscending")->isChecked(), up);
                    QCOMPARE(Get<QRadioButton>(dialog, "obDescending")->isChecked(), !up);
                    QCOMPARE(Get<QCheckBox>(dialog, "checkboxWholeWord")->isChecked(), word == 1);
                    QCOMPARE(Get<QCheckBox>(dialog, "checkboxCaseSensitive")->isChecked(), letterCase == 1);
                }
    }

    void FindGivesTheSearch() {
        frmSearchForString dialog({}, {Language::English});
        dialog.show();
        Text(dialog)->setText("Maß");
        Get<QRadioButton>(dialog, "obAscending")->click();
        Get<QCheckBox>(dialog, "checkboxWholeWord")->click();
        Get<QCheckBox>(dialog, "checkboxCaseSensitive")->click();
        QTest::mouseClick(Get<QPushButton>(dialog, "cmdOK"), Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.Search(), std::optional(SearchState{"Maß", true, 1, 1}));
    }

    void EnterFindsAndEscapeCancels() {
        frmSearchForString found({"a"}, {Language::English});
        found.show();
        QTest::keyClick(Text(found), Qt::Key_Return);
        QCOMPARE(found.Search(), std::optional(SearchState{"a", false, 0, 0}));
        frmSearchForString cancelled({"a"}, {Language::English});
        cancelled.show();
        QTest::keyClick(&cancelled, Qt::Key_Escape);
        QVERIFY(!cancelled.isVisible());
        QVERIFY(!cancelled.Search());
    }

    void CancelGivesNothing() {
        frmSearchForString dialog({"a"}, {Language::English});
        dialog.show();
        Text(dialog)->setText("b");
        QTest::mouseClick(Get<QPushButton>(dialog, "cmdCancel"), Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
        QVERIFY(!dialog.Search());
    }

    void TextIsSelectedWheneverItGetsTheFocus() {
        frmSearchForString dialog({"cooling"}, {Language::English});
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QApplication::setActiveWindow(&dialog);
        QTRY_COMPARE(QApplication::focusWidget(), Text(dialog));
        QTRY_COMPARE(Text(dialog)->selectedText(), QString("cooling"));

        Get<QCheckBox>(dialog, "checkboxWholeWord")->setFocus();
        Text(dialog)->deselect();
        QTest::mouseClick(Text(dialog), Qt::LeftButton);
        QTRY_COMPARE(Text(dialog)->selectedText(), QString("cooling"));

        // A click into the box that has the focus places the cursor, as everywhere.
        QTest::mouseClick(Text(dialog), Qt::LeftButton);
        QTest::qWait(0);
        QCOMPARE(Text(dialog)->selectedText(), QString());
    }

    void TabWalksFromTopToBottom() {
        frmSearchForString dialog({}, {Language::English});
        dialog.show();
        QApplication::setActiveWindow(&dialog);
        QTRY_COMPARE(QApplication::focusWidget(), Text(dialog));
        QStringList walked;
        while (walked.size() < 10 && !walked.contains("cmdCancel")) {
            walked << QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(walked, QStringList({"tbSearchString", "checkboxWholeWord", "checkboxCaseSensitive",
                                      "obAscending", "cmdOK", "cmdCancel"}));
    }

  private:
    template <class T>
    static T* Get(const QWidget& dialog, const char* name) {
        return dialog.findChild<T*>(name);
    }
    static QLineEdit* Text(const QWidget& dialog) { return Get<QLineEdit>(dialog, "tbSearchString"); }

    static QStringList Texts(const QWidget& dialog) {
        QStringList texts{dialog.windowTitle(), Get<QLabel>(dialog, "lblSearchString")->text()};
        for (const char* name : {"checkboxWholeWord", "checkboxCaseSensitive"})
            texts << Get<QAbstractButton>(dialog, name)->text();
        texts << Get<QGroupBox>(dialog, "frameDirection")->title();
        for (const char* name : {"obAscending", "obDescending", "cmdOK", "cmdCancel"})
            texts << Get<QAbstractButton>(dialog, name)->text();
        return texts;
    }
};

QORVIX_WINDOW_TEST(frmSearchForStringTest)
#include "frmSearchForStringTest.moc"
