// SPDX-License-Identifier: MIT
#include "dialogs/HTMLHelp.h"
#include "dialogs/HelpTest.h"

#include "support/WindowTest.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

class frmHelpSearchTest : public HelpTest {
    Q_OBJECT

  private slots:
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
        QCOMPARE(PathOf(window), std::string("/b.html"));
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
        QCOMPARE(PathOf(window), std::string("/b.html"));
        emit PageOf(window)->anchorClicked(QUrl("a.html"));
        QVERIFY(PageOf(window)->extraSelections().isEmpty());
        click();
        QCOMPARE(PathOf(window), std::string("/b.html"));
        QCOMPARE(PageOf(window)->extraSelections().size(), 2);
        Find<QAction>(window, "actBack")->trigger();
        QCOMPARE(PathOf(window), std::string("/a.html"));
        click();
        QCOMPARE(PathOf(window), std::string("/b.html"));
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

  private:
    QWidget owner_;
};

QORVIX_WINDOW_TEST(frmHelpSearchTest)
#include "frmHelpSearchTest.moc"
