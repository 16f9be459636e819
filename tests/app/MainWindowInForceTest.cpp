// SPDX-License-Identifier: MIT
#include "app/MainWindowTest.h"

#include "app/AppIcons.h"
#include "filter/FilterStorage.h"
#include "support/WindowTest.h"
#include "support/ZipWriter.h"

#include <QAccessible>
#include <QComboBox>
#include <QHelpEvent>
#include <QToolBar>
#include <QToolTip>
#include <QTreeWidget>

#include <functional>

// What the window shows of the filters in force: the filter button, the tool tip of the counts, and the
// status after a logbook is opened.
class MainWindowInForceTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void init() { StartAfresh(); }
    void cleanup() { Window.reset(); }

    void ButtonLooksFilledFromTheStartOn() {
        QVERIFY(LooksPlain());
        QCOMPARE(Spoken(Button(), QAccessible::Name), QString("Log filter settings..."));
        Store({"I|0||||1", "X|3||||1"});
        OpenWindow();
        QVERIFY(LooksFilled());
        QCOMPARE(Spoken(Button(), QAccessible::Description),
                 QString("Filters other than All entries are active"));
        // The tip stays as it is.
        QCOMPARE(Find<QAction>("Filter")->toolTip(), QString("Log filter settings..."));
        ChooseLanguage(Language::German);
        QVERIFY(LooksFilled());
        QCOMPARE(Spoken(Button(), QAccessible::Description),
                 QString("Andere Filter als Alle Einträge sind aktiv"));
        QCOMPARE(Find<QAction>("Filter")->toolTip(), QString("Logbuch Filtereinstellungen..."));
        Store({"I|0||||1", "X|3||||0"});
        OpenWindow();
        QVERIFY(LooksPlain());
    }

    void ButtonFollowsRemovingAndHighlighting() {
        Window->OpenLogbook(FileOfErrors(4));
        List()->selectRow(1);
        Window->Run(Command::ToggleHighlighting);
        QVERIFY(LooksFilled());
        Window->Run(Command::ToggleHighlighting);
        QVERIFY(LooksPlain());
        Window->Run(Command::RemoveFromList);
        QVERIFY(LooksFilled());
        Press(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(LooksPlain());
        Press(Qt::Key_Y, Qt::ControlModifier);
        QVERIFY(LooksFilled());
        Press(Qt::Key_Z, Qt::ControlModifier);
        List()->selectRow(2);
        Window->Run(Command::KeepBetween);
        QVERIFY(LooksFilled());
    }

    void ButtonFollowsTheDialog() {
        Store({"I|0||||1", "X|3||||1"});
        OpenWindow();
        InFilterDialog([this](QWidget& dialog) {
            dialog.findChild<QTreeWidget*>("lvFilter")->topLevelItem(1)->setCheckState(0, Qt::Unchecked);
            QVERIFY(LooksFilled());
            Click(dialog, "cmdApply");
            QVERIFY(LooksPlain());
            dialog.findChild<QTreeWidget*>("lvFilter")->topLevelItem(1)->setCheckState(0, Qt::Checked);
            Click(dialog, "cmdOK");
        });
        QVERIFY(LooksFilled());
        InFilterDialog([](QWidget& dialog) {
            dialog.findChild<QTreeWidget*>("lvFilter")->topLevelItem(1)->setCheckState(0, Qt::Unchecked);
            Click(dialog, "cmdCancel");
        });
        QVERIFY(LooksFilled());
    }

    void ButtonFollowsAnArchive() {
        const std::string archive = Folder / "own.qorvix";
        WriteZip(archive, {{"x.log", Lines({Header("BERR:    a"), Header("BERR:    b")})},
                           {"x.fil", "[Filters]\r\nI|0||||1\r\nX|8|1|||1\r\n"}});
        AnswerQuestion(QMessageBox::No);
        Window->OpenLogbook(archive);
        QVERIFY(LooksPlain());
        AnswerQuestion(QMessageBox::Yes);
        Window->OpenLogbook(archive);
        QVERIFY(LooksFilled());
        QCOMPARE(Status(), QString("Ready"));
    }

    // Another copy of the program changes the stored filters.
    void ChangesOfOthersAreSeenAtTheNextRun() {
        Window->OpenLogbook(FileOfErrors(4));
        Store({"I|0||||1", "H|4||||1"});
        ChooseLanguage(Language::English);
        QVERIFY(LooksPlain());
        List()->selectRow(1);
        Window->Run(Command::RemoveFromList);
        QVERIFY(LooksFilled());
        QCOMPARE(Why(), QString("1 removed by number"));
        Window->ApplyFilter();
        QVERIFY(LooksFilled());
        Store({"I|0||||1"});
        QVERIFY(LooksFilled());
        QCOMPARE(Why(), QString("1 removed by number"));
        Window->ApplyFilter();
        QVERIFY(LooksPlain());
        QCOMPARE(Why(), QString());
    }

    void TipOfTheCountsSaysWhatIsHidden() {
        QCOMPARE(Tip(), QString());
        Store({"I|4||||1", "X|8|0-1|||1"});
        Window->OpenLogbook(FileOfErrorsAndStates(5, 1204));
        QCOMPARE(Counts(), QString("3 / 1209 Items"));
        QCOMPARE(Why(), QString("2 removed by number, 1,204 not of the chosen types"));
        QVERIFY2(Tip().contains("2 removed by number, 1,204 not of the chosen types"), qPrintable(Tip()));
        List()->SelectRanges({{0, 1}}, 0);
        Window->Run(Command::RemoveFromList);
        QCOMPARE(Why(), QString("4 removed by number, 1,204 not of the chosen types"));
        QVERIFY(Tip().contains(Why()));
        ChooseLanguage(Language::German);
        QCOMPARE(Why(), QString("4 nach Nummer entfernt, 1.204 nicht von den gewählten Arten"));
        QCOMPARE(Spoken(CountsPanel(), QAccessible::Name), QString("1 / 1209 Einträge"));
        Press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(Why(), QString("2 nach Nummer entfernt, 1.204 nicht von den gewählten Arten"));
        ClickHeader(5);
        QCOMPARE(Why(), QString("2 nach Nummer entfernt, 1.204 nicht von den gewählten Arten"));
        Window->OpenLogbook((Folder.Path() / "none.log").string());
        QCOMPARE(Why(), QString());
        QCOMPARE(Tip(), QString());
    }

    void TipOfCutCountsHasBoth() {
        Store({"I|5||||1"});
        Window->OpenLogbook(FileOfErrorsAndStates(5, 1));
        CountsPanel()->setMinimumWidth(0);
        CountsPanel()->setFixedWidth(40);
        QTest::qWait(0);
        QVERIFY2(Tip().contains("1 / 6 Items\n5 not of the chosen types"), qPrintable(Tip()));
    }

    void NumbersOfAnotherLogbookAreToldOnce() {
        const std::string one = FileOfErrors(5);
        const std::string two =
            File("two.log", {Header("RESET:"), Header("BERR:    x"), Header("BERR:    y")});
        Window->OpenLogbook(one);
        List()->SelectRanges({{0, 1}}, 0);
        Window->Run(Command::RemoveFromList);
        Window->OpenLogbook(one);
        QCOMPARE(Status(), QString("Ready"));

        Window->OpenLogbook(two);
        QCOMPARE(Status(), QString("Number filters of another logbook hide 2 entries."));
        ChooseLanguage(Language::German);
        QCOMPARE(Status(), QString("Nummernfilter eines anderen Logbuchs blenden 2 Einträge aus."));
        Window->ApplyFilter();
        QCOMPARE(Status(), QString("Bereit"));
        Window->Run(Command::Refresh);
        QCOMPARE(Status(), QString("Bereit"));
        Window->OpenLogbook(one);
        QCOMPARE(Status(), QString("Bereit"));
    }

    void TakenBackTheyAreTheOtherLogbooksAgain() {
        const std::string one = FileOfErrors(5);
        const std::string two =
            File("two.log", {Header("RESET:"), Header("BERR:    x"), Header("BERR:    y")});
        const QString told = "Number filters of another logbook hide 1 entry.";
        Window->OpenLogbook(one);
        List()->selectRow(1);
        Window->Run(Command::RemoveFromList);
        Window->OpenLogbook(two);
        QCOMPARE(Status(), told);
        List()->selectRow(0);
        Window->Run(Command::RemoveFromList);
        Window->Run(Command::Undo);
        Window->OpenLogbook(two);
        QCOMPARE(Status(), told);
        Window->OpenLogbook(one);
        QCOMPARE(Status(), QString("Ready"));
        // Made again they are for the logbook on which they were made.
        Window->OpenLogbook(two);
        List()->selectRow(0);
        Window->Run(Command::RemoveFromList);
        Window->Run(Command::Undo);
        Window->Run(Command::Redo);
        Window->OpenLogbook(two);
        QCOMPARE(Status(), QString("Ready"));
        Window->OpenLogbook(one);
        QVERIFY(Status().startsWith("Number filters of another logbook hide"));
    }

    void NumbersOfAnUnknownLogbookAreToldAtTheStart() {
        Store({"I|0||||1", "X|8|1|||1"});
        OpenWindow();
        Window->RunCommandLine({FileOfErrors(3)});
        QCOMPARE(Status(), QString("Number filters, perhaps of another logbook, hide 1 entry."));
        // Taking numbers out for this logbook makes the filter its own.
        List()->selectRow(0);
        Window->Run(Command::RemoveFromList);
        Window->OpenLogbook(FileOfErrors(3));
        QCOMPARE(Status(), QString("Ready"));
    }

    void NumbersOfTheFilterDialogAreForTheOpenLogbook() {
        Store({"I|0||||1", "X|8|1|||0"});
        OpenWindow();
        const std::string one = FileOfErrors(3);
        Window->OpenLogbook(one);
        InFilterDialog([](QWidget& dialog) {
            dialog.findChild<QTreeWidget*>("lvFilter")->topLevelItem(1)->setCheckState(0, Qt::Checked);
            Click(dialog, "cmdOK");
        });
        Window->OpenLogbook(one);
        QCOMPARE(Status(), QString("Ready"));
        Window->OpenLogbook(File("two.log", {Header("RESET:"), Header("BERR:    x")}));
        QCOMPARE(Status(), QString("Number filters of another logbook hide 1 entry."));
        // Without a change of numbers they stay the other's.
        InFilterDialog([](QWidget& dialog) { Click(dialog, "cmdOK"); });
        Window->OpenLogbook(File("two.log", {Header("RESET:"), Header("BERR:    x")}));
        QCOMPARE(Status(), QString("Number filters of another logbook hide 1 entry."));
    }

    void CommentsAtRiskComeFirst() {
        Folder.Write("state", "a file");
        Store({"I|0||||1", "X|8|1|||1"});
        Window->OpenLogbook(FileOfErrors(3));
        QVERIFY(Status().startsWith("Number filters"));
        EnterComment(0, "a");
        QVERIFY2(Status().startsWith("Comments are not secured"), qPrintable(Status()));
        std::filesystem::remove(Folder.Path() / "state");
    }

  private:
    static constexpr QSize IconSize{24, 24};

    QWidget* Button() const { return Find<QToolBar>("tbToolBar")->widgetForAction(Find<QAction>("Filter")); }
    QLabel* CountsPanel() const { return Find<QLabel>("statusCounts"); }
    QString Status() const { return Find<QLabel>("statusText")->text(); }
    QString Why() const { return Spoken(CountsPanel(), QAccessible::Description); }

    bool Has(AppIcon icon) const {
        return Find<QAction>("Filter")->icon().pixmap(IconSize).toImage() ==
               MakeAppIcon(icon).pixmap(IconSize).toImage();
    }
    bool LooksFilled() const {
        return Has(AppIcon::FilterInForce) && !Has(AppIcon::Filter) &&
               !Button()->accessibleDescription().isEmpty();
    }
    bool LooksPlain() const {
        return Has(AppIcon::Filter) && !Has(AppIcon::FilterInForce) &&
               Button()->accessibleDescription().isEmpty();
    }

    static QString Spoken(QWidget* widget, QAccessible::Text kind) {
        return QAccessible::queryAccessibleInterface(widget)->text(kind);
    }

    // The tool tip that the mouse brings up on the counts.
    QString Tip() const {
        QToolTip::hideText();
        const QPoint place = CountsPanel()->rect().center();
        QHelpEvent event(QEvent::ToolTip, place, CountsPanel()->mapToGlobal(place));
        QApplication::sendEvent(CountsPanel(), &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }

    void Store(const std::vector<const char*>& filters) {
        FilterLists lists;
        for (const char* filter : filters)
            lists.Filters.push_back(Filter(filter));
        SaveFilters(*Settings, lists, "");
    }

    std::string FileOfErrorsAndStates(int errors, int states) const {
        std::vector<std::string> lines;
        for (int i = 0; i < errors; ++i)
            lines.push_back(Header("BERR:    " + std::to_string(i)));
        for (int i = 0; i < states; ++i)
            lines.push_back(Header("STIB:    " + std::string(i % 2 == 0 ? "On" : "Off")));
        return File("mixed.log", lines);
    }

    void InFilterDialog(const std::function<void(QWidget&)>& act) {
        WaitForDialog("frmLogbookSettings", act);
        Item("mnuExtrasFilters")->trigger();
    }

    void ChooseLanguage(int row) {
        WaitForDialog("frmLanguageDialog", [row](QWidget& dialog) {
            dialog.findChild<QComboBox*>("cbDialogLanguage")->setCurrentIndex(row);
            Click(dialog, "cmdOK");
        });
        Item("mnuExtrasDialogLanguage")->trigger();
    }

    void WaitForDialog(const char* name, const std::function<void(QWidget&)>& act) {
        QTimer::singleShot(0, Person.get(), [=, this] {
            QWidget* const dialog = QApplication::activeModalWidget();
            if (dialog == nullptr || dialog->objectName() != name)
                return WaitForDialog(name, act);
            act(*dialog);
        });
    }

    static void Click(const QWidget& dialog, const char* button) {
        QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
    }
};

QORVIX_WINDOW_TEST(MainWindowInForceTest)
#include "MainWindowInForceTest.moc"
