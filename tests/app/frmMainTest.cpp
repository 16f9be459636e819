// SPDX-License-Identifier: MIT
#include "app/MainWindowTest.h"

#include "filter/FilterStorage.h"
#include "support/WindowTest.h"
#include "support/ZipWriter.h"

#include <QComboBox>
#include <QPushButton>

class frmMainTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void init() { StartAfresh(); }
    void cleanup() { Window.reset(); }

    void ShowsTheSamples() {
        for (const char* sample : {"classic", "separated", "operation"}) {
            const std::string path = QORVIX_SOURCE_FOLDER "/samples/" + std::string(sample) + ".log";
            Window->RunCommandLine({path});
            QCOMPARE(Window->windowTitle(), QString("%1 - Qorvix").arg(sample));
            const int rows = List()->model()->rowCount();
            QVERIFY(rows > 100);
            QCOMPARE(Counts(), QString("%1 / %1 Items").arg(rows));
        }
    }

    void LastLogbookStays() {
        const std::string first = File("first.log", {Header("BERR:    a"), Header("RESET:")});
        const std::string second = File("second.x.log", {Header("BERR:    b"), std::string(60, ' ')});
        Window->RunCommandLine({first, second});
        QCOMPARE(Window->windowTitle(), QString("second - Qorvix"));
        QCOMPARE(Cell(0, 1), QString("b"));
        QCOMPARE(Counts(), QString("1 / 1 Items"));
    }

    void FileThatCannotBeOpenedGivesAnEmptyListInSilence() {
        Window->RunCommandLine({File("a.log", {Header("BERR:    a"), Header("RESET:")})});
        Window->RunCommandLine({Folder / "missing.log"});
        QCOMPARE(Window->windowTitle(), QString("missing - Qorvix"));
        QCOMPARE(Counts(), QString("0 / 2 Items"));
    }

    void EmptySlotOfAFileThatCannotBeOpenedLooksLikeNoEvent() {
        Window->RunCommandLine({Folder / "missing.log"});
        Window->ApplyFilter();
        QCOMPARE(List()->model()->rowCount(), 1);
        QCOMPARE(Cell(0, 0), QString());
        const QModelIndex first = List()->model()->index(0, 0);
        QCOMPARE(first.data(LogbookModel::ImageRole).toInt(), 0);
    }

    void ReadErrorIsToldAndLeavesTheListEmpty() {
        AnswerMessages(1);
        Window->RunCommandLine({File("a.log", {Header("BERR:    a"), "RESET:", std::string(100, ' ')})});
        QCOMPARE(MessageTexts, QStringList({"Error reading logbook file"}));
        QCOMPARE(Counts(), QString("0 / 1 Items"));
        QCOMPARE(Window->windowTitle(), QString("Qorvix"));
    }

    void FileWithoutEventsIsAFilterError() {
        AnswerMessages(2);
        Window->RunCommandLine({File("a.log", {"nothing"})});
        QCOMPARE(MessageTexts, QStringList({"Error applying filters", "Filter error"}));
        QCOMPARE(MessageTitles, QStringList({"Filter error", "Qorvix"}));
        QCOMPARE(Counts(), QString("0 / 1 Items"));
    }

    // It holds what the file says.
    void UnsupportedVersionIsToldAsPlainText() {
        Qt::TextFormat format = Qt::AutoText;
        QTimer::singleShot(0, Person.get(), [&] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box != nullptr);
            format = box->textFormat();
            MessageTexts << box->text();
            box->accept();
        });
        Window->RunCommandLine({File("a.log", {"Operation Logbook Version <b>", Header("Stib: ON")})});
        QCOMPARE(format, Qt::PlainText);
        QCOMPARE(MessageTexts.size(), 1);
        QVERIFY(MessageTexts.front().contains("<b>"));
    }

    void UnsupportedVersionIsToldInGerman() {
        AnswerMessages(1);
        Window->RunCommandLine({File("a.log", {"Operation Logbook Version 2.0", Header("Stib: ON")})});
        QCOMPARE(MessageTexts,
                 QStringList({"Logbuch Version 2.0 wird von dieser Kelvaro Version nicht unterstützt.\r\n"
                              "Informieren Sie sich bei VELTRANDOR über die neueste Kelvaro Version."}));
        QCOMPARE(Counts(), QString("1 / 1 Items"));
    }

    void ClosingEndsAReadThatNeverFinishes() {
        const std::string endless = File("a.log", {Header("RESET:"), Header("BREG:"), " D0=1"});
        QTimer::singleShot(0, Window.get(), [this] {
            QVERIFY(Book->Busy);
            QVERIFY(!Window->close());
        });
        Window->RunCommandLine({endless, endless});
        QVERIFY(!Window->isVisible());
        QVERIFY(!Book->Busy);
        QVERIFY(MessageTexts.isEmpty());
    }

    void ClosingEndsAReadThatStoresNothing() {
        // Without events until its end it would be told as a logbook without entries.
        CloseSoon();
        AnswerMessages(1);
        Window->RunCommandLine({Folder.Write("a.log", std::string(32U << 20U, '\n'))});
        QVERIFY(!Window->isVisible());
        QVERIFY(!Book->Busy);
        QCOMPARE(Book->LoadState, LoadStates::Reading);
        QVERIFY(MessageTexts.isEmpty());
    }

    void ClosingComesBeforeWhateverTheReadHasToTell() {
        const std::string noEvent = File("a.log", {"nothing"});
        const std::string broken = File("b.log", {Header("BERR:    a"), "RESET:", std::string(100, ' ')});
        for (const std::string& file : {noEvent, broken}) {
            StartAfresh();
            CloseSoon();
            AnswerMessages(1);
            Window->RunCommandLine({file});
            QVERIFY(!Window->isVisible());
            QVERIFY(MessageTexts.isEmpty());
        }
        const std::string archive = Folder / "own.qorvix";
        WriteZip(
            archive,
            {{"x.log", Lines({Header("BERR:    a")})}, {"x.fil", "[Filters]\r\n"}, {"x.cmt", "no comments"}});
        StartAfresh();
        AnswerMessages(1);
        Window->RunCommandLine({archive});
        QCOMPARE(MessageTexts.size(), 1);
        StartAfresh();
        CloseSoon();
        AnswerMessages(1);
        Window->RunCommandLine({archive});
        QVERIFY(!Window->isVisible());
        QVERIFY(MessageTexts.isEmpty());
    }

    void StoredFiltersDecideWhatIsShown() {
        SaveFilters(*Settings, {{Filter("I|0||||1"), Filter("X|7||||1")}, {}}, "");
        Window->RunCommandLine(
            {File("a.log", {Header("BERR:    a"), Header("RESET:"), Header("BERR:    b")})});
        QCOMPARE(Counts(), QString("2 / 3 Items"));
        QCOMPARE(Cell(1, 5), QString("2"));
        SaveFilters(*Settings, {{Filter("I|7||||1")}, {}}, "");
        Window->ApplyFilter();
        QCOMPARE(Counts(), QString("1 / 3 Items"));
        QCOMPARE(Cell(0, 0), QString("Restart"));
        SaveFilters(*Settings, {{Filter("I|7||||0")}, {}}, "");
        Window->ApplyFilter();
        QCOMPARE(Counts(), QString("0 / 3 Items"));
    }

    void SelectionGoesToTheNextEntryThatIsShown() {
        std::vector<std::string> lines;
        for (int i = 0; i < 50; ++i)
            lines.push_back(Header("BERR:    " + std::to_string(i)));
        Window->RunCommandLine({File("a.log", lines)});
        List()->selectRow(40);
        SaveFilters(*Settings, {{Filter("I|0||||1"), Filter("X|8|40|||1")}, {}}, "");
        Window->ApplyFilter();
        QVERIFY(List()->selectionModel()->isRowSelected(40));
        QCOMPARE(List()->selectionModel()->selectedRows().size(), 1);
        QCOMPARE(Cell(40, 5), QString("41"));
        QVERIFY(List()->viewport()->rect().intersects(List()->visualRect(List()->model()->index(40, 0))));

        SaveFilters(*Settings, {{Filter("I|8|0-5|||1")}, {}}, "");
        Window->ApplyFilter();
        QVERIFY(!List()->selectionModel()->hasSelection());
    }

    void FailedFilterRunKeepsItsRows() {
        Window->RunCommandLine({File("a.log", {Header("BERR:    a"), Header("RESET:")})});
        ParsedEntry bad;
        bad.EventType = 10;
        Book->Entries.Append(bad, CodePage());
        AnswerMessages(1);
        Window->ApplyFilter();
        QCOMPARE(MessageTexts, QStringList({"Error applying filters"}));
        QCOMPARE(MessageTitles, QStringList({"Filter error"}));
        QCOMPARE(Counts(), QString("2 / 2 Items"));

        // Also in German, and when the filter dialog applies its filters.
        ChooseInDialog(1, "cmdOK");
        QTimer::singleShot(0, Person.get(), [this] {
            QWidget* const dialog = QApplication::activeModalWidget();
            AnswerMessages(1);
            QTest::mouseClick(dialog->findChild<QPushButton*>("cmdApply"), Qt::LeftButton);
            QTest::mouseClick(dialog->findChild<QPushButton*>("cmdCancel"), Qt::LeftButton);
        });
        Item("mnuExtrasFilters")->trigger();
        QCOMPARE(MessageTexts.back(), QString("Fehler beim Anwenden der Filtereinstellungen"));
        QCOMPARE(MessageTitles.back(), QString("Fehler beim Filtern der Datei"));
    }

    void MessagesHaveTheNameOfTheProgramAsTitle() {
        const std::string log = File("a.log", {Header("BERR:    a"), Header("RESET:")});
        AnswerMessages(1);
        Window->RunCommandLine({log, "-y"});
        AnswerMessages(1);
        Window->RunCommandLine({File("b.log", {"Operation Logbook Version 2.0", Header("Stib: ON")})});
        WriteZip(Folder / "own.qorvix", {{"x.log", Lines({Header("RESET:")})}, {"x.fil", "[Filters]\r\n"}});
        AnswerQuestion(QMessageBox::Cancel);
        Window->OpenLogbook(Folder / "own.qorvix");
        QCOMPARE(Window->windowTitle(), QString("b - Qorvix"));
        QCOMPARE(MessageTitles, QStringList({"Qorvix", "Qorvix", "Qorvix"}));
    }

    void ArchivesAreOpened() {
        const std::string log = Lines({Header("BERR:    a"), Header("RESET:")});
        WriteZip(Folder / "service.zip", {{"logbook/lb_act.log", log}});
        Window->RunCommandLine({Folder / "service.zip"});
        QCOMPARE(Window->windowTitle(), QString("lb_act - Qorvix"));
        QCOMPARE(Counts(), QString("2 / 2 Items"));
    }

    void FiltersOfAnArchiveReplaceTheActiveOnesWhenWanted() {
        const std::string log = Lines({Header("BERR:    a"), Header("RESET:")});
        WriteZip(Folder / "own.qorvix", {{"x.log", log}, {"x.fil", "[Filters]\r\nI|7||||1\r\n"}});
        AnswerQuestion(QMessageBox::No);
        Window->RunCommandLine({Folder / "own.qorvix"});
        QCOMPARE(MessageTexts, QStringList({"Replace active filter list?"}));
        QCOMPARE(Counts(), QString("2 / 2 Items"));
        AnswerQuestion(QMessageBox::Yes);
        Window->RunCommandLine({Folder / "own.qorvix"});
        QCOMPARE(Counts(), QString("1 / 2 Items"));
        QCOMPARE(LoadFilters(*Settings, {}).Filters, std::vector{Filter("I|7||||1")});
    }

    void CancelKeepsTheLogbookThatIsShown() {
        Window->RunCommandLine(
            {File("first.log", {Header("BERR:    a"), Header("BERR:    b"), Header("BERR:    c")})});
        WriteZip(Folder / "own.qorvix", {{"x.log", Lines({Header("RESET:")})}, {"x.fil", "[Filters]\r\n"}});
        AnswerQuestion(QMessageBox::Cancel);
        QVERIFY(!Window->OpenLogbook(Folder / "own.qorvix"));
        QCOMPARE(Window->windowTitle(), QString("first - Qorvix"));
        QCOMPARE(Counts(), QString("3 / 3 Items"));
    }

    void DamagedFiltersOfAnArchiveAreToldAndTheActiveOnesStay() {
        WriteZip(Folder / "own.qorvix", {{"x.log", Lines({Header("BERR:    a"), Header("RESET:")})},
                                         {"x.fil", "[Filters]\r\nnonsense\r\n"}});
        AnswerQuestion(QMessageBox::Yes);
        QTimer::singleShot(50, this, [this] { AnswerMessages(1); });
        Window->RunCommandLine({Folder / "own.qorvix"});
        QCOMPARE(MessageTexts.size(), 2);
        QVERIFY(MessageTexts[1].endsWith("invalid filter in line 2"));
        QCOMPARE(Counts(), QString("2 / 2 Items"));
    }

    void FiltersOfAnArchiveThatCannotBeStoredAreToldAndTheActiveOnesStay() {
        WriteZip(Folder / "own.qorvix",
                 {{"x.log", Lines({Header("BERR:    a"), Header("RESET:")})},
                  {"x.fil", "[Filters]\r\nI|7||||1\r\nI|8|" + std::string(2000, '1') + "|||1\r\n"}});
        SaveFilters(*Settings, {{Filter("I|4||||1")}, {}}, "");
        AnswerQuestion(QMessageBox::Yes);
        QTimer::singleShot(50, this, [this] { AnswerMessages(1); });
        Window->RunCommandLine({Folder / "own.qorvix"});
        QCOMPARE(MessageTexts.size(), 2);
        QVERIFY(MessageTexts[1].endsWith(
            "x.fil: This filter is too long to be stored: the whole list would fall back to the default "
            "filter."));
        QCOMPARE(LoadFilters(*Settings, {}).Filters, std::vector{Filter("I|4||||1")});
        QCOMPARE(Counts(), QString("1 / 2 Items"));
    }

    void ArchiveWithoutLogbookIsTold() {
        WriteZip(Folder / "a.zip", {{"readme", "x"}});
        AnswerMessages(1);
        Window->RunCommandLine({Folder / "a.zip"});
        QCOMPARE(MessageTexts, QStringList({QString::fromStdString("The archive contains no logbook file (" +
                                                                   (Folder / "a.zip") + ")")}));
        QCOMPARE(Window->windowTitle(), QString("a - Qorvix"));
    }

    void AFileIsOpenedWhateverItsName() {
        for (const char* const name : {"my \"press\" log.log", "\"a\".log", " b \".log"}) {
            Window->RunCommandLine({"-emb", File(name, {Header("BERR:    a"), Header("RESET:")})});
            QCOMPARE(Counts(), QString("2 / 2 Items"));
            QCOMPARE(Window->windowTitle(), QString(name).section('.', 0, 0) + " - Qorvix");
        }
    }

    void UnknownOptionShowsTheUsage() {
        AnswerMessages(1);
        Window->RunCommandLine({"-y", File("my log.log", {Header("BERR:    a"), Header("RESET:")})});
        QCOMPARE(MessageTexts, QStringList({"Qorvix command line parameters:\r\n\r\n"
                                            " <file name>: Log/Service file name\r\n -EMB: Embedded mode"}));
        QCOMPARE(Counts(), QString("2 / 2 Items"));
        MessageTexts.clear();
        Window->RunCommandLine({"-y", "-emb"});
        QVERIFY(MessageTexts.isEmpty());
    }

    void EmbeddedModeShowsNoUsage() {
        AnswerMessages(1);
        Window->RunCommandLine({"?", "-EMB"});
        QVERIFY(MessageTexts.isEmpty());
        Window->RunCommandLine({"?"});
        QCOMPARE(MessageTexts.size(), 1);
        QVERIFY(MessageTexts.front().startsWith("Qorvix command line parameters:"));
    }

    void TitleOfAPathOfAnotherSystemIsTheBareName() {
        Window->RunCommandLine({"C:\\x\\lb_act.log"});
        QCOMPARE(Window->windowTitle(), QString("lb_act - Qorvix"));
        Window->RunCommandLine(
            {File("C:\\x\\copied.log", {Header("BERR:    a"), Header("BERR:    b"), Header("RESET:")})});
        QCOMPARE(Window->windowTitle(), QString("copied - Qorvix"));
        QCOMPARE(Counts(), QString("3 / 3 Items"));
    }

    void LanguageIsSwitchedAtOnce() {
        Window->RunCommandLine({File("a.log", {Header("BERR:    a"), Header("RESET:")})});
        QCOMPARE(LanguageItem()->text(), QString("&Dialog language..."));
        ChooseInDialog(1, "cmdOK");
        QCOMPARE(LanguageItem()->text(), QString("&Dialogsprache..."));
        QCOMPARE(HeaderTexts(),
                 QStringList({"Ereignistyp", "Inhalt", "Quelle", "Name", "Zeit", "Index", "Kommentar"}));
        QCOMPARE(Counts(), QString("2 / 2 Einträge"));
        QCOMPARE(Window->findChild<QLabel*>("statusText")->text(), QString("Bereit"));
        QCOMPARE(ReadLanguage(*Settings).Number, 1);

        AnswerMessages(1);
        Window->RunCommandLine({File("b.log", {Header("BERR:    a"), "RESET:", std::string(100, ' ')})});
        QCOMPARE(MessageTexts, QStringList({"Fehler beim Lesen des Logbuchs"}));

        ChooseInDialog(5, "cmdOK");
        QCOMPARE(LanguageItem()->text(), QString("&Dialog language..."));
        QCOMPARE(HeaderTexts().first(), QString("Event type"));
        QCOMPARE(ReadLanguage(*Settings).Number, 5);
        ChooseInDialog(10, "cmdOK");
        QCOMPARE(ReadLanguage(*Settings).Number, 10);
    }

    void UnchangedLanguageWritesNothing() {
        ChooseInDialog(0, "cmdOK");
        QVERIFY(Store->Values.empty());
        ChooseInDialog(1, "cmdCancel");
        QVERIFY(Store->Values.empty());
        QCOMPARE(LanguageItem()->text(), QString("&Dialog language..."));
    }

    void MessageBoxesHaveGermanButtonsToo() {
        const auto yesText = [this] {
            QString text;
            QTimer::singleShot(0, this, [&text] {
                auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                text = box->button(QMessageBox::Yes)->text().remove('&');
                box->reject();
            });
            QMessageBox::question(Window.get(), "", "", QMessageBox::Yes | QMessageBox::No);
            return text;
        };
        QCOMPARE(yesText(), QString("Yes"));
        ChooseInDialog(1, "cmdOK");
        QCOMPARE(yesText(), QString("Ja"));
        ChooseInDialog(0, "cmdOK");
        QCOMPARE(yesText(), QString("Yes"));
    }

  private:
    // Closes the window as soon as events run.
    void CloseSoon() {
        QTimer::singleShot(0, Window.get(), [this] { Window->close(); });
    }

    QAction* LanguageItem() const { return Item("mnuExtrasDialogLanguage"); }

    // Opens the language dialog by its menu item, selects a row and presses a button.
    void ChooseInDialog(int row, const char* button) {
        QTimer::singleShot(0, this, [row, button] {
            QWidget* const dialog = QApplication::activeModalWidget();
            dialog->findChild<QComboBox*>("cbDialogLanguage")->setCurrentIndex(row);
            QTest::mouseClick(dialog->findChild<QPushButton*>(button), Qt::LeftButton);
        });
        LanguageItem()->trigger();
    }
};

QORVIX_WINDOW_TEST(frmMainTest)
#include "frmMainTest.moc"
