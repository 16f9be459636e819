// SPDX-License-Identifier: MIT
#include "dialogs/FilterRows.h"
#include "dialogs/LogbookSettingsTest.h"
#include "filter/FilterFile.h"
#include "support/OddFiles.h"
#include "support/TemporaryFolder.h"

#include "support/WindowTest.h"

#include <QComboBox>
#include <QFileDialog>
#include <QStyledItemDelegate>

class frmLogbookSettingsFilesTest : public LogbookSettingsTest {
    Q_OBJECT

  private slots:
    void init() {
        BeginWithoutSettings();
        Folder = std::make_unique<TemporaryFolder>();
    }

    void ExportWritesTheRows() {
        StoreFilters({"I|0||||1", "X|3|Töne|ABC|PLC|0"});
        Open();
        AnswerFileDialog("list.fil", [](QFileDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), "Export Filters");
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
            QCOMPARE(dialog.defaultSuffix(), "fil");
            QCOMPARE(FileTypes(dialog), QStringList({"Filter Files (*.fil)"}));
        });
        Click(*Dialog, "cmdExport");
        QCOMPARE(Answered, 1);
        QCOMPARE(Content("list.fil"), "[Filters]\r\nI|0||||1\r\nX|3|T\xF6ne|ABC|PLC|0\r\n");
    }

    void ExportAddsTheExtension() {
        Open();
        AnswerFileDialog("list");
        Click(*Dialog, "cmdExport");
        QCOMPARE(Content("list.fil"), "[Filters]\r\nI|0||||1\r\n");
    }

    void EmptyListIsExportedAsItIsStored() {
        Open();
        Select(List(), {0});
        QTest::keyClick(&List(), Qt::Key_Delete);
        QVERIFY(Dialog->SaveFilterInFile(*Folder / "list.fil"));
        QCOMPARE(Content("list.fil"), "[Filters]\r\nI|0||||1\r\n");
        QCOMPARE(List().topLevelItemCount(), 0);
    }

    void ImportReadsTheRows_data() {
        QTest::addColumn<QByteArray>("lineEnd");
        QTest::newRow("CR LF") << QByteArray("\r\n");
        QTest::newRow("LF") << QByteArray("\n");
    }
    void ImportReadsTheRows() {
        QFETCH(QByteArray, lineEnd);
        Folder->Write("list.fil", QByteArray("[Filters]\nX|3|T\xF6ne|ABC|PLC|0\nI|1||||1\nI|3|a|b|c\n")
                                      .replace("\n", lineEnd)
                                      .toStdString());
        Open();
        AnswerFileDialog("list.fil", [](QFileDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), "Import Filters");
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
            QCOMPARE(FileTypes(dialog), QStringList({"Filter Files (*.fil)", "All Files (*.*)"}));
        });
        Click(*Dialog, "cmdImport");
        QCOMPARE(Answered, 1);
        QCOMPARE(Rows(List()), QStringList({"Error/Töne/ABC/PLC", "Info///", "Error/a/b/c"}));
        QCOMPARE(Checks(), QList<bool>({false, true, true}));
        QCOMPARE(StoredFilters(), QStringList());
        Click(*Dialog, "cmdOK");
        QCOMPARE(StoredFilters(), QStringList({"X|3|Töne|ABC|PLC|0", "I|1||||1", "I|3|a|b|c|1"}));
    }

    void FileDialogsAreGermanToo() {
        Folder->Write("list.fil", "[Filters]\r\n");
        Open({Language::German});
        AnswerFileDialog("new.fil", [](QFileDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), "Filter exportieren");
            QCOMPARE(FileTypes(dialog), QStringList({"Filter Dateien (*.fil)"}));
        });
        Click(*Dialog, "cmdExport");
        AnswerFileDialog("list.fil", [](QFileDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), "Filter importieren");
            QCOMPARE(FileTypes(dialog), QStringList({"Filter Dateien (*.fil)", "Alle Dateien (*.*)"}));
        });
        Click(*Dialog, "cmdImport");
        QCOMPARE(Answered, 2);
    }

    void CancelAfterAnImportKeepsTheStoredList() {
        StoreFilters({"I|3||||1"});
        Folder->Write("list.fil", "[Filters]\r\nI|1||||1\r\n");
        Open();
        Dialog->GetFilterFromFile(*Folder / "list.fil");
        QCOMPARE(Rows(List()), QStringList({"Info///"}));
        Click(*Dialog, "cmdCancel");
        QCOMPARE(StoredFilters(), QStringList({"I|3||||1"}));
    }

    void FolderOfTheLastFileIsKept() {
        StoreFilters({"I|0||||1"});
        Open();
        AnswerFileDialog("list.fil");
        Click(*Dialog, "cmdExport");
        Answer<QFileDialog>([this](QFileDialog& dialog) {
            QCOMPARE(dialog.directory(), QDir(FolderPath()));
            dialog.reject();
        });
        Click(*Dialog, "cmdImport");
        QCOMPARE(Answered, 2);
        QCOMPARE(Settings.ReadFilterSettingString("InitFilterDir", ""), "");
        Click(*Dialog, "cmdOK");
        QCOMPARE(Settings.ReadFilterSettingString("InitFilterDir", ""), (Folder->Path() / "").string());

        Open();
        Answer<QFileDialog>([this](QFileDialog& dialog) {
            QCOMPARE(dialog.directory(), QDir(FolderPath()));
            dialog.reject();
        });
        Click(*Dialog, "cmdExport");
        QCOMPARE(Answered, 3);
    }

    void FirstFolderIsThatOfTheProgram() {
        Open();
        Answer<QFileDialog>([](QFileDialog& dialog) {
            QCOMPARE(dialog.directory(), QDir(QApplication::applicationDirPath()));
            dialog.reject();
        });
        Click(*Dialog, "cmdImport");
        QCOMPARE(Answered, 1);
    }

    void FileWithoutItsHeaderIsRefused_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("german");
        QTest::newRow("lower case") << QByteArray("[filters]\r\nI|1||||1\r\n") << false;
        QTest::newRow("a filter") << QByteArray("I|1||||1\r\n") << true;
        QTest::newRow("an empty line") << QByteArray("\r\n[Filters]\r\n") << false;
        QTest::newRow("a blank more") << QByteArray("[Filters] \r\n") << true;
    }
    void FileWithoutItsHeaderIsRefused() {
        QFETCH(QByteArray, content);
        QFETCH(bool, german);
        StoreFilters({"I|3||||1"});
        Folder->Write("list.fil", content.toStdString());
        Open({german ? Language::German : Language::English});
        AnswerMessage(QMessageBox::Ok);
        Dialog->GetFilterFromFile(*Folder / "list.fil");
        QCOMPARE(MessageTexts, QStringList(german ? "Richtung" : "Direction"));
        QCOMPARE(Rows(List()), QStringList(german ? "Fehler///" : "Error///"));
    }

    void UnreadableFileIsTold() {
        const QString path = QString::fromStdString(*Folder / "missing.fil");
        Open({Language::English});
        AnswerMessage(QMessageBox::Ok);
        Dialog->GetFilterFromFile(path.toStdString());
        QCOMPARE(MessageTexts.last(),
                 "Cannot read filter file  \"" + path + "\" (No such file or directory)");
        QCOMPARE(List().topLevelItemCount(), 1);

        Open({Language::German});
        AnswerMessage(QMessageBox::Ok);
        Dialog->GetFilterFromFile(path.toStdString());
        QCOMPARE(MessageTexts.last(),
                 "Filterdatei \"" + path + "\" kann nicht gelesen werden (Datei oder Ordner nicht gefunden)");
        AnswerMessage(QMessageBox::Ok);
        Dialog->GetFilterFromFile(Folder->Path().string());
        QCOMPARE(Answered, 3);
        QCOMPARE(List().topLevelItemCount(), 1);
    }

    void WhatIsNoFileIsToldAndTheRowsStay() {
        for (const std::string& path : NoFiles(*Folder)) {
            Open({Language::German});
            AnswerMessage(QMessageBox::Ok);
            Dialog->GetFilterFromFile(path);
            QCOMPARE(MessageTexts.last(), "Filterdatei \"" + QString::fromStdString(path) +
                                              "\" kann nicht gelesen werden (keine gewöhnliche Datei)");
            QCOMPARE(List().topLevelItemCount(), 1);
        }
#ifdef Q_OS_WIN
        QSKIP("no pipe has a name in a folder here");
#endif
        AnswerMessage(QMessageBox::Ok);
        QVERIFY(!Dialog->SaveFilterInFile(*Folder / "pipe"));
        QVERIFY(
            MessageTexts.last().endsWith("pipe konnte nicht geschrieben werden (keine gewöhnliche Datei)"));
        QVERIFY(std::filesystem::is_fifo(*Folder / "pipe"));
    }

    void OneFilterTooManyIsToldAndTheOthersAreShown() {
        std::string text = "[Filters]\r\n";
        for (std::size_t i = 0; i <= FilterFileBounds::FiltersWithText; ++i)
            text += "X|0|" + std::to_string(i) + "|||1\r\n";
        Open();
        AnswerMessage(QMessageBox::Ok);
        Dialog->GetFilterFromFile(Folder->Write("list.fil", text));
        QVERIFY(MessageTexts.last().endsWith("(the file has too many lines)"));
        QCOMPARE(List().topLevelItemCount(), static_cast<int>(FilterFileBounds::FiltersWithText));
    }

    void LongListsStayWholeAndAreShownInPart() {
        std::string numbers = "1";
        while (numbers.size() < 1000000)
            numbers += ",1000000";
        Open();
        Dialog->GetFilterFromFile(Folder->Write("list.fil", "[Filters]\r\nX|8|" + numbers + "|||1\r\n"));
        const QModelIndex cell = List().model()->index(0, FilterColumns::String);
        QVERIFY(cell.data(Qt::ToolTipRole).toString().size() < 2100);
        const auto* const delegate = qobject_cast<QStyledItemDelegate*>(List().itemDelegate());
        QVERIFY(delegate != nullptr);
        QCOMPARE(delegate->displayText(cell.data(), QLocale()),
                 QString::fromStdString(numbers.substr(0, 2000)));
        QVERIFY(Dialog->SaveFilterInFile(*Folder / "saved.fil"));
        QVERIFY(Content("saved.fil") == Content("list.fil"));
    }

    void EmptyFileEmptiesTheList() {
        Folder->Write("list.fil", "");
        Open();
        Dialog->GetFilterFromFile(*Folder / "list.fil");
        QCOMPARE(List().topLevelItemCount(), 0);
    }

    void InvalidLineEndsTheList() {
        const std::string path =
            Folder->Write("list.fil", "[Filters]\r\nI|1||||1\r\nI|1|a|b||c|1\r\nI|2||||1\r\n");
        Open({Language::English});
        Dialog->GetFilterFromFile(path);
        QCOMPARE(Rows(List()), QStringList({"Info///"}));
        QCOMPARE(TextOf(*Dialog, "lblNote"), "list.fil: invalid filter in line 3");
        QVERIFY(Find<QLabel>(*Dialog, "lblNote")->isVisible());
        Open({Language::German});
        Dialog->GetFilterFromFile(path);
        QCOMPARE(TextOf(*Dialog, "lblNote"), "list.fil: ungültiger Filter in Zeile 3");
        Folder->Write("list.fil", "[Filters]\r\nI|1||||1\r\n");
        Dialog->GetFilterFromFile(path);
        QVERIFY(!Find<QLabel>(*Dialog, "lblNote")->isVisible());
    }

    void ImportedFilterThatIsTooLongIsTold() {
        Folder->Write("list.fil", "[Filters]\r\nI|1|" + std::string(1018, 'a') + "|||1\r\n");
        Open();
        Dialog->GetFilterFromFile(*Folder / "list.fil");
        QCOMPARE(
            TextOf(*Dialog, "lblNote"),
            "This filter is too long to be stored: the whole list would fall back to the default filter.");
    }

    void LostCharactersAreAskedAbout() {
        StoreFilters({"I|0||||1", "X|0|中|||1", "X|0|ok|||1", "H|0|中中|||1"});
        Folder->Write("list.fil", "before");
        Open({Language::English});
        AnswerMessage(QMessageBox::No);
        QVERIFY(!Dialog->SaveFilterInFile(*Folder / "list.fil"));
        QCOMPARE(MessageTexts.last(),
                 "Filters with characters that a filter file cannot hold: 2, 4\nEach of these "
                 "characters becomes \"?\" in the file. Save all the same?");
        QCOMPARE(Content("list.fil"), "before");

        Open({Language::German});
        AnswerMessage(QMessageBox::Yes);
        QVERIFY(Dialog->SaveFilterInFile(*Folder / "list.fil"));
        QCOMPARE(MessageTexts.last(),
                 "Filter mit Zeichen, die eine Filterdatei nicht aufnehmen kann: 2, 4\nJedes "
                 "dieser Zeichen wird in der Datei zu \"?\". Trotzdem speichern?");
        QCOMPARE(Content("list.fil"), "[Filters]\r\nI|0||||1\r\nX|0|?|||1\r\nX|0|ok|||1\r\nH|0|??|||1\r\n");
    }

    void FileThatCannotBeWrittenIsTold() {
        Open({Language::English});
        const QString path = QString::fromStdString(*Folder / "missing/list.fil");
        AnswerMessage(QMessageBox::Ok);
        QVERIFY(!Dialog->SaveFilterInFile(path.toStdString()));
        QCOMPARE(MessageTexts.last(), path + " could not be written (No such file or directory)");
    }

  private:
    QString FolderPath() const { return QString::fromStdString(Folder->Path().string()); }

    std::string Content(std::string_view name) const { return FileContent(*Folder / name); }

    // What the dialog shows as types of files.
    static QStringList FileTypes(const QFileDialog& dialog) {
        const auto* const box = dialog.findChild<QComboBox*>("fileTypeCombo");
        QStringList types;
        for (int i = 0; i < box->count(); ++i)
            types << box->itemText(i).trimmed();
        return types;
    }

    // The person looks at the next file dialog and chooses this file of the test's folder.
    void AnswerFileDialog(const char* name, const std::function<void(QFileDialog&)>& look = {}) {
        Answer<QFileDialog>([this, name, look](QFileDialog& dialog) {
            QCOMPARE(dialog.objectName(), "dlgCommonDialog");
            if (look)
                look(dialog);
            dialog.setDirectory(FolderPath());
            dialog.selectFile(name);
            static_cast<QDialog&>(dialog).accept();
        });
    }

    std::unique_ptr<TemporaryFolder> Folder;
};

QORVIX_WINDOW_TEST(frmLogbookSettingsFilesTest)
#include "frmLogbookSettingsFilesTest.moc"
