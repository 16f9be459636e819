// SPDX-License-Identifier: MIT
#include "dialogs/HTMLHelp.h"
#include "dialogs/HelpTest.h"
#include "dialogs/TabWalk.h"
#include "support/TemporaryFolder.h"

#include "support/WindowTest.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTabWidget>
#include <QTreeWidget>

class frmHelpTest : public HelpTest {
    Q_OBJECT

  private slots:
    void ContentsAndFirstPageOfTheRealHelp() {
        HtmlHelp help(&owner_, HelpReader(Programs()));
        QVERIFY(help.DisplayToc(HelpOf(Language::English), {Language::English}));
        QCOMPARE(HelpWindows().size(), std::size_t{1});
        const frmHelp& window = *HelpWindows().front();
        QVERIFY(window.isVisible());
        QVERIFY(!window.isModal());
        QCOMPARE(window.windowTitle(), QString("Qorvix Help"));
        QCOMPARE(Find<QTreeWidget>(window, "tvContents")->topLevelItem(0)->text(0),
                 QString("Welcome to Qorvix"));
        QVERIFY(PageOf(window)->toPlainText().startsWith("Welcome to Qorvix"));
        QCOMPARE(Find<QTabWidget>(window, "tabPages")->currentIndex(), 0);
        // The page that is shown is the current one of the contents.
        QCOMPARE(Find<QTreeWidget>(window, "tvContents")->currentItem()->text(0),
                 QString("Welcome to Qorvix"));
    }

    void GermanHelpHasItsTexts() {
        HtmlHelp help(&owner_, HelpReader(Programs()));
        QVERIFY(help.DisplaySearch(HelpOf(Language::German), {Language::German}));
        const frmHelp& window = *HelpWindows().front();
        QCOMPARE(window.windowTitle(), QString("Qorvix-Hilfe"));
        QVERIFY(PageOf(window)->toPlainText().startsWith("Willkommen bei Qorvix"));
        QVERIFY(PageOf(window)->toPlainText().contains("öffnen"));
        auto* tabs = Find<QTabWidget>(window, "tabPages");
        QCOMPARE(tabs->tabText(0), QString("&Inhalt"));
        QCOMPARE(tabs->tabText(1), QString("&Suche"));
        QCOMPARE(tabs->currentIndex(), 1);
        QCOMPARE(Find<QAction>(window, "actBack")->text(), QString("&Zurück"));
        QCOMPARE(Find<QAction>(window, "actForward")->text(), QString("&Vorwärts"));
        QCOMPARE(Find<QAction>(window, "actLargerText")->text(), QString("Schrift &größer"));
        QCOMPARE(Find<QAction>(window, "actSmallerText")->text(), QString("Schrift &kleiner"));
        QCOMPARE(Find<QAction>(window, "actNormalText")->text(), QString("Schrift &normal"));
        QCOMPARE(Find<QLabel>(window, "lblSearchWords")->text(), QString("Gesuchte &Wörter:"));
        QCOMPARE(Find<QPushButton>(window, "cmdSearch")->text(), QString("&Finden"));
        // Contents in the code page of the language.
        auto* contents = Find<QTreeWidget>(window, "tvContents");
        QCOMPARE(contents->findItems("Ein Logbuch öffnen", Qt::MatchExactly | Qt::MatchRecursive).size(), 1);
    }

    void EnglishTexts() {
        const frmHelp window(SmallBook(), {Language::English});
        QCOMPARE(window.windowTitle(), QString("Small help"));
        HelpBook untitled = SmallBook();
        untitled.Title.clear();
        QCOMPARE(frmHelp(std::move(untitled), {Language::English}).windowTitle(), QString("Qorvix Help"));
        auto* tabs = Find<QTabWidget>(window, "tabPages");
        QCOMPARE(tabs->tabText(0), QString("&Contents"));
        QCOMPARE(tabs->tabText(1), QString("&Search"));
        QCOMPARE(Find<QAction>(window, "actBack")->text(), QString("&Back"));
        QCOMPARE(Find<QAction>(window, "actForward")->text(), QString("F&orward"));
        QCOMPARE(Find<QAction>(window, "actLargerText")->text(), QString("&Larger text"));
        QCOMPARE(Find<QAction>(window, "actSmallerText")->text(), QString("S&maller text"));
        QCOMPARE(Find<QAction>(window, "actNormalText")->text(), QString("&Normal text"));
        QCOMPARE(Find<QLabel>(window, "lblSearchWords")->text(), QString("&Words to find:"));
        QCOMPARE(Find<QPushButton>(window, "cmdSearch")->text(), QString("&Find"));
    }

    void OneWindowIsReused() {
        HtmlHelp help(&owner_, HelpReader(Programs()));
        QVERIFY(help.DisplayToc(HelpOf(Language::English), {Language::English}));
        frmHelp* const window = HelpWindows().front();
        PageOf(*window)->ShowPage("/filters.html");
        QVERIFY(help.DisplaySearch(HelpOf(Language::English), {Language::English}));
        QCOMPARE(HelpWindows(), std::vector<frmHelp*>{window});
        QCOMPARE(Find<QTabWidget>(*window, "tabPages")->currentIndex(), 1);
        QCOMPARE(PathOf(*window), std::string("/filters.html"));
    }

    void ClosedAtTheSwitchAndOpenedInTheOtherLanguage() {
        HtmlHelp help(&owner_, HelpReader(Programs()));
        QVERIFY(help.DisplayToc(HelpOf(Language::English), {Language::English}));
        help.CloseAll();
        QVERIFY(HelpWindows().empty());
        help.CloseAll();
        QVERIFY(help.DisplayToc(HelpOf(Language::German), {Language::German}));
        QCOMPARE(HelpWindows().size(), std::size_t{1});
        QCOMPARE(HelpWindows().front()->windowTitle(), QString("Qorvix-Hilfe"));
    }

    void ClosedByThePersonAndOpenedAgain() {
        HtmlHelp help(&owner_, HelpReader(Programs()));
        QVERIFY(help.DisplayToc(HelpOf(Language::English), {Language::English}));
        QVERIFY(QTest::qWaitForWindowActive(HelpWindows().front()));
        QTest::keyClick(HelpWindows().front(), Qt::Key_Escape);
        QVERIFY(!HelpWindows().front()->isVisible());
        QVERIFY(help.DisplayToc(HelpOf(Language::English), {Language::English}));
        QCOMPARE(HelpWindows().size(), std::size_t{1});
        QVERIFY(HelpWindows().front()->isVisible());
    }

    void WindowGoesWithItsOwner() {
        {
            HtmlHelp help(&owner_, HelpReader(Programs()));
            QVERIFY(help.DisplayToc(HelpOf(Language::English), {Language::English}));
        }
        QVERIFY(HelpWindows().empty());
    }

    void MissingOrDamagedFileIsTold() {
        const TemporaryFolder folder;
        HtmlHelp help(&owner_, HelpReader(Programs()));
        QVERIFY(!help.DisplayToc(HelpOf(10), {10})); // "Dutch" looks in the folder "hu"
        QVERIFY(!help.DisplayToc(folder / "missing.chm", {Language::English}));
        QVERIFY(!help.DisplaySearch(folder.Write("empty.chm", ""), {Language::English}));
        QVERIFY(!help.DisplayToc(folder.Write("text.chm", "no help"), {Language::English}));
        const std::string whole = FileContent(HelpOf(Language::English));
        QVERIFY(!help.DisplayToc(folder.Write("cut.chm", whole.substr(0, 3'000)), {Language::English}));
        QVERIFY(HelpWindows().empty());
        // A window that is open stays.
        QVERIFY(help.DisplayToc(HelpOf(Language::English), {Language::English}));
        QVERIFY(!help.DisplayToc(folder / "missing.chm", {Language::English}));
        QCOMPARE(HelpWindows().size(), std::size_t{1});
        QVERIFY(HelpWindows().front()->isVisible());
    }

    void NextWindowLooksLikeTheOneBefore() {
        HtmlHelp help(&owner_, HelpReader(Programs()));
        QVERIFY(help.DisplayToc(HelpOf(Language::English), {Language::English}));
        const qreal size = PageOf(*HelpWindows().front())->font().pointSizeF();
        const auto arrange = [&](frmHelp& window) {
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            window.setGeometry(40, 50, 620, 410);
            Find<QSplitter>(window, "splitter")->setSizes({300, 320});
            Find<QAction>(window, "actLargerText")->trigger();
            Find<QAction>(window, "actLargerText")->trigger();
        };
        arrange(*HelpWindows().front());
        const QList<int> parts = Find<QSplitter>(*HelpWindows().front(), "splitter")->sizes();
        const auto verify = [&](qreal textSize) {
            const frmHelp& window = *HelpWindows().front();
            QCOMPARE(window.geometry(), QRect(40, 50, 620, 410));
            QCOMPARE(Find<QSplitter>(window, "splitter")->sizes(), parts);
            QCOMPARE(PageOf(window)->font().pointSizeF(), textSize);
        };
        // The person closes it.
        HelpWindows().front()->close();
        QVERIFY(help.DisplayToc(HelpOf(Language::English), {Language::English}));
        verify(size + 2);
        Find<QAction>(*HelpWindows().front(), "actSmallerText")->trigger();
        // The language changes.
        help.CloseAll();
        QVERIFY(help.DisplaySearch(HelpOf(Language::German), {Language::German}));
        verify(size + 1);
    }

    void FirstWindowFitsOnTheScreen() {
        HtmlHelp help(&owner_, HelpReader(Programs()));
        QVERIFY(help.DisplayToc(HelpOf(Language::English), {Language::English}));
        frmHelp& window = *HelpWindows().front();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QSize room = window.screen()->availableSize();
        QCOMPARE(window.size(), QSize(1080, 720).boundedTo(room * 9 / 10));
        // Those that a large text on a small laptop leaves.
        QVERIFY2(window.minimumSizeHint().width() <= 640,
                 qPrintable(QString::number(window.minimumSizeHint().width())));
        QVERIFY(window.minimumSizeHint().height() <= 400);
    }

    void HelpKeyShowsTheContents() {
        frmHelp window(SmallBook(), {Language::English});
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.ShowSearch();
        QTest::keyClick(&window, Qt::Key_F1);
        QCOMPARE(Find<QTabWidget>(window, "tabPages")->currentIndex(), 0);
    }

    void EachControlHasAName() {
        for (const int number : {Language::English, Language::German}) {
            frmHelp window(SmallBook(), {number});
            window.show();
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            window.ShowContents();
            const QStringList onContents = NamesOnTabWalk(window);
            QVERIFY2(onContents.size() >= 4, qPrintable(onContents.join(", ")));
            QVERIFY(!onContents.contains(QString()));
            window.ShowSearch();
            const QStringList onSearch = NamesOnTabWalk(window);
            QVERIFY2(onSearch.size() >= 5, qPrintable(onSearch.join(", ")));
            QVERIFY(!onSearch.contains(QString()));
        }
    }

  private:
    QWidget owner_;
};

QORVIX_WINDOW_TEST(frmHelpTest)
#include "frmHelpTest.moc"
