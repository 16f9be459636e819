// SPDX-License-Identifier: MIT
// The help window while dialogs are open. Events go to the native windows, as a person's do, so that windows
// which a dialog blocks do not get them.
#include "app/MainWindowTest.h"

#include "dialogs/frmHelp.h"
#include "support/WindowTest.h"

#include <QComboBox>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QWindow>

#include <functional>

namespace {

frmHelp* HelpWindow() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* help = qobject_cast<frmHelp*>(widget); help != nullptr && help->isVisible())
            return help;
    return nullptr;
}

void ClickOn(QWidget* control) {
    QWidget* const window = control->window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                      control->mapTo(window, control->rect().center()));
}

} // namespace

class HelpBesideDialogsTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init() {
        StartAfresh();
        dialogs_ = 0;
    }
    void cleanup() { Window.reset(); }

    void HelpCanBeUsedWhileADialogIsOpen_data() {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("dialog");
        QTest::newRow("filters") << "mnuExtrasFilters"
                                 << "frmLogbookSettings";
        QTest::newRow("search") << "mnuExtrasSearch"
                                << "frmSearchForString";
        QTest::newRow("language") << "mnuExtrasDialogLanguage"
                                  << "frmLanguageDialog";
        QTest::newRow("about") << "mnuHelpAbout"
                               << "frmAbout";
        QTest::newRow("open") << "mnuFileOpen"
                              << "dlgCommonDialog";
    }

    void HelpCanBeUsedWhileADialogIsOpen() {
        QFETCH(QString, item);
        QFETCH(QString, dialog);
        WithDialog([&](QDialog& shown) {
            QCOMPARE(shown.objectName(), dialog);
            PressHelpKey(shown);
            frmHelp* const help = HelpWindow();
            QVERIFY(help != nullptr);
            QVERIFY(shown.isVisible());
            UseHelp(*help);
            VerifyWindowIsBlocked();
        });
        Item(item.toLatin1())->trigger();
        QCOMPARE(dialogs_, 1);
        // It stays when the dialog has gone.
        QVERIFY(HelpWindow() != nullptr);
    }

    void HelpCanBeUsedBesideADialogOfADialog() {
        WithDialog([&](QDialog& list) {
            WithDialog([&](QDialog& definition) {
                QCOMPARE(definition.objectName(), QString("frmFilterSettings"));
                PressHelpKey(definition);
                QVERIFY(HelpWindow() != nullptr);
                UseHelp(*HelpWindow());
                VerifyWindowIsBlocked();
                // The dialog below waits too.
                auto* const ok = list.findChild<QPushButton*>("cmdOK");
                ClickOn(ok);
                QVERIFY(list.isVisible());
            });
            list.findChild<QAction*>("mnuFilterAdd")->trigger();
            QTRY_COMPARE(dialogs_, 2);
        });
        Item("mnuExtrasFilters")->trigger();
        QCOMPARE(dialogs_, 2);
    }

    void HelpCanBeUsedBesideAMessage() {
        WithDialog([&](QDialog& box) {
            QVERIFY(qobject_cast<QMessageBox*>(&box) != nullptr);
            PressHelpKey(box);
            QVERIFY(HelpWindow() != nullptr);
            UseHelp(*HelpWindow());
            VerifyWindowIsBlocked();
        });
        Window->RunCommandLine({"qorvix", "?"});
        QCOMPARE(dialogs_, 1);
    }

    // One dialog shows the entries in turn.
    void EachEntryOfADialogLeavesTheHelpFree() {
        QVERIFY(Window->OpenLogbook(FileOfErrors(2)));
        List()->selectAll();
        const auto look = [&](QDialog& dialog) {
            QCOMPARE(dialog.objectName(), QString("frmLogbookIdent"));
            PressHelpKey(dialog);
            QVERIFY(HelpWindow() != nullptr);
            UseHelp(*HelpWindow());
            VerifyWindowIsBlocked();
            dialog.accept();
        };
        WithDialog([&](QDialog& first) {
            look(first);
            WithDialog(look, nullptr);
        });
        Item("mnuPopupProperties")->trigger();
        QCOMPARE(dialogs_, 2);
    }

    void MissingHelpIsToldAboveTheDialog() {
        WriteLanguage(*Settings, {10});
        OpenWindow();
        WithDialog([&](QDialog& about) {
            AnswerMessages(1);
            PressHelpKey(about);
            QCOMPARE(MessageTexts, QStringList("This application has no help file."));
            QVERIFY(about.isVisible());
        });
        Item("mnuHelpAbout")->trigger();
        QCOMPARE(dialogs_, 1);
        QVERIFY(HelpWindow() == nullptr);
    }

    void HelpIsClosedWhenTheLanguageChanges() {
        WithDialog([&](QDialog& dialog) {
            PressHelpKey(dialog);
            QVERIFY(HelpWindow() != nullptr);
            dialog.findChild<QComboBox*>("cbDialogLanguage")->setCurrentIndex(1);
            dialog.accept();
        });
        Item("mnuExtrasDialogLanguage")->trigger();
        QCOMPARE(dialogs_, 1);
        QVERIFY(HelpWindow() == nullptr);
        Item("mnuHelpContents")->trigger();
        QCOMPARE(HelpWindow()->windowTitle(), QString("Qorvix-Hilfe"));
    }

    void OtherKeysAndOtherWindowsAreLeftAlone() {
        WithDialog([&](QDialog& dialog) {
            QTest::keyClick(dialog.windowHandle(), Qt::Key_F1, Qt::ShiftModifier);
            QTest::keyClick(dialog.windowHandle(), Qt::Key_F2);
            QVERIFY(HelpWindow() == nullptr);
        });
        Item("mnuExtrasSearch")->trigger();
        QCOMPARE(dialogs_, 1);
        QDialog stranger; // of no window of the program
        stranger.setModal(true);
        stranger.show();
        QVERIFY(QTest::qWaitForWindowActive(&stranger));
        QCOMPARE(stranger.windowModality(), Qt::ApplicationModal);
        QTest::keyClick(stranger.windowHandle(), Qt::Key_F1);
        QVERIFY(HelpWindow() == nullptr);
        stranger.close();
        QApplication::setActiveWindow(Window.get());
        QTest::keyClick(Window->windowHandle(), Qt::Key_F1);
        QVERIFY(HelpWindow() != nullptr);
    }

  private:
    // Does something with the next dialog above `below`, and closes it then.
    void WithDialog(std::function<void(QDialog&)> look, QWidget* below = QApplication::activeModalWidget()) {
        QTimer::singleShot(0, Person.get(), [this, look, below] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || dialog == below)
                return WithDialog(look, below);
            ++dialogs_;
            look(*dialog);
            if (dialog->isVisible())
                dialog->reject();
        });
    }

    static void PressHelpKey(QDialog& dialog) {
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QTest::keyClick(dialog.windowHandle(), Qt::Key_F1);
    }

    // Chooses a topic, scrolls the page with the wheel and searches.
    static void UseHelp(frmHelp& help) {
        QVERIFY(QTest::qWaitForWindowActive(&help));
        auto* const page = help.findChild<QTextBrowser*>("txPage");
        auto* const contents = help.findChild<QTreeWidget*>("tvContents");
        const QUrl before = page->source();
        QTreeWidgetItem* const topic = contents->topLevelItem(1);
        const QPoint place = contents->visualItemRect(topic).center();
        QTest::mouseClick(help.windowHandle(), Qt::LeftButton, {}, contents->viewport()->mapTo(&help, place));
        QCOMPARE(contents->currentItem(), topic);
        QVERIFY(page->source() != before);

        help.ShowSearch();
        auto* const words = help.findChild<QLineEdit*>("tbSearchWords");
        words->clear();
        QTest::keyClick(help.windowHandle(), Qt::Key_F);
        QTest::keyClick(help.windowHandle(), Qt::Key_I);
        QCOMPARE(words->text(), QString("fi"));
        page->setSource(before);
        help.ShowContents();
    }

    // A key of the window's menu does nothing.
    void VerifyWindowIsBlocked() {
        frmHelp* const help = HelpWindow();
        help->close();
        QApplication::setActiveWindow(Window.get());
        QTest::keyClick(Window->windowHandle(), Qt::Key_F1);
        QVERIFY(HelpWindow() == nullptr);
        help->show();
    }

    int dialogs_ = 0;
};

QORVIX_WINDOW_TEST(HelpBesideDialogsTest)
#include "HelpBesideDialogsTest.moc"
