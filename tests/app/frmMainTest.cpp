// SPDX-License-Identifier: MIT
#include "app/frmMain.h"

#include "support/ReadText.h"
#include "support/TemporaryFolder.h"
#include "tools/LogbookWriter.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTableView>
#include <QTest>
#include <QTimer>

class frmMainTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        Book = std::make_unique<Logbook>();
        Window = std::make_unique<frmMain>(*Book, CodePage());
        Window->show();
        MessageTexts.clear();
    }

    void cleanup() { Window.reset(); }

    void ShowsTheSamples() {
        for (const char* sample : {"classic", "separated", "operation"}) {
            const QString path = QString(QORVIX_SOURCE_FOLDER "/samples/%1.log").arg(sample);
            Window->OpenLogbooks({path});
            QCOMPARE(Window->windowTitle(), QString("%1 - Qorvix").arg(sample));
            const int rows = List()->model()->rowCount();
            QVERIFY(rows > 100);
            QCOMPARE(Counts(), QString("%1 / %1 Items").arg(rows));
        }
    }

    void LastLogbookStays() {
        const QString first = File("first.log", {Header("BERR:    a"), Header("RESET:")});
        const QString second = File("second.x.log", {Header("BERR:    b"), std::string(60, ' ')});
        Window->OpenLogbooks({first, second});
        QCOMPARE(Window->windowTitle(), QString("second - Qorvix"));
        QCOMPARE(Cell(0, 1), QString("b"));
        QCOMPARE(Counts(), QString("1 / 1 Items"));
    }

    void FileThatCannotBeOpenedGivesAnEmptyListInSilence() {
        Window->OpenLogbooks({File("a.log", {Header("BERR:    a"), Header("RESET:")})});
        Window->OpenLogbooks({QString::fromStdString(Folder / "missing.log")});
        QCOMPARE(Window->windowTitle(), QString("missing - Qorvix"));
        QCOMPARE(Counts(), QString("0 / 2 Items"));
    }

    void ReadErrorIsToldAndLeavesTheListEmpty() {
        AnswerMessages(1);
        Window->OpenLogbooks({File("a.log", {Header("BERR:    a"), "RESET:", std::string(100, ' ')})});
        QCOMPARE(MessageTexts, QStringList({"Error reading logbook file"}));
        QCOMPARE(Counts(), QString("0 / 1 Items"));
        QCOMPARE(Window->windowTitle(), QString("Qorvix"));
    }

    void FileWithoutEventsIsAFilterError() {
        AnswerMessages(2);
        Window->OpenLogbooks({File("a.log", {"nothing"})});
        QCOMPARE(MessageTexts, QStringList({"Error applying filters", "Filter error"}));
        QCOMPARE(Counts(), QString("0 / 1 Items"));
    }

    void UnsupportedVersionIsToldInGerman() {
        AnswerMessages(1);
        Window->OpenLogbooks({File("a.log", {"Operation Logbook Version 2.0", Header("Stib: ON")})});
        QCOMPARE(MessageTexts,
                 QStringList({"Logbuch Version 2.0 wird von dieser Kelvaro Version nicht unterstützt.\r\n"
                              "Informieren Sie sich bei VELTRANDOR über die neueste Kelvaro Version."}));
        QCOMPARE(Counts(), QString("1 / 1 Items"));
    }

    void ClosingEndsAReadThatNeverFinishes() {
        const QString endless = File("a.log", {Header("RESET:"), Header("BREG:"), " D0=1"});
        QTimer::singleShot(0, Window.get(), [this] {
            QVERIFY(Book->Busy);
            QVERIFY(!Window->close());
        });
        Window->OpenLogbooks({endless, endless});
        QVERIFY(!Window->isVisible());
        QVERIFY(!Book->Busy);
        QVERIFY(MessageTexts.isEmpty());
    }

    void ListHasItsColumnWidthsAndSelectsRows() {
        const int pixels[] = {133, 333, 113, 113, 133, 66};
        for (int column = 0; column < 6; ++column)
            QCOMPARE(List()->columnWidth(column), pixels[column]);
        Window->OpenLogbooks({File("a.log", {Header("BERR:    a"), Header("RESET:")})});
        List()->selectRow(1);
        QCOMPARE(List()->selectionModel()->selectedIndexes().size(), 7);
    }

  private:
    QTableView* List() const { return Window->findChild<QTableView*>("lvLogbook"); }
    QString Counts() const { return Window->findChild<QLabel*>("statusCounts")->text(); }
    QString Cell(int row, int column) const { return List()->model()->index(row, column).data().toString(); }

    QString File(std::string_view name, const std::vector<std::string>& lines) const {
        return QString::fromStdString(Folder.Write(name, Lines(lines)));
    }

    // Confirms the next message boxes and remembers their texts.
    void AnswerMessages(int count) {
        if (count == 0)
            return;
        QTimer::singleShot(0, this, [this, count] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr)
                return AnswerMessages(count);
            MessageTexts << box->text();
            box->accept();
            AnswerMessages(count - 1);
        });
    }

    TemporaryFolder Folder;
    std::unique_ptr<Logbook> Book;
    std::unique_ptr<frmMain> Window;
    QStringList MessageTexts;
};

QTEST_MAIN(frmMainTest)
#include "frmMainTest.moc"
