// SPDX-License-Identifier: MIT
#include "dialogs/frmHelp.h"

#include "dialogs/HTMLHelp.h"
#include "dialogs/HelpBrowser.h"
#include "dialogs/TabWalk.h"
#include "helpbook/HelpFile.h"
#include "support/TemporaryFolder.h"

#include <QAction>
#include <QBuffer>
#include <QDesktopServices>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>
#include <QWheelEvent>

namespace {

// The folder of the built programs, or of those that the environment names, such as installed ones.
std::filesystem::path Programs() {
    const QByteArray folder = qgetenv("QORVIX_PROGRAM_FOLDER");
    return folder.isEmpty() ? QORVIX_PROGRAM_FOLDER : folder.toStdString();
}

std::filesystem::path HelpOf(std::int32_t number) { return HelpFile(Programs(), {number}); }

HelpBook SmallBook() {
    return {
        "Small help",
        "/a.html",
        {{"A", "/a.html", {{"A below", "/sub/c.html", {}}}}, {"B", "/b.html#place", {}}},
        {{"/a.html", "<h1>A</h1><p><a href=\"b.html\">to B</a> <a href=\"sub/c.html\">to C</a> "
                     "<a href=\"gone.html\">to nothing</a> <a href=\"https://example.com/x\">out</a></p>"},
         {"/b.html", "<h1>B</h1><p>Öffnen, and open the word twice: open</p><a name=\"place\">here</a>"},
         {"/sub/c.html", "<h1>C</h1><p><a href=\"../a.html\">to A</a></p>"}}};
}

template <typename Control>
Control* Find(const QWidget& window, const char* name) {
    return window.findChild<Control*>(name);
}

HelpBrowser* PageOf(const QWidget& window) { return window.findChild<HelpBrowser*>("txPage"); }

std::vector<frmHelp*> HelpWindows() {
    std::vector<frmHelp*> windows;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* help = qobject_cast<frmHelp*>(widget))
            windows.push_back(help);
    return windows;
}

} // namespace

class frmHelpTest : public QObject {
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
        QCOMPARE(PageOf(*window)->Page(), std::string("/filters.html"));
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

    void LinksBackAndForward() {
        frmHelp window(SmallBook(), {Language::English});
        auto* back = Find<QAction>(window, "actBack");
        auto* forward = Find<QAction>(window, "actForward");
        QVERIFY(!back->isEnabled());
        QVERIFY(!forward->isEnabled());
        emit PageOf(window)->anchorClicked(QUrl("sub/c.html"));
        QCOMPARE(PageOf(window)->Page(), std::string("/sub/c.html"));
        QVERIFY(PageOf(window)->toPlainText().startsWith("C"));
        QCOMPARE(Find<QTreeWidget>(window, "tvContents")->currentItem()->text(0), QString("A below"));
        emit PageOf(window)->anchorClicked(QUrl("../a.html"));
        QCOMPARE(PageOf(window)->Page(), std::string("/a.html"));
        back->trigger();
        QCOMPARE(PageOf(window)->Page(), std::string("/sub/c.html"));
        QVERIFY(forward->isEnabled());
        forward->trigger();
        QCOMPARE(PageOf(window)->Page(), std::string("/a.html"));
    }

    void LinkToAMissingPageSaysSo() {
        frmHelp english(SmallBook(), {Language::English});
        emit PageOf(english)->anchorClicked(QUrl("gone.html"));
        QCOMPARE(PageOf(english)->toPlainText(), QString("This page of the help cannot be read."));
        frmHelp german(SmallBook(), {Language::German});
        emit PageOf(german)->anchorClicked(QUrl("gone.html"));
        QCOMPARE(PageOf(german)->toPlainText(), QString("Diese Seite der Hilfe kann nicht gelesen werden."));
    }

    void LinkOutOfTheHelpIsLeftToTheDesktopWhenClicked() {
        QDesktopServices::setUrlHandler("https", this, "TakeUrl");
        frmHelp window(SmallBook(), {Language::English});
        QVERIFY(urls_.isEmpty());
        emit PageOf(window)->anchorClicked(QUrl("https://example.com/x"));
        QCOMPARE(urls_, QList<QUrl>{QUrl("https://example.com/x")});
        QCOMPARE(PageOf(window)->Page(), std::string("/a.html"));
        QDesktopServices::unsetUrlHandler("https");
    }

    void NothingComesFromTheDisk() {
        const TemporaryFolder folder;
        const std::string text = folder.Write("secret.html", "secret");
        HelpBook book = SmallBook();
        const frmHelp window(std::move(book), {Language::English});
        auto* page = PageOf(window);
        page->ShowPage(text);
        QCOMPARE(page->toPlainText(), QString("This page of the help cannot be read."));
        const QString picture = QString::fromStdString(folder / "secret.png");
        QImage secret(20, 10, QImage::Format_RGB32);
        secret.fill(Qt::red);
        QVERIFY(secret.save(picture));
        const QVariant resource =
            page->document()->resource(QTextDocument::ImageResource, QUrl::fromLocalFile(picture));
        QCOMPARE(resource.value<QImage>().size(), QSize(1, 1));
        QVERIFY(page->document()
                    ->resource(QTextDocument::StyleSheetResource, QUrl::fromLocalFile(text.c_str()))
                    .toByteArray()
                    .isEmpty());
    }

    void PicturesComeFromTheBook() {
        HelpBook book = SmallBook();
        QImage picture(20, 10, QImage::Format_RGB32);
        picture.fill(Qt::green);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        QVERIFY(picture.save(&buffer, "PNG"));
        book.Members["/pictures/p.png"] = bytes.toStdString();
        book.Members["/a.html"] = "<img src=\"pictures/p.png\">";
        const frmHelp window(std::move(book), {Language::English});
        const QVariant resource =
            PageOf(window)->document()->resource(QTextDocument::ImageResource, QUrl("help:/pictures/p.png"));
        QCOMPARE(resource.value<QImage>().size(), QSize(20, 10));
    }

    void ClickInTheContentsShowsThePage() {
        frmHelp window(SmallBook(), {Language::English});
        window.show();
        auto* contents = Find<QTreeWidget>(window, "tvContents");
        contents->setCurrentItem(contents->topLevelItem(1));
        QCOMPARE(PageOf(window)->Page(), std::string("/b.html"));
        QCOMPARE(PageOf(window)->source().fragment(), QString("place"));
    }

    void SearchListsPagesAndMarksTheWords() {
        frmHelp window(SmallBook(), {Language::English});
        window.show();
        window.ShowSearch();
        QTest::keyClicks(Find<QLineEdit>(window, "tbSearchWords"), "OPEN");
        QTest::keyClick(Find<QLineEdit>(window, "tbSearchWords"), Qt::Key_Return);
        auto* hits = Find<QListWidget>(window, "lbHits");
        QCOMPARE(hits->count(), 1);
        QCOMPARE(hits->item(0)->text(), QString("/b.html"));
        QCOMPARE(Find<QLabel>(window, "lblHits")->text(), QString("Pages found: 1"));
        hits->setCurrentRow(0);
        QCOMPARE(PageOf(window)->Page(), std::string("/b.html"));
        QCOMPARE(PageOf(window)->extraSelections().size(), 2);

        Find<QLineEdit>(window, "tbSearchWords")->setText("zebra");
        Find<QPushButton>(window, "cmdSearch")->click();
        QCOMPARE(hits->count(), 0);
        QCOMPARE(Find<QLabel>(window, "lblHits")->text(), QString("No page holds all of these words."));
    }

    void HitCanBeOpenedAgain() {
        frmHelp window(SmallBook(), {Language::English});
        window.show();
        window.ShowSearch();
        Find<QLineEdit>(window, "tbSearchWords")->setText("open");
        Find<QPushButton>(window, "cmdSearch")->click();
        auto* hits = Find<QListWidget>(window, "lbHits");
        const auto click = [&] {
            QTest::mouseClick(hits->viewport(), Qt::LeftButton, {},
                              hits->visualItemRect(hits->item(0)).center());
        };
        click();
        QCOMPARE(PageOf(window)->Page(), std::string("/b.html"));
        emit PageOf(window)->anchorClicked(QUrl("a.html"));
        QVERIFY(PageOf(window)->extraSelections().isEmpty());
        click();
        QCOMPARE(PageOf(window)->Page(), std::string("/b.html"));
        QCOMPARE(PageOf(window)->extraSelections().size(), 2);
        Find<QAction>(window, "actBack")->trigger();
        QCOMPARE(PageOf(window)->Page(), std::string("/a.html"));
        click();
        QCOMPARE(PageOf(window)->Page(), std::string("/b.html"));
    }

    void TopicCanBeOpenedAgain() {
        HelpBook book = SmallBook();
        book.Members["/d.html"] = "in no contents";
        frmHelp window(std::move(book), {Language::English});
        window.show();
        auto* contents = Find<QTreeWidget>(window, "tvContents");
        const auto click = [&] {
            QTest::mouseClick(contents->viewport(), Qt::LeftButton, {},
                              contents->visualItemRect(contents->topLevelItem(1)).center());
        };
        click();
        emit PageOf(window)->anchorClicked(QUrl("d.html"));
        QCOMPARE(PageOf(window)->Page(), std::string("/d.html"));
        click();
        QCOMPARE(PageOf(window)->Page(), std::string("/b.html"));
    }

    void EmptySearchChangesNothing() {
        frmHelp window(SmallBook(), {Language::English});
        window.show();
        window.ShowSearch();
        auto* words = Find<QLineEdit>(window, "tbSearchWords");
        for (const char* empty : {"", "   ", "\"\"", " , ."}) {
            words->setText(empty);
            QTest::keyClick(words, Qt::Key_Return);
            QCOMPARE(Find<QLabel>(window, "lblHits")->text(), QString());
        }
        words->setText("open");
        QTest::keyClick(words, Qt::Key_Return);
        words->clear();
        Find<QPushButton>(window, "cmdSearch")->click();
        QCOMPARE(Find<QListWidget>(window, "lbHits")->count(), 1);
        QCOMPARE(Find<QLabel>(window, "lblHits")->text(), QString("Pages found: 1"));
    }

    void PhrasesAreFoundAndMarked() {
        frmHelp window(SmallBook(), {Language::English});
        window.show();
        window.ShowSearch();
        Find<QLineEdit>(window, "tbSearchWords")->setText("\"the WORD twice\", here.");
        Find<QPushButton>(window, "cmdSearch")->click();
        QCOMPARE(Find<QListWidget>(window, "lbHits")->count(), 1);
        Find<QListWidget>(window, "lbHits")->setCurrentRow(0);
        QStringList marked;
        for (const QTextEdit::ExtraSelection& mark : PageOf(window)->extraSelections())
            marked << mark.cursor.selectedText();
        QCOMPARE(marked, QStringList({"the word twice", "here"}));
        Find<QLineEdit>(window, "tbSearchWords")->setText("\"word the twice\"");
        Find<QPushButton>(window, "cmdSearch")->click();
        QCOMPARE(Find<QListWidget>(window, "lbHits")->count(), 0);
    }

    void SearchInTheRealHelp() {
        HtmlHelp help(&owner_, HelpReader(Programs()));
        QVERIFY(help.DisplaySearch(HelpOf(Language::English), {Language::English}));
        Find<QLineEdit>(*HelpWindows().front(), "tbSearchWords")->setText("open archive");
        Find<QPushButton>(*HelpWindows().front(), "cmdSearch")->click();
        QVERIFY(Find<QListWidget>(*HelpWindows().front(), "lbHits")->count() > 2);
        help.CloseAll();
        QVERIFY(help.DisplaySearch(HelpOf(Language::German), {Language::German}));
        const frmHelp& window = *HelpWindows().front();
        Find<QLineEdit>(window, "tbSearchWords")->setText("ARCHIV öffnen");
        Find<QPushButton>(window, "cmdSearch")->click();
        QVERIFY(Find<QListWidget>(window, "lbHits")->count() > 2);
        QVERIFY(Find<QLabel>(window, "lblHits")->text().startsWith("Gefundene Seiten: "));
        Find<QLineEdit>(window, "tbSearchWords")->setText("qwertz");
        Find<QPushButton>(window, "cmdSearch")->click();
        QCOMPARE(Find<QLabel>(window, "lblHits")->text(), QString("Keine Seite enthält alle diese Wörter."));
    }

    void TextSizeHasItsLimits() {
        frmHelp window(SmallBook(), {Language::English});
        auto* larger = Find<QAction>(window, "actLargerText");
        auto* smaller = Find<QAction>(window, "actSmallerText");
        const qreal size = PageOf(window)->font().pointSizeF();
        larger->trigger();
        QCOMPARE(PageOf(window)->font().pointSizeF(), size + 1);
        smaller->trigger();
        QCOMPARE(PageOf(window)->font().pointSizeF(), size);
        for (int i = 0; i < 50; ++i)
            smaller->trigger();
        QCOMPARE(PageOf(window)->font().pointSizeF(), size - 4);
        QVERIFY(!smaller->isEnabled());
        for (int i = 0; i < 50; ++i)
            larger->trigger();
        QCOMPARE(PageOf(window)->font().pointSizeF(), size + 12);
        QVERIFY(!larger->isEnabled());
        QVERIFY(smaller->isEnabled());
    }

    void NormalTextIsOneStepAway() {
        frmHelp window(SmallBook(), {Language::English});
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        auto* normal = Find<QAction>(window, "actNormalText");
        const qreal size = PageOf(window)->font().pointSizeF();
        QVERIFY(!normal->isEnabled());
        for (int i = 0; i < 3; ++i)
            Find<QAction>(window, "actLargerText")->trigger();
        QVERIFY(normal->isEnabled());
        QTest::keyClick(&window, Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(PageOf(window)->font().pointSizeF(), size);
        QVERIFY(!normal->isEnabled());
    }

    void WheelWithCtrlGoesTheSameSteps() {
        frmHelp window(SmallBook(), {Language::English});
        window.show();
        auto* page = PageOf(window);
        const qreal size = page->font().pointSizeF();
        TurnWheel(*page, 120, Qt::ControlModifier);
        QCOMPARE(page->font().pointSizeF(), size + 1);
        QVERIFY(Find<QAction>(window, "actNormalText")->isEnabled());
        TurnWheel(*page, -240, Qt::ControlModifier);
        QCOMPARE(page->font().pointSizeF(), size - 1);
        // Fine wheels make a step of several turns.
        for (int i = 0; i < 4; ++i)
            TurnWheel(*page, 30, Qt::ControlModifier);
        QCOMPARE(page->font().pointSizeF(), size);
        for (int i = 0; i < 50; ++i)
            TurnWheel(*page, 120, Qt::ControlModifier);
        QCOMPARE(page->font().pointSizeF(), size + 12);
        QVERIFY(!Find<QAction>(window, "actLargerText")->isEnabled());
        TurnWheel(*page, -120, {});
        QCOMPARE(page->font().pointSizeF(), size + 12);
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

  public slots:
    void TakeUrl(const QUrl& url) { urls_ << url; }

  private:
    static void TurnWheel(QWidget& page, int delta, Qt::KeyboardModifiers modifiers) {
        QWheelEvent event(QPointF(5, 5), page.mapToGlobal(QPointF(5, 5)), {}, {0, delta}, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(page.findChild<QWidget*>("qt_scrollarea_viewport"), &event);
    }

    QWidget owner_;
    QList<QUrl> urls_;
};

QTEST_MAIN(frmHelpTest)
#include "frmHelpTest.moc"
