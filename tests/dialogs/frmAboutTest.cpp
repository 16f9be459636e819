// SPDX-License-Identifier: MIT
#include "dialogs/frmAbout.h"

#include "dialogs/TabWalk.h"
#include "support/WindowTest.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
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

    // With as many lines as the program's own list has.
    void BothTextsAreShownWholeAndFitOnTheScreen() {
        const std::vector<LibraryVersion> libraries(6, {"Library with a long name", "1.23.456", "LGPL 2.1"});
        for (const int number : {Language::English, Language::German}) {
            frmAbout about({number}, "1.2.3", libraries);
            about.show();
            QVERIFY(QTest::qWaitForWindowExposed(&about));
            for (const char* name : {"tbLicence", "tbLibraries"}) {
                const QPlainTextEdit& box = *Box(about, name);
                QVERIFY2(!box.verticalScrollBar()->isVisible(), name);
                // No more than a line is left over.
                const int lines = static_cast<int>(box.document()->size().height());
                QVERIFY2(box.viewport()->height() < (lines + 2) * box.fontMetrics().lineSpacing(), name);
            }
            QVERIFY(about.height() <= about.screen()->availableSize().height() * 9 / 10);
            QVERIFY(about.minimumSizeHint().height() <= 480);
        }
    }

    // On a small screen the licence is scrolled, and the button is still there.
    void SmallBoxKeepsItsLibrariesAndItsButton() {
        frmAbout about({Language::German}, "1.2.3", std::vector<LibraryVersion>(6, {"Library", "1", "MIT"}));
        about.resize(about.width(), 400);
        about.show();
        QVERIFY(QTest::qWaitForWindowExposed(&about));
        QCOMPARE(about.height(), 400);
        QVERIFY(!Box(about, "tbLibraries")->verticalScrollBar()->isVisible());
        QVERIFY(Box(about, "tbLicence")->verticalScrollBar()->isVisible());
        auto* const ok = about.findChild<QPushButton*>("cmdOK");
        QVERIFY(about.rect().contains(QRect(ok->mapTo(&about, QPoint()), ok->size())));
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

QORVIX_WINDOW_TEST(frmAboutTest)
#include "frmAboutTest.moc"
