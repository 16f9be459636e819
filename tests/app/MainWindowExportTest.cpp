// SPDX-License-Identifier: MIT
// The list, taken along as a file.
#include "app/MainWindowTest.h"

#include "dialogs/frmProgress.h"
#include "support/OrdinaryUser.h"
#include "support/WindowTest.h"

#include <QComboBox>

#include <filesystem>
#include <functional>

class MainWindowExportTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void init() { StartAfresh(); }
    void cleanup() {
        Window.reset();
        frmProgress::ShownAfter = ShownAfter;
    }

    void ListIsExportedAsItIsShown() {
        for (const bool german : {false, true}) {
            Begin(german);
            List()->SelectAndShow(1);
            Window->Run(Command::RemoveFromList);
            List()->SelectAndShow(0);
            Window->Run(Command::ToggleHighlighting);
            Window->Run(Command::SortInOrder, ColumnOrder{5, SortDirection::Descending});
            QString title;
            QStringList types;
            const QString file = Place(german ? "de.csv" : "en.csv");
            AnswerFileDialog(file, &title, &types);
            Item("mnuAnalysisExport")->trigger();
            QCOMPARE(title, QString(german ? "Liste exportieren" : "Export list"));
            QCOMPARE(types.size(), 3);
            QVERIFY(types[0].startsWith(german ? "CSV für Tabellenkalkulationen" : "CSV for spreadsheets"));
            const QString s = german ? ";" : ",";
            QCOMPARE(Content(file),
                     QString("\uFEFFindex,type,event,data,sender,name,time,icon,highlighted,comment\r\n"
                             "2,4,Fatal,2,,,04.01.2010 12:34:56.789,4,false,\r\n"
                             "0,4,Fatal,0,,,04.01.2010 12:34:56.789,18,true,\r\n")
                         .replace(",", s));
            QVERIFY(MessageTexts.isEmpty());
            QVERIFY(!Book->Busy);
        }
    }

    void TypeIsThatOfTheNameOrTheChosenPattern() {
        Begin(false);
        Answer([this](QFileDialog& dialog) {
            QCOMPARE(NameField(dialog), QString("errors.csv"));
            ChooseType(dialog, 2);
            QCOMPARE(NameField(dialog), QString("errors.html"));
            Accept(dialog, Place("page"));
        });
        Item("mnuAnalysisExport")->trigger();
        QVERIFY(Content(Place("page.html")).startsWith("<!DOCTYPE html>"));
        Answer([this](QFileDialog& dialog) {
            ChooseType(dialog, 2);
            Accept(dialog, Place("lines.JSONL"));
        });
        Item("mnuAnalysisExport")->trigger();
        QVERIFY(Content(Place("lines.JSONL")).startsWith("{\"index\":0,"));
        Answer([this](QFileDialog& dialog) {
            ChooseType(dialog, 1);
            Accept(dialog, Place("lines.txt"));
        });
        Item("mnuAnalysisExport")->trigger();
        QVERIFY(Content(Place("lines.txt")).startsWith("{\"index\":0,"));
    }

    void WithoutALogbookTheItemIsDisabled() {
        QVERIFY(!Item("mnuAnalysisExport")->isEnabled());
        Window->Run(Command::ExportList); // asks nothing
        Begin(false);
        QVERIFY(Item("mnuAnalysisExport")->isEnabled());
        // A list that filters empty has a header.
        List()->selectAll();
        Window->Run(Command::RemoveFromList);
        QCOMPARE(List()->model()->rowCount(), 0);
        AnswerFileDialog(Place("empty.csv"));
        Item("mnuAnalysisExport")->trigger();
        QCOMPARE(Content(Place("empty.csv")).count("\r\n"), 1);
    }

    void ExportIsEndedByKeyAndLeavesTheOldFile() {
        for (const bool german : {false, true}) {
            Begin(german, 2000);
            frmProgress::ShownAfter = std::chrono::milliseconds(0);
            const QString file = Place("ended.csv");
            Folder.Write("ended.csv", "old");
            int seen = 0;
            OnProgress([&](frmProgress& dialog) {
                ++seen;
                QCOMPARE(dialog.windowTitle(),
                         QString(german ? "Exportiere die Liste..." : "Exporting the list..."));
                QCOMPARE(dialog.findChild<QPushButton*>("cmdCancel")->text(),
                         QString(german ? "Abbrechen" : "Cancel"));
                QVERIFY(dialog.windowModality() == Qt::WindowModal);
                QTest::keyClick(&dialog, Qt::Key_Escape);
            });
            AnswerFileDialog(file);
            AnswerQuestion(QMessageBox::Yes);
            Item("mnuAnalysisExport")->trigger();
            QCOMPARE(seen, 1);
            QCOMPARE(Content(file), QString("old"));
            QVERIFY(!Book->Busy);
            QVERIFY(QApplication::activeModalWidget() == nullptr);
            // The same order works again, to its end.
            AnswerFileDialog(file);
            AnswerQuestion(QMessageBox::Yes);
            Item("mnuAnalysisExport")->trigger();
            QCOMPARE(Content(file).count("\r\n"), 2001);
        }
    }

    void ShortExportShowsNoProgress() {
        Begin(false);
        bool seen = false;
        OnProgress([&](frmProgress&) { seen = true; });
        AnswerFileDialog(Place("short.csv"));
        Item("mnuAnalysisExport")->trigger();
        QCOMPARE(Content(Place("short.csv")).count("\r\n"), 4);
        QVERIFY(!seen);
    }

    void NothingChangesTheRowsMeanwhile() {
        Begin(false, 2000);
        frmProgress::ShownAfter = std::chrono::milliseconds(0);
        const std::string other = FileOf("other.log", 5);
        // The filters of the popup menu come by a timer.
        Window->Run(Command::EditFilters);
        int rounds = 0;
        OnProgress([&](frmProgress& dialog) {
            QVERIFY(Book->Busy);
            List()->SelectAndShow(0);
            for (int command = 0; command <= static_cast<int>(Command::TakeOverErrorTexts); ++command) {
                const auto order = static_cast<Command>(command);
                if (!NeedsIdleLogbook(order))
                    continue;
                OrderSubject subject;
                if (order == Command::SortByColumn)
                    subject = 5;
                if (order == Command::SortInOrder)
                    subject = ColumnOrder{5, SortDirection::Descending};
                if (order == Command::Open)
                    subject = other;
                Window->Run(order, subject);
            }
            emit List()->FileDropped(QString::fromStdString(other));
            emit List()->RemoveFromListWanted();
            emit List()->ToggleHighlightingWanted();
            QVERIFY(!Window->OpenLogbook(other));
            Window->ApplyFilter();
            QVERIFY(Document->ExportList([](double) { return true; }) == ExportOutcome::Cancelled);
            // Until the timer has fired and the dropped file has come.
            if (rounds++ == 0)
                QTest::qWait(300);
            QVERIFY(QApplication::activeModalWidget() == &dialog);
            QCOMPARE(List()->model()->rowCount(), 2000);
        });
        AnswerFileDialog(Place("list.csv"));
        Item("mnuAnalysisExport")->trigger();
        QCOMPARE(rounds, 1);
        const QStringList lines = Content(Place("list.csv")).split("\r\n");
        QCOMPARE(lines.size(), 2002);
        for (int row = 0; row < 2000; ++row)
            QVERIFY2(lines[row + 1].startsWith(QString::number(row) + ",4,Fatal,"),
                     qPrintable(lines[row + 1]));
        QVERIFY(!Content(Place("list.csv")).contains("true"));
        auto* const timer = Find<QTimer>("tmExtrasFilters");
        QVERIFY(timer->isActive()); // they come now
        timer->stop();
    }

    void ClosedWindowEndsTheExportFirst() {
        Begin(false, 2000);
        frmProgress::ShownAfter = std::chrono::milliseconds(0);
        OnProgress([&](frmProgress&) { Window->close(); });
        AnswerFileDialog(Place("closed.csv"));
        Item("mnuAnalysisExport")->trigger();
        QVERIFY(!Window->isVisible());
        QVERIFY(!std::filesystem::exists(Folder / "closed.csv"));
    }

    void WhatMayNotBeReplacedIsToldInBothLanguages() {
        for (const bool german : {false, true}) {
            Begin(german);
            const std::string fil = Folder.Write("a.fil", "filters");
            for (const std::string& file : {Folder / "errors.log", fil}) {
                const QString before = Content(QString::fromStdString(file));
                AnswerFileDialog(QString::fromStdString(file));
                AnswerQuestion(QMessageBox::Yes); // of the file dialog
                AnswerMessageThen();
                Item("mnuAnalysisExport")->trigger();
                QCOMPARE(Content(QString::fromStdString(file)), before);
            }
            QCOMPARE(Told.size(), 2);
            QVERIFY2(Told[0].endsWith(german ? "die Liste würde die Datei ersetzen, aus der sie entsteht)"
                                             : "the list would replace the file that it is made from)"),
                     qPrintable(Told[0]));
            QVERIFY2(
                Told[1].endsWith(german ? "eine Liste ersetzt kein Archiv, keine Kommentare und keine Filter)"
                                        : "a list does not replace an archive, comments or filters)"),
                qPrintable(Told[1]));
            Told.clear();
        }
    }

    void UnwritableFolderIsTold() {
        Begin(false);
        std::filesystem::create_directory(Folder / "locked");
        std::filesystem::permissions(Folder / "locked", std::filesystem::perms(0555));
        {
            const OrdinaryUser ordinary;
            if (!ordinary.IsOrdinary())
                QSKIP("needs permissions that apply");
            AnswerFileDialog(Place("locked/list.csv"));
            AnswerMessages(1);
            Item("mnuAnalysisExport")->trigger();
        }
        QCOMPARE(MessageTexts, QStringList({"The list could not be exported (" + Place("locked/list.csv") +
                                            ": Permission denied)"}));
    }

  private:
    // A window of this language with a logbook of so many errors.
    void Begin(bool german, int errors = 3) {
        StartAfresh();
        WriteLanguage(*Settings, {german ? 1 : 0});
        OpenWindow();
        Window->OpenLogbook(FileOf("errors.log", errors));
        QCOMPARE(List()->model()->rowCount(), errors);
    }

    std::string FileOf(std::string_view name, int errors) const {
        std::vector<std::string> lines;
        for (int i = 0; i < errors; ++i)
            lines.push_back(Header("BERR:    " + std::to_string(i)));
        return File(name, lines);
    }

    QString Place(const char* name) const { return QString::fromStdString(Folder / name); }
    static QString Content(const QString& file) {
        return QString::fromStdString(FileContent(file.toStdString()));
    }

    void Answer(const std::function<void(QFileDialog&)>& answer) {
        QTimer::singleShot(0, Person.get(), [this, answer] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return Answer(answer);
            answer(*dialog);
        });
    }
    static QString NameField(const QFileDialog& dialog) {
        return dialog.findChild<QLineEdit*>("fileNameEdit")->text();
    }
    static void ChooseType(QFileDialog& dialog, int type) {
        auto* const types = dialog.findChild<QComboBox*>("fileTypeCombo");
        for (int step = 0; step < type; ++step)
            QTest::keyClick(types, Qt::Key_Down);
        QCOMPARE(types->currentIndex(), type);
    }
    static void Accept(QFileDialog& dialog, const QString& name) {
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(name);
        QMetaObject::invokeMethod(&dialog, "accept");
    }

    // Deals with the progress dialog once it is there, while the export runs.
    void OnProgress(const std::function<void(frmProgress&)>& act) {
        QTimer::singleShot(0, Person.get(), [this, act] {
            auto* const dialog = qobject_cast<frmProgress*>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return OnProgress(act);
            act(*dialog);
        });
    }

    // The message behind the file dialog's own question.
    void AnswerMessageThen() {
        QTimer::singleShot(0, Person.get(), [this] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr || box->standardButtons() != QMessageBox::Ok)
                return AnswerMessageThen();
            Told << box->text();
            box->accept();
        });
    }

    const std::chrono::milliseconds ShownAfter = frmProgress::ShownAfter;
    QStringList Told;
};

QORVIX_WINDOW_TEST(MainWindowExportTest)
#include "MainWindowExportTest.moc"
