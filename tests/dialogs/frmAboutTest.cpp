// SPDX-License-Identifier: MIT
#include "dialogs/frmAbout.h"

#include "dialogs/TabWalk.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

class frmAboutTest : public QObject {
    Q_OBJECT

  private slots:
    void TextsFollowTheLanguage() {
        const frmAbout english({Language::English}, "0.1.0", {});
        QCOMPARE(english.windowTitle(), QString("About Qorvix"));
        QCOMPARE(Label(english, "lblDesignation"), QString("Logbook Viewer"));
        QCOMPARE(Label(english, "lblVersion"), QString("Version 0.1.0"));
        QCOMPARE(Label(english, "lblLicence"), QString("Licence: MIT"));

        const frmAbout german({Language::German}, "0.1.0", {});
        QCOMPARE(german.windowTitle(), QString("Über Qorvix"));
        QCOMPARE(Label(german, "lblDesignation"), QString("Logbuch-Viewer"));
        QCOMPARE(Label(german, "lblVersion"), QString("Version 0.1.0"));
        QCOMPARE(Label(german, "lblLicence"), QString("Lizenz: MIT"));

        const frmAbout swedish({5}, "0.1.0", {});
        QCOMPARE(Label(swedish, "lblDesignation"), QString("Logbook Viewer"));
    }

    void VersionHasNoLeadingZeros() {
        QCOMPARE(VersionText("2.01.0100"), std::string("2.1.100"));
        QCOMPARE(VersionText("0.1.0"), std::string("0.1.0"));
        QCOMPARE(VersionText("10.20.30"), std::string("10.20.30"));
        QCOMPARE(VersionText("007"), std::string("7"));
        QCOMPARE(VersionText(""), std::string("0"));
        QCOMPARE(VersionText("1..x."), std::string("1.0.0.0"));
        const frmAbout about({Language::English}, "2.01.0100", {});
        QCOMPARE(Label(about, "lblVersion"), QString("Version 2.1.100"));
    }

    void VersionTypeIsNeverShown() {
        for (int number = -1; number <= 12; ++number) {
            const frmAbout about({number}, "1.2.3", {});
            QVERIFY(about.findChild<QLabel*>("lblVersionType"));
            QCOMPARE(Label(about, "lblVersionType"), QString());
        }
    }

    void LibrariesAndLicenceAreNamed() {
        const frmAbout about({Language::English}, "1.2.3",
                             {{"Qt", "6.4.2", "LGPL 3"}, {"libchm", "", "LGPL 2.1"}});
        QCOMPARE(Box(about, "tbLibraries")->toPlainText(), QString("Qt 6.4.2 (LGPL 3)\nlibchm (LGPL 2.1)"));
        const QString licence = Box(about, "tbLicence")->toPlainText();
        QVERIFY(licence.startsWith("MIT License"));
        QVERIFY(licence.contains("WITHOUT WARRANTY OF ANY KIND"));
        QVERIFY(licence.contains("obtaining a copy of this software"));
        QVERIFY(Box(about, "tbLicence")->isReadOnly());
        QVERIFY(Box(about, "tbLibraries")->isReadOnly());
    }

    void OkAndEscapeClose() {
        frmAbout about({Language::English}, "1.2.3", {});
        about.show();
        QTest::mouseClick(about.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
        QVERIFY(!about.isVisible());
        about.show();
        QTest::keyClick(&about, Qt::Key_Escape);
        QVERIFY(!about.isVisible());
    }

    void EachControlHasAName() {
        for (const int number : {Language::English, Language::German}) {
            frmAbout about({number}, "1.2.3", {});
            about.show();
            about.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&about));
            const QStringList names = NamesOnTabWalk(about);
            QCOMPARE(names.size(), 3);
            QVERIFY(!names.contains(QString()));
        }
    }

  private:
    static QString Label(const QWidget& window, const char* name) {
        return window.findChild<QLabel*>(name)->text();
    }
    static QPlainTextEdit* Box(const QWidget& window, const char* name) {
        return window.findChild<QPlainTextEdit*>(name);
    }
};

QTEST_MAIN(frmAboutTest)
#include "frmAboutTest.moc"
