// SPDX-License-Identifier: MIT
#include "dialogs/HelpTest.h"
#include "support/TemporaryFolder.h"

#include "support/WindowTest.h"

#include <QAction>
#include <QBuffer>
#include <QDesktopServices>
#include <QTreeWidget>

class frmHelpPagesTest : public HelpTest {
    Q_OBJECT

  private slots:
    void LinksBackAndForward() {
        frmHelp window(SmallBook(), {Language::English});
        auto* back = Find<QAction>(window, "actBack");
        auto* forward = Find<QAction>(window, "actForward");
        QVERIFY(!back->isEnabled());
        QVERIFY(!forward->isEnabled());
        emit PageOf(window)->anchorClicked(QUrl("sub/c.html"));
        QCOMPARE(PathOf(window), std::string("/sub/c.html"));
        QVERIFY(PageOf(window)->toPlainText().startsWith("C"));
        QCOMPARE(Find<QTreeWidget>(window, "tvContents")->currentItem()->text(0), QString("A below"));
        emit PageOf(window)->anchorClicked(QUrl("../a.html"));
        QCOMPARE(PathOf(window), std::string("/a.html"));
        back->trigger();
        QCOMPARE(PathOf(window), std::string("/sub/c.html"));
        QVERIFY(forward->isEnabled());
        forward->trigger();
        QCOMPARE(PathOf(window), std::string("/a.html"));
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
        QCOMPARE(PathOf(window), std::string("/a.html"));
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
        QCOMPARE(PathOf(window), std::string("/b.html"));
        QCOMPARE(PageOf(window)->source().fragment(), QString("place"));
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
        QCOMPARE(PathOf(window), std::string("/d.html"));
        click();
        QCOMPARE(PathOf(window), std::string("/b.html"));
    }

  public slots:
    void TakeUrl(const QUrl& url) { urls_ << url; }

  private:
    QList<QUrl> urls_;
};

QORVIX_WINDOW_TEST(frmHelpPagesTest)
#include "frmHelpPagesTest.moc"
