// SPDX-License-Identifier: MIT
#include "app/MainWindowTest.h"

#include "support/WindowTest.h"

#include <filesystem>

// Comments that were entered in the window and not saved when the program crashed.
class LostCommentsTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init() { StartAfresh(); }
    void cleanup() { Window.reset(); }

    void AreOfferedWhenTheSameLogbookIsOpenedNext() {
        const std::string file = FileOfErrors(3);
        Comment(file, 1, "pump replaced");
        Crash();
        QVERIFY(Window->OpenLogbook(File("other.log", {Header("BERR:    x")})));
        QVERIFY(MessageTexts.isEmpty());
        AnswerQuestion(QMessageBox::Yes);
        QVERIFY(Window->OpenLogbook(file));
        QCOMPARE(MessageTexts,
                 QStringList({"Comments on this logbook were not saved the last time. Restore them?"}));
        QCOMPARE(Column(6), QStringList({"", "pump replaced", ""}));

        // They are edited comments like others.
        AnswerQuestion(QMessageBox::No);
        QVERIFY(Window->close());
        QCOMPARE(MessageTexts.back(), QString("Comments edited. Save into logbook archive?"));
        QCOMPARE(Journals(), 0);
        OpenWindow();
        QVERIFY(Window->OpenLogbook(file));
        QVERIFY(MessageTexts.isEmpty());
    }

    void AreOfferedWhenTheLogbookHasGrown() {
        Comment(FileOfErrors(3), 2, "of the last");
        Crash();
        AnswerQuestion(QMessageBox::Yes);
        QVERIFY(Window->OpenLogbook(FileOfErrors(6)));
        QCOMPARE(Column(6), QStringList({"", "", "of the last", "", "", ""}));

        // Also where the last line was still being written.
        Crash();
        Folder.Write("errors.log", Lines({Header("BERR:    0")}) + Header("BERR:    ab"));
        std::filesystem::remove_all(Folder.Path() / "state");
        Comment(Folder / "errors.log", 0, "of the first");
        Crash();
        AnswerQuestion(QMessageBox::Yes);
        QVERIFY(Window->OpenLogbook(
            File("errors.log", {Header("BERR:    0"), Header("BERR:    abc"), Header("BERR:    d")})));
        QCOMPARE(Column(6), QStringList({"of the first", "", ""}));

        // One that was begun anew is another logbook.
        Crash();
        QVERIFY(Window->OpenLogbook(File("errors.log", {Header("BERR:    x"), Header("BERR:    y")})));
        QCOMPARE(MessageTexts, QStringList());
    }

    void AreOfferedForTheCommandLineToo() {
        const std::string file = FileOfErrors(2);
        Comment(file, 0, "lost");
        Crash();
        WriteLanguage(*Settings, {1});
        OpenWindow();
        AnswerQuestion(QMessageBox::Yes);
        Window->RunCommandLine({File("other.log", {Header("BERR:    x")}), file});
        QCOMPARE(MessageTexts, QStringList({"Kommentare zu diesem Logbuch wurden beim letzten Mal nicht "
                                            "gespeichert. Wiederherstellen?"}));
        QCOMPARE(Column(6), QStringList({"lost", ""}));
    }

    void AreDroppedWhenDeclined() {
        const std::string file = FileOfErrors(2);
        Comment(file, 0, "unwanted");
        Crash();
        AnswerQuestion(QMessageBox::No);
        QVERIFY(Window->OpenLogbook(file));
        QCOMPARE(Column(6), QStringList({"", ""}));
        QCOMPARE(Journals(), 0);
        QVERIFY(Window->close());
        QCOMPARE(MessageTexts.size(), 1);
    }

    void NobodyIsAskedWithoutACrash() {
        const std::string file = FileOfErrors(2);
        Comment(file, 0, "declined");
        AnswerQuestion(QMessageBox::No);
        QVERIFY(Window->close());
        QCOMPARE(Journals(), 0);

        OpenWindow();
        Comment(file, 0, "saved");
        QCOMPARE(Journals(), 1);
        Save("saved.qorvix");
        QCOMPARE(Journals(), 0);
        Crash();
        QVERIFY(Window->OpenLogbook(file));
        QVERIFY(MessageTexts.isEmpty());

        Comment(file, 0, "dropped");
        AnswerQuestion(QMessageBox::No);
        QVERIFY(Window->OpenLogbook(File("other.log", {Header("BERR:    x")})));
        QCOMPARE(Journals(), 0);
    }

    void StayWhereTheWindowClosesWithoutSavingThem() {
        const std::string file = FileOfErrors(2);
        Comment(file, 0, "kept");
        AnswerQuestion(QMessageBox::Yes);
        QTimer::singleShot(50, Person.get(), [this] { AnswerFileDialog(""); });
        QVERIFY(Window->close());
        QCOMPARE(Journals(), 1);
        OpenWindow();
        AnswerQuestion(QMessageBox::Yes);
        QVERIFY(Window->OpenLogbook(file));
        QCOMPARE(Column(6), QStringList({"kept", ""}));
    }

    void ArchiveThatHasThemIsNotAskedAbout() {
        const std::string file = FileOfErrors(2);
        Comment(file, 0, "a");
        // The program crashes when the archive stands in its place and before the journal has gone.
        std::filesystem::copy(Folder.Path() / "state", Folder.Path() / "kept");
        Save("crash.qorvix");
        Crash();
        std::filesystem::remove_all(Folder.Path() / "state");
        std::filesystem::rename(Folder.Path() / "kept", Folder.Path() / "state");
        AnswerQuestion(QMessageBox::No); // Replace active filter list?
        QVERIFY(Window->OpenLogbook(Folder / "crash.qorvix"));
        QCOMPARE(MessageTexts, QStringList({"Replace active filter list?"}));
        QCOMPARE(Column(6), QStringList({"a", ""}));
        // Who can tell whether another copy of the logbook lacks them?
        QCOMPARE(Journals(), 1);
    }

    void RemovedCommentOutlivesThePlainCopyOfItsLogbook() {
        const std::string file = FileOfErrors(2);
        Comment(file, 0, "a");
        Save("archive.qorvix");
        EnterComment(0, "");
        QCOMPARE(Journals(), 1);
        Crash();
        QVERIFY(Window->OpenLogbook(file)); // without comments
        QVERIFY(MessageTexts.isEmpty());
        QVERIFY(Window->close());
        QCOMPARE(Journals(), 1);

        OpenWindow();
        AnswerQuestion(QMessageBox::No); // Replace active filter list?
        QTimer::singleShot(50, Person.get(), [this] { AnswerQuestion(QMessageBox::Yes); });
        QVERIFY(Window->OpenLogbook(Folder / "archive.qorvix"));
        QCOMPARE(MessageTexts.size(), 2);
        QCOMPARE(Column(6), QStringList({"", ""}));
    }

    void StateFolderThatCannotBeWrittenIsToldInTheStatusBar() {
        Folder.Write("state", "a file");
        Comment(FileOfErrors(2), 0, "a");
        QVERIFY(Find<QLabel>("statusText")->text().startsWith("Comments are not secured against a crash: "));
        QCOMPARE(Cell(0, 6), QString("a"));

        // A lookup without a mistake does not take it away; saving does.
        List()->selectRow(1);
        QTimer::singleShot(0, Person.get(), [] {
            QTest::mouseClick(QApplication::activeModalWidget()->findChild<QPushButton*>("cmdCancel"),
                              Qt::LeftButton);
        });
        QTest::keyClick(List(), Qt::Key_Return);
        QVERIFY(Find<QLabel>("statusText")->text().startsWith("Comments are not secured"));
        Save("secured.qorvix");
        QCOMPARE(Find<QLabel>("statusText")->text(), QString("Ready"));
    }

    void StateFolderThatCannotBeWrittenIsToldInGerman() {
        Folder.Write("state", "a file");
        WriteLanguage(*Settings, {1});
        OpenWindow();
        Comment(FileOfErrors(2), 0, "a");
        QCOMPARE(Find<QLabel>("statusText")->text(),
                 QString("Kommentare sind nicht gegen einen Absturz gesichert: Kein Ordner"));
    }

  private:
    int Journals() const {
        std::error_code none;
        return static_cast<int>(
            std::distance(std::filesystem::directory_iterator(Folder.Path() / "state", none), {}));
    }

    // The program ends without having been closed, and is started again.
    void Crash() { OpenWindow(); }

    void Comment(const std::string& file, int row, const QString& comment) {
        QVERIFY(Window->OpenLogbook(file));
        EnterComment(row, comment);
    }

    void Save(const char* name) {
        AnswerFileDialog(QString::fromStdString(Folder / name));
        Item("mnuFileZipLogbook")->trigger();
        QVERIFY(std::filesystem::exists(Folder / name));
    }
};

QORVIX_WINDOW_TEST(LostCommentsTest)
#include "LostCommentsTest.moc"
