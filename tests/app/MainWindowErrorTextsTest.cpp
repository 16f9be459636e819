// SPDX-License-Identifier: MIT
// The control's error texts, taken over into the person's own folder and found there.
#include "app/MainWindowTest.h"

#include "dialogs/frmErrorTexts.h"
#include "dialogs/frmProgress.h"
#include "eventinfo/iZEKEventInfo.h"
#include "support/OrdinaryUser.h"
#include "support/WindowTest.h"
#include "support/ZipWriter.h"

#include <filesystem>

class MainWindowErrorTextsTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void init() {
        UseDataFolder(Folder / "data");
        std::filesystem::remove_all(Folder / "data");
        StartAfresh();
    }
    void cleanup() {
        Window.reset();
        frmProgress::ShownAfter = ShownAfter;
    }
    void cleanupTestCase() { UseDataFolder(NoFolder); }

    void TextsOfAFolderAreTakenAndProposed() {
        WriteTexts();
        for (const bool german : {false, true}) {
            std::filesystem::remove_all(Folder / "data");
            Begin(german);
            QVERIFY(Proposed().isEmpty());
            AnswerDialog(Place("control"), "cmdFolder");
            AnswerMessages(1);
            Item("mnuAnalysisErrorTexts")->trigger();
            QCOMPARE(MessageTexts, QStringList({german ? "Übernommene Dateien: 3" : "Files taken over: 3"}));
            QVERIFY(FileContent(UserLanguageFolder() + "GERMAN/qx_error_help.txt").starts_with("938\nTaste"));
            QVERIFY2(Proposed().startsWith(german ? "Taste" : "Key"), qPrintable(Proposed()));
            QVERIFY(!Book->Busy);
        }
    }

    void TextsOfAServiceArchiveAreTakenAndOldOnesKept() {
        WriteZip(Folder / "service1.zip", {{"texts\\ENGLISH\\qx_error_help.txt", "938\nArchive\n\n"}});
        const std::string own = UserLanguageFolder() + "ENGLISH/qx_error_help.txt";
        std::filesystem::create_directories(UserLanguageFolder() + "ENGLISH");
        Folder.Write("data/VELTRANDOR/Qorvix/language/ENGLISH/qx_error_help.txt", "938\nOwn\n\n");
        for (const bool german : {false, true}) {
            Begin(german);
            AnswerDialog(Place("service1.zip"), "cmdArchive");
            AnswerMessages(1);
            Item("mnuAnalysisErrorTexts")->trigger();
            if (german)
                QCOMPARE(MessageTexts,
                         QStringList({"Übernommene Dateien: 0\nDateien, die schon da waren: 1"}));
            else
                QCOMPARE(MessageTexts,
                         QStringList({"Files taken over: 1\nFiles replaced by them, and kept as "
                                      ".bak: 1"}));
            QVERIFY(FileContent(own).starts_with("938\nArchive"));
            QVERIFY(FileContent(own + ".bak").starts_with("938\nOwn"));
        }
    }

    void CancelledDialogTakesNothing() {
        WriteTexts();
        Begin(false);
        AnswerDialog(Place("control"), "cmdFolder", "cmdCancel");
        Item("mnuAnalysisErrorTexts")->trigger();
        QVERIFY(!std::filesystem::exists(Folder / "data"));
    }

    void TakingMayBeEnded() {
        WriteTexts();
        Begin(false);
        frmProgress::ShownAfter = std::chrono::milliseconds(0);
        OnProgress([&](frmProgress& dialog) {
            QVERIFY(Book->Busy);
            Window->Run(Command::RemoveFromList);
            Window->Run(Command::TakeOverErrorTexts);
            QCOMPARE(List()->model()->rowCount(), 1);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        AnswerDialog(Place("control"), "cmdFolder");
        AnswerMessages(1);
        Item("mnuAnalysisErrorTexts")->trigger();
        QCOMPARE(MessageTexts, QStringList({"Not all error texts were taken over\nFiles taken over: 0"}));
        QVERIFY(!Book->Busy);
    }

    void UnwritableFolderIsTold() {
        WriteTexts();
        for (const bool german : {false, true}) {
            std::filesystem::remove_all(Folder / "data");
            std::filesystem::create_directory(Folder / "data");
            std::filesystem::permissions(Folder / "data", std::filesystem::perms(0555));
            Begin(german);
            const OrdinaryUser ordinary;
            if (!ordinary.IsOrdinary())
                QSKIP("needs permissions that apply");
            AnswerDialog(Place("control"), "cmdFolder");
            AnswerMessages(1);
            Item("mnuAnalysisErrorTexts")->trigger();
            QCOMPARE(MessageTexts.size(), 1);
            QVERIFY2(MessageTexts[0].startsWith(german ? "Nicht alle Fehlertexte wurden übernommen ("
                                                       : "Not all error texts were taken over ("),
                     qPrintable(MessageTexts[0]));
            QVERIFY(MessageTexts[0].contains(german ? ": Keine Berechtigung)\n" : ": Permission denied)\n"));
        }
    }

  private:
    // A window of this language with a logbook of one classic error.
    void Begin(bool german) {
        StartAfresh();
        WriteLanguage(*Settings, {german ? 1 : 0});
        OpenWindow();
        Window->OpenLogbook(File("errors.log", {Header("BERR:    N938 x")}));
        List()->SelectAndShow(0);
    }

    void WriteTexts() const {
        std::filesystem::create_directories(Folder / "control/ENGLISH");
        std::filesystem::create_directories(Folder / "control/GERMAN");
        Folder.Write("control/ENGLISH/qx_error_help.txt", "938\nKey without function\n\n");
        Folder.Write("control/GERMAN/qx_error_help.txt", "938\nTaste ohne Funktion\n\n");
        Folder.Write("control/A_EN.XMT", "");
    }

    QString Place(const char* name) const { return QString::fromStdString(Folder / name); }

    // What the event entry proposes.
    QString Proposed() {
        QString text;
        QTimer::singleShot(0, Person.get(), [&text] {
            QWidget* const dialog = QApplication::activeModalWidget();
            text = dialog->findChild<QPlainTextEdit*>("tbComment")->toPlainText();
            QTest::mouseClick(dialog->findChild<QPushButton*>("cmdCancel"), Qt::LeftButton);
        });
        Window->Run(Command::Properties);
        return text;
    }

    // Chooses a place by a button of the dialog, and closes it by another.
    void AnswerDialog(const QString& place, const char* choose, const char* close = "cmdOK") {
        QTimer::singleShot(0, Person.get(), [=, this] {
            auto* const dialog = qobject_cast<frmErrorTexts*>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return AnswerDialog(place, choose, close);
            AnswerFileDialog(place);
            QTest::mouseClick(dialog->findChild<QPushButton*>(choose), Qt::LeftButton);
            QTest::mouseClick(dialog->findChild<QPushButton*>(close), Qt::LeftButton);
        });
    }

    void OnProgress(const std::function<void(frmProgress&)>& act) {
        QTimer::singleShot(0, Person.get(), [this, act] {
            auto* const dialog = qobject_cast<frmProgress*>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return OnProgress(act);
            act(*dialog);
        });
    }

    const std::chrono::milliseconds ShownAfter = frmProgress::ShownAfter;
};

QORVIX_WINDOW_TEST(MainWindowErrorTextsTest)
#include "MainWindowErrorTextsTest.moc"
