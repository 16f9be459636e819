// SPDX-License-Identifier: MIT
#include "app/MainWindowTest.h"

#include "app/MainToolBar.h"
#include "list/QtText.h"
#include "support/WindowTest.h"

#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

#include <set>

class MainMenusTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void init() { StartAfresh(); }
    void cleanup() { Window.reset(); }

    void MenusStandInTheirOrder() {
        QStringList names;
        for (const QAction* menu : Window->menuBar()->actions()) {
            names << menu->menu()->objectName();
            for (const QAction* item : menu->menu()->actions())
                names << (item->menu() != nullptr ? item->menu()->objectName() : item->objectName());
        }
        QCOMPARE(names, QStringList({"mnuFile",
                                     "mnuFileOpen",
                                     "mnuFileZipLogbook",
                                     "mnuFileBar1",
                                     "mnuFileExit",
                                     "mnuView",
                                     "mnuViewToolbar",
                                     "mnuViewStatusBar",
                                     "mnuVContent",
                                     "mnuViewBar0",
                                     "mnuViewRefresh",
                                     "mnuExtras",
                                     "mnuExtrasSearch",
                                     "mnuExtrasFindNext",
                                     "mnuExtrasFindPrev",
                                     "mnnuExtrasSep1",
                                     "mnuExtrasFilters",
                                     "mnnuExtrasSep2",
                                     "mnuExtrasDialogLanguage",
                                     "mnuAnalysis",
                                     "mnuAnalysisOverview",
                                     "mnuAnalysisGoToTime",
                                     "mnuAnalysisNextError",
                                     "mnuAnalysisPrevError",
                                     "mnuAnalysisNextHighlighted",
                                     "mnuAnalysisPrevHighlighted",
                                     "mnuAnalysisNextCommented",
                                     "mnuAnalysisPrevCommented",
                                     "mnuAnalysisSep1",
                                     "mnuAnalysisKeepBetween",
                                     "mnuAnalysisUndo",
                                     "mnuAnalysisRedo",
                                     "mnuAnalysisSep2",
                                     "mnuAnalysisSort",
                                     "mnuAnalysisFitColumns",
                                     "mnuAnalysisSep3",
                                     "mnuAnalysisExport",
                                     "mnuAnalysisErrorTexts",
                                     "mnuHelp",
                                     "mnuHelpContents",
                                     "mnuHelpSearch",
                                     "mnuHelpBar0",
                                     "mnuHelpAbout"}));
        QStringList popup;
        for (const QAction* item : Find<QMenu>("mnuPopup")->actions())
            popup << item->objectName();
        QCOMPARE(popup, QStringList({"mnuPopupToggle", "mnuPopupRemove", "mnuPopupProperties", "mnuPopupSep",
                                     "mnuPopupEditFilter"}));
    }

    void EachMenuItemHasItsTextInBothLanguages() {
        for (const int number : {0, 1}) {
            WriteLanguage(*Settings, {number});
            OpenWindow();
            int seen = 0;
            for (const TextRow& row : TextTable()) {
                const QString name = NameOf(row.Id);
                if (name.isEmpty())
                    continue;
                const auto* item = Window->findChild<QAction*>(name);
                const auto* menu = Window->findChild<QMenu*>(name);
                QVERIFY2(item != nullptr || menu != nullptr, qPrintable(name));
                QCOMPARE(item != nullptr ? item->text() : menu->title(), QtText(row.Id, {number}));
                ++seen;
            }
            QCOMPARE(seen, 37);
        }
    }

    void StandardKeysAreSet() {
        const std::pair<const char*, const char*> keys[] = {
            {"mnuFileOpen", "Ctrl+O"},
            {"mnuFileZipLogbook", "Ctrl+S"},
            {"mnuViewRefresh", "F5"},
            {"mnuExtrasSearch", "Ctrl+F"},
            {"mnuExtrasFindNext", "F3"},
            {"mnuExtrasFindPrev", "Shift+F3"},
            {"mnuHelpContents", "F1"},
            {"mnuFileExit", "Ctrl+Q"},
            {"mnuAnalysisGoToTime", "Ctrl+G"},
            {"mnuAnalysisUndo", "Ctrl+Z"},
            {"mnuAnalysisRedo", "Ctrl+Y"},
            {"mnuAnalysisNextError", "F4"},
            {"mnuAnalysisPrevError", "Shift+F4"},
            {"mnuAnalysisNextHighlighted", "F7"},
            {"mnuAnalysisPrevHighlighted", "Shift+F7"},
            {"mnuAnalysisNextCommented", "F8"},
            {"mnuAnalysisPrevCommented", "Shift+F8"},
        };
        for (const auto& [name, key] : keys)
            QCOMPARE(Item(name)->shortcut().toString(QKeySequence::PortableText), QString(key));
    }

    void FindNextAndPreviousAreDisabledAtStart() {
        QVERIFY(!Item("mnuExtrasFindNext")->isEnabled());
        QVERIFY(!Item("mnuExtrasFindPrev")->isEnabled());
    }

    void ButtonsHaveTheirKeysAndTips() {
        const auto* bar = Find<MainToolBar>("tbToolBar");
        const auto texts = [&bar](auto text) {
            QStringList all;
            for (const QAction* button : bar->actions())
                all << text(button);
            return all;
        };
        const auto tips = [&] { return texts([](const QAction* button) { return button->toolTip(); }); };
        QCOMPARE(texts([](const QAction* button) { return button->data().toString(); }),
                 QStringList({"Öffnen", "ZipLogbook", "Filter", "Refresh"}));
        QCOMPARE(tips(),
                 QStringList({"Open...", "Save log into archive", "Log filter settings...", "Refresh"}));
        WriteLanguage(*Settings, {1});
        OpenWindow();
        bar = Find<MainToolBar>("tbToolBar");
        QCOMPARE(tips(), QStringList({"Öffnen...", "Logbuch in Archiv speichern...",
                                      "Logbuch Filtereinstellungen...", "Aktualisieren"}));
    }

    void ButtonWithAnotherKeyDoesNothing() {
        const std::string file = File("a.log", {Header("BERR:    a"), Header("RESET:")});
        Window->OpenLogbook(file);
        Folder.Write("a.log", Lines({Header("BERR:    a"), Header("BERR:    b"), Header("BERR:    c")}));
        for (const char* key : {"", "refresh", "Open", "Offnen", "Refresh "})
            Window->ToolBarButtonClick(key);
        QCOMPARE(Counts(), QString("2 / 2 Items"));
        Window->ToolBarButtonClick("Refresh");
        QCOMPARE(Counts(), QString("3 / 3 Items"));
    }

    void RefreshReadsTheFileAgain() {
        Window->OpenLogbook(File("a.log", {Header("BERR:    a"), Header("RESET:")}));
        Folder.Write("a.log", Lines({Header("BERR:    a"), Header("BERR:    b"), Header("BERR:    c")}));
        QTest::keyClick(Window.get(), Qt::Key_F5);
        QCOMPARE(Counts(), QString("3 / 3 Items"));
        QCOMPARE(Window->windowTitle(), QString("a - Qorvix"));
        const auto buttons = Find<MainToolBar>("tbToolBar")->findChildren<QToolButton*>();
        Folder.Write("a.log", Lines({Header("RESET:")}));
        QTest::mouseClick(*std::find_if(buttons.begin(), buttons.end(),
                                        [](const QToolButton* button) {
                                            return button->defaultAction() != nullptr &&
                                                   button->defaultAction()->data() == "Refresh";
                                        }),
                          Qt::LeftButton);
        QCOMPARE(Counts(), QString("1 / 1 Items"));
    }

    void EveryItemIsJoined() {
        QStringList disabled;
        for (const QAction* item : Window->findChildren<QAction*>())
            if (item->objectName().startsWith("mnu") && !item->isEnabled())
                disabled << item->objectName();
        QCOMPARE(disabled, QStringList({"mnuExtrasFindNext", "mnuExtrasFindPrev", "mnuAnalysisUndo",
                                        "mnuAnalysisRedo", "mnuAnalysisExport"}));
        for (const QAction* button : Find<MainToolBar>("tbToolBar")->actions())
            QVERIFY(button->isEnabled());
    }

    void FiltersAreEditedFromMenuButtonAndPopup() {
        Window->OpenLogbook(FileOfErrors(3));
        int shown = 0;
        const auto answer = [&](const char* button) {
            QTimer::singleShot(0, Person.get(), [&, button] {
                QWidget* const dialog = QApplication::activeModalWidget();
                QCOMPARE(dialog->objectName(), QString("frmLogbookSettings"));
                ++shown;
                QTest::mouseClick(dialog->findChild<QPushButton*>(button), Qt::LeftButton);
            });
        };
        answer("cmdCancel");
        Item("mnuExtrasFilters")->trigger();
        answer("cmdOK");
        Window->ToolBarButtonClick("Filter");
        QCOMPARE(shown, 2);

        // From the popup menu only after it has closed.
        Item("mnuPopupEditFilter")->trigger();
        auto* const timer = Find<QTimer>("tmExtrasFilters");
        QVERIFY(timer->isActive() && timer->isSingleShot());
        QCOMPARE(timer->interval(), 200);
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        QTimer::singleShot(timer->remainingTime() + 1, Person.get(), [&] { answer("cmdCancel"); });
        QTRY_COMPARE(shown, 3);
        QVERIFY(!timer->isActive());
    }

    void FiltersOfThePopupWaitUntilAnotherDialogIsClosed() {
        Window->OpenLogbook(FileOfErrors(1));
        auto* const timer = Find<QTimer>("tmExtrasFilters");
        QMessageBox other(Window.get());
        other.open();
        QTRY_VERIFY(QApplication::activeModalWidget() == &other);
        Item("mnuPopupEditFilter")->trigger();
        QSignalSpy fired(timer, &QTimer::timeout);
        QVERIFY(fired.wait());
        QVERIFY(QApplication::activeModalWidget() == &other);
        QVERIFY(timer->isActive());
        timer->stop();
        other.close();
    }

    void MissingHelpIsTold() {
        AnswerMessages(2);
        Item("mnuHelpContents")->trigger();
        Item("mnuHelpSearch")->trigger();
        QCOMPARE(MessageTexts, QStringList(2, "This application has no help file."));
        WriteLanguage(*Settings, {1});
        OpenWindow();
        AnswerMessages(1);
        Press(Qt::Key_F1);
        QCOMPARE(MessageTexts,
                 QStringList({"Hilfeinhalt konnte nicht angezeigt werden. Dieser Anwendung ist keine "
                              "Hilfedatei zugeordnet."}));
    }

    void AboutBoxIsShown() {
        QString designation;
        QTimer::singleShot(0, Person.get(), [&] {
            QWidget* const dialog = QApplication::activeModalWidget();
            designation = dialog->objectName();
            dialog->close();
        });
        Item("mnuHelpAbout")->trigger();
        QCOMPARE(designation, QString("frmAbout"));
    }

    void ExitClosesTheWindow() {
        Item("mnuFileExit")->trigger();
        QVERIFY(!Window->isVisible());
    }

    void EveryControlOfATabWalkHasAName() {
        Item("mnuVContent")->trigger();
        QApplication::setActiveWindow(Window.get());
        List()->setFocus();
        std::set<QString> walked;
        for (int step = 0; step < 20; ++step) {
            const QWidget* const control = QApplication::focusWidget();
            QVERIFY(control != nullptr);
            QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
            walked.insert(control->accessibleName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QVERIFY(walked.contains("Logbook"));
        QVERIFY(walked.contains("Contents of the selected row"));
    }

  private:
    // The object name of the menu or item that has this text.
    static QString NameOf(TextId id) {
        static const std::map<TextId, QString> names{
            {TextId::mnuFile, "mnuFile"},
            {TextId::mnuView, "mnuView"},
            {TextId::mnuExtras, "mnuExtras"},
            {TextId::mnuHelp, "mnuHelp"},
            {TextId::mnuAnalysis, "mnuAnalysis"},
            {TextId::mnuAnalysisGoToTime, "mnuAnalysisGoToTime"},
            {TextId::mnuAnalysisNextError, "mnuAnalysisNextError"},
            {TextId::mnuAnalysisPrevError, "mnuAnalysisPrevError"},
            {TextId::mnuAnalysisNextHighlighted, "mnuAnalysisNextHighlighted"},
            {TextId::mnuAnalysisPrevHighlighted, "mnuAnalysisPrevHighlighted"},
            {TextId::mnuAnalysisNextCommented, "mnuAnalysisNextCommented"},
            {TextId::mnuAnalysisPrevCommented, "mnuAnalysisPrevCommented"},
            {TextId::mnuAnalysisFitColumns, "mnuAnalysisFitColumns"},
            {TextId::mnuAnalysisExport, "mnuAnalysisExport"},
            {TextId::mnuAnalysisErrorTexts, "mnuAnalysisErrorTexts"},
            {TextId::mnuAnalysisKeepBetween, "mnuAnalysisKeepBetween"},
            {TextId::mnuAnalysisUndo, "mnuAnalysisUndo"},
            {TextId::mnuAnalysisRedo, "mnuAnalysisRedo"},
            {TextId::mnuFileOpen, "mnuFileOpen"},
            {TextId::mnuFileZipLogbook, "mnuFileZipLogbook"},
            {TextId::mnuFileExit, "mnuFileExit"},
            {TextId::mnuViewToolbar, "mnuViewToolbar"},
            {TextId::mnuViewStatusBar, "mnuViewStatusBar"},
            {TextId::mnuVContent, "mnuVContent"},
            {TextId::mnuViewRefresh, "mnuViewRefresh"},
            {TextId::mnuExtrasSearch, "mnuExtrasSearch"},
            {TextId::mnuExtrasFindNext, "mnuExtrasFindNext"},
            {TextId::mnuExtrasFindPrev, "mnuExtrasFindPrev"},
            {TextId::mnuExtrasFilters, "mnuExtrasFilters"},
            {TextId::mnuExtrasDialogLanguage, "mnuExtrasDialogLanguage"},
            {TextId::mnuHelpContents, "mnuHelpContents"},
            {TextId::mnuHelpSearch, "mnuHelpSearch"},
            {TextId::mnuHelpAbout, "mnuHelpAbout"},
            {TextId::mnuPopupToggle, "mnuPopupToggle"},
            {TextId::mnuPopupRemove, "mnuPopupRemove"},
            {TextId::mnuPopupProperties, "mnuPopupProperties"},
            {TextId::mnuPopupEditFilter, "mnuPopupEditFilter"},
        };
        const auto found = names.find(id);
        return found == names.end() ? QString() : found->second;
    }
};

QORVIX_WINDOW_TEST(MainMenusTest)
#include "MainMenusTest.moc"
