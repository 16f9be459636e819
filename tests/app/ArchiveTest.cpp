// SPDX-License-Identifier: MIT
#include "app/MainWindowTest.h"

#include "support/WindowTest.h"
#include "support/ZipWriter.h"

// Opening and saving with the common file dialog, and the question about edited comments.
class ArchiveTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init() { StartAfresh(); }
    void cleanup() { Window.reset(); }

    void OpenAsksForTheFile() {
        const std::string file = File("a.log", {Header("BERR:    a"), Header("BERR:    b")});
        QString title;
        AnswerFileDialog(QString::fromStdString(file), &title);
        Item("mnuFileOpen")->trigger();
        QCOMPARE(title, QString("Open"));
        QCOMPARE(Window->windowTitle(), QString("a - Qorvix"));
        QCOMPARE(Counts(), QString("2 / 2 Items"));
        QCOMPARE(Settings->ReadLogbookSettingString("InitLogbookDir", ""), Folder.Path().string() + "/");
        QCOMPARE(Settings->ReadLogbookSettingString("InitLogbookFile", ""), file);

        AnswerFileDialog("");
        Press(Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(Window->windowTitle(), QString("a - Qorvix"));
    }

    void DialogsAreGermanToo() {
        WriteLanguage(*Settings, {1});
        OpenWindow();
        QString title;
        QStringList filters;
        AnswerFileDialog("", &title, &filters);
        Item("mnuFileOpen")->trigger();
        QCOMPARE(title, QString("Öffnen"));
        QCOMPARE(filters.size(), 5);
        QVERIFY(filters.first().startsWith("Alle Logbuch-Dateien ("));
        Window->OpenLogbook(FileOfErrors(1));
        AnswerFileDialog("", &title, &filters);
        Item("mnuFileZipLogbook")->trigger();
        QCOMPARE(title, QString("Archiv speichern"));
        QVERIFY(filters.first().startsWith("Logbuch-Archiv ("));
    }

    void NothingIsSavedWithoutALogbook() {
        Item("mnuFileZipLogbook")->trigger();
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

    void ArchiveBringsCommentsAndFiltersBack() {
        Window->OpenLogbook(FileOfErrors(3));
        Book->Entries.SetComment(1, "geprüft, \"gut\"");
        AnswerFileDialog(QString::fromStdString(Folder / "saved"));
        Press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(std::filesystem::exists(Folder / "saved.qorvix"));
        QCOMPARE(Settings->ReadLogbookSettingString("InitZipArchiveDir", ""), Folder.Path().string() + "/");

        AnswerQuestion(QMessageBox::Yes);
        QVERIFY(Window->OpenLogbook(Folder / "saved.qorvix"));
        QCOMPARE(MessageTexts, QStringList({"Replace active filter list?"}));
        QCOMPARE(Column(6), QStringList({"", "geprüft, \"gut\"", ""}));
        QCOMPARE(Window->windowTitle(), QString("saved - Qorvix"));

        // Refresh reads the logbook alone.
        Item("mnuViewRefresh")->trigger();
        QCOMPARE(Column(6), QStringList({"", "", ""}));
    }

    void FirstArchiveIsProposedBesideItsLogbook() {
        const auto proposed = [this] {
            QString directory;
            QTimer::singleShot(0, Person.get(), [&] {
                auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                QVERIFY(dialog != nullptr);
                directory = dialog->directory().path();
                dialog->reject();
            });
            Item("mnuFileZipLogbook")->trigger();
            return directory;
        };
        const QString logs = QString::fromStdString(Folder.Path().string());
        Window->OpenLogbook(FileOfErrors(1));
        QCOMPARE(proposed(), logs);
        // The folder that is stored when the window closes is that of the program, and none of an archive.
        QVERIFY(Window->close());
        QCOMPARE(Settings->ReadLogbookSettingString("InitZipArchiveDir", ""),
                 QApplication::applicationDirPath().toStdString() + "/");
        OpenWindow();
        Window->OpenLogbook(FileOfErrors(1));
        QCOMPARE(proposed(), logs);

        std::filesystem::create_directory(Folder / "archives");
        AnswerFileDialog(QString::fromStdString(Folder / "archives/a.qorvix"));
        Item("mnuFileZipLogbook")->trigger();
        QCOMPARE(proposed(), logs + "/archives");
    }

    void FiltersOfAnArchiveStoreNoFolderOfFilterFiles() {
        WriteZip(Folder / "own.qorvix",
                 {{"x.log", Lines({Header("BERR:    a")})}, {"x.fil", "[Filters]\r\nI|4||||1\r\n"}});
        AnswerQuestion(QMessageBox::Yes);
        QVERIFY(Window->OpenLogbook(Folder / "own.qorvix"));
        QCOMPARE(Settings->ReadFilterSettingString("Filter1", ""), "I|4||||1");
        QCOMPARE(Settings->ReadFilterSettingString("InitFilterDir", "none"), "none");
        // One that is stored stays.
        Settings->WriteFilterSetting("InitFilterDir", std::string("/filters/"), SettingType::Text);
        AnswerQuestion(QMessageBox::Yes);
        QVERIFY(Window->OpenLogbook(Folder / "own.qorvix"));
        QCOMPARE(Settings->ReadFilterSettingString("InitFilterDir", "none"), "/filters/");
    }

    void CommentsThatRefreshTookAwayAreKept() {
        const QString archive = SaveTwoCommentsAndRefresh();
        EnterComment(2, "third");
        SaveOver(archive, "Keep them too");
        QCOMPARE(MessageTexts.back(),
                 QString("Comments in the archive that the list does not have, or has otherwise: 2\r\n\r\n"
                         "Keep them too? If they are replaced, they are lost."));
        QCOMPARE(Column(6), QStringList({"first", "second", "third"}));
        QVERIFY(Window->close()); // nothing is left to save
        OpenWindow();
        AnswerQuestion(QMessageBox::No); // Replace active filter list?
        QVERIFY(Window->OpenLogbook(archive.toStdString()));
        QCOMPARE(Column(6), QStringList({"first", "second", "third"}));
    }

    void CommentsThatRefreshTookAwayCanBeReplaced() {
        const QString archive = SaveTwoCommentsAndRefresh();
        EnterComment(2, "third");
        SaveOver(archive, "Replace");
        QCOMPARE(Column(6), QStringList({"", "", "third"}));
        AnswerQuestion(QMessageBox::No);
        QVERIFY(Window->OpenLogbook(archive.toStdString()));
        QCOMPARE(Column(6), QStringList({"", "", "third"}));
    }

    void CancelAndEscapeReplaceNothing() {
        const QString archive = SaveTwoCommentsAndRefresh();
        const std::string before = FileContent(archive.toStdString());
        EnterComment(0, "mine");
        EnterComment(2, "third");
        SaveOver(archive, "Cancel");
        QVERIFY(MessageTexts.back().contains(": 1\r\n")); // the other was changed here
        SaveOver(archive, "");                            // Escape
        QCOMPARE(FileContent(archive.toStdString()), before);
        QCOMPARE(Column(6), QStringList({"mine", "", "third"}));
        AnswerQuestion(QMessageBox::Cancel);
        QVERIFY(!Window->close());
        QCOMPARE(MessageTexts.back(), QString("Comments edited. Save into logbook archive?"));
    }

    void QuestionAboutArchivedCommentsIsGermanToo() {
        WriteLanguage(*Settings, {1});
        const QString archive = SaveTwoCommentsAndRefresh();
        QStringList buttons;
        QString preferred;
        QTimer::singleShot(0, Person.get(), [&] {
            AnswerFileDialog(archive);
            LookAtChoice(buttons, preferred);
        });
        Item("mnuFileZipLogbook")->trigger();
        buttons.sort();
        QCOMPARE(buttons, QStringList({"Abbrechen", "Auch behalten", "Ersetzen"}));
        QCOMPARE(preferred, QString("Auch behalten")); // Enter loses nothing
    }

    void NameWithADotGetsTheExtensionToo() {
        Window->OpenLogbook(FileOfErrors(2));
        AnswerFileDialog(QString::fromStdString(Folder / "Machine 1.2"));
        Item("mnuFileZipLogbook")->trigger();
        QVERIFY(std::filesystem::exists(Folder / "Machine 1.2.qorvix"));
        QVERIFY(!std::filesystem::exists(Folder / "Machine 1.2"));

        // The dialog could not see that this replaces a file.
        const std::string before = FileContent(Folder / "Machine 1.2.qorvix");
        Book->Entries.SetComment(0, "new");
        AnswerFileDialog(QString::fromStdString(Folder / "Machine 1.2"));
        QTimer::singleShot(50, Person.get(), [this] { AnswerQuestion(QMessageBox::No); });
        Item("mnuFileZipLogbook")->trigger();
        QVERIFY(MessageTexts.back().endsWith("Machine 1.2.qorvix already exists. Replace it?"));
        QCOMPARE(FileContent(Folder / "Machine 1.2.qorvix"), before);
    }

    void CommentsFileWithoutItsHeaderIsTold() {
        WriteZip(Folder / "bad.qorvix",
                 {{"x.log", Lines({Header("BERR:    a")})}, {"x.cmt", "nonsense\r\n"}});
        AnswerMessages(1);
        QVERIFY(Window->OpenLogbook(Folder / "bad.qorvix"));
        QCOMPARE(MessageTexts, QStringList({"File includes no comment information!"}));
        QCOMPARE(Counts(), QString("1 / 1 Items"));
    }

    void FilesOfAnArchiveAreToldByItsName() {
        const std::string archive = Folder / "bad.qorvix";
        const std::string log = Lines({Header("BERR:    a")});
        const std::string longLine(std::size_t{17} << 20U, 'x');
        const auto told = [&](const char* filters, const std::string& comments, int messages) {
            WriteZip(archive, {{"in/x.log", log}, {"in/x.fil", filters}, {"in/x.cmt", comments}});
            AnswerQuestion(QMessageBox::Yes);
            AnswerMessages(messages);
            MessageTexts.clear();
            Window->OpenLogbook(archive);
            MessageTexts.removeFirst(); // Replace active filter list?
            return MessageTexts;
        };
        const QString name = QString::fromStdString(archive);
        QCOMPARE(told("[Filters]\r\nnonsense\r\n", "[Comments]\r\n 0 " + longLine, 2),
                 QStringList({name + ": in\\x.fil: invalid filter in line 2",
                              "Cannot read comments file (" + name + ": in\\x.cmt: a line is too long)"}));
        const std::string tooLong = "[Filters]\r\nX|3|" + std::string(2000, 'x') + "|||1\r\n";
        QCOMPARE(
            told(tooLong.c_str(), "", 1),
            QStringList({name + ": in\\x.fil: This filter is too long to be stored: the whole list would "
                                "fall back to the default filter."}));
        QCOMPARE(Settings->ReadFilterSettingLong("FilterCount", 0), 0);

        // The logbook that was unpacked is told so too.
        std::filesystem::remove(Temp.Path() / "x.log");
        AnswerFileDialog(QString::fromStdString(Folder / "new.qorvix"));
        MessageTexts.clear();
        QTimer::singleShot(50, Person.get(), [this] { AnswerMessages(1); });
        Item("mnuFileZipLogbook")->trigger();
        QCOMPARE(MessageTexts, QStringList({"The archive could not be saved (" +
                                            QString::fromStdString(Folder / "new.qorvix") + ": " + name +
                                            ": in\\x.log: No such file or directory)"}));
    }

    void EditedCommentsAreAskedAboutBeforeAnotherLogbook() {
        EditAComment();
        const std::string other = File("other.log", {Header("BERR:    x"), Header("BERR:    y")});
        AnswerQuestion(QMessageBox::Cancel);
        QVERIFY(!Window->OpenLogbook(other));
        QCOMPARE(MessageTexts, QStringList({"Comments edited. Save into logbook archive?"}));
        QCOMPARE(Window->windowTitle(), QString("errors - Qorvix"));

        // Yes, but the archive is not saved after all.
        AnswerQuestion(QMessageBox::Yes);
        QTimer::singleShot(50, Person.get(), [this] { AnswerFileDialog(""); });
        QVERIFY(!Window->OpenLogbook(other));
        QCOMPARE(Column(6).first(), QString("edited"));

        AnswerQuestion(QMessageBox::No);
        QVERIFY(Window->OpenLogbook(other));
        QCOMPARE(Window->windowTitle(), QString("other - Qorvix"));
        MessageTexts.clear();
        QVERIFY(Window->close());
        QVERIFY(MessageTexts.isEmpty());
    }

    void CancelAtTheCloseQuestionKeepsTheWindow() {
        EditAComment();
        AnswerQuestion(QMessageBox::Cancel);
        QVERIFY(!Window->close());
        QVERIFY(Window->isVisible());
        AnswerQuestion(QMessageBox::Cancel);
        QVERIFY(!Window->close());
        QCOMPARE(MessageTexts.size(), 2);
        AnswerQuestion(QMessageBox::No);
        QVERIFY(Window->close());
        QVERIFY(!Window->isVisible());
    }

    void YesAtTheCloseQuestionSavesAndClosesEitherWay() {
        EditAComment();
        AnswerQuestion(QMessageBox::Yes);
        QTimer::singleShot(50, Person.get(), [this] { AnswerFileDialog(""); });
        QVERIFY(Window->close());

        StartAfresh();
        EditAComment();
        AnswerQuestion(QMessageBox::Yes);
        QTimer::singleShot(50, Person.get(),
                           [this] { AnswerFileDialog(QString::fromStdString(Folder / "kept.qorvix")); });
        QVERIFY(Window->close());
        QVERIFY(std::filesystem::exists(Folder / "kept.qorvix"));
    }

    void SavedCommentsAreNotAskedAbout() {
        EditAComment();
        AnswerFileDialog(QString::fromStdString(Folder / "unasked.qorvix"));
        Item("mnuFileZipLogbook")->trigger();
        QVERIFY(Window->close());
        QVERIFY(MessageTexts.isEmpty());
    }

  private:
    // Saves comments on the first two of three entries, and reads the logbook again; the archive.
    QString SaveTwoCommentsAndRefresh() {
        OpenWindow();
        const QString archive = QString::fromStdString(Folder / "ev.qorvix");
        std::filesystem::remove(archive.toStdString());
        Window->OpenLogbook(FileOfErrors(3));
        EnterComment(0, "first");
        EnterComment(1, "second");
        AnswerFileDialog(archive);
        Item("mnuFileZipLogbook")->trigger();
        Item("mnuViewRefresh")->trigger();
        [&] { QCOMPARE(Column(6), QStringList({"", "", ""})); }();
        return archive;
    }

    // Saves as an archive that is there; the file dialog asks whether to replace it. A button "" is Escape.
    void SaveOver(const QString& archive, const QString& button) {
        AnswerFileDialog(archive);
        QTimer::singleShot(50, Person.get(), [this, button] {
            AnswerQuestion(QMessageBox::Yes);
            QTimer::singleShot(50, Person.get(), [this, button] {
                if (button.isEmpty())
                    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
                else
                    AnswerChoice(button);
            });
        });
        Item("mnuFileZipLogbook")->trigger();
    }

    // Cancels the question, which comes behind that of the file dialog.
    void LookAtChoice(QStringList& buttons, QString& preferred) {
        QTimer::singleShot(0, Person.get(), [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr)
                return LookAtChoice(buttons, preferred);
            if (QAbstractButton* const yes = box->button(QMessageBox::Yes)) {
                yes->click();
                return LookAtChoice(buttons, preferred);
            }
            for (QAbstractButton* const button : box->buttons())
                buttons << button->text().remove('&');
            preferred = box->defaultButton()->text().remove('&');
            box->reject();
        });
    }

    void EditAComment() {
        QVERIFY(Window->OpenLogbook(FileOfErrors(2)));
        EnterComment(0, "edited");
    }
};

QORVIX_WINDOW_TEST(ArchiveTest)
#include "ArchiveTest.moc"
