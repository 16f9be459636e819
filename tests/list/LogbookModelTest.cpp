// SPDX-License-Identifier: MIT
#include "list/LogbookModel.h"

#include "list/SetRows.h"
#include "rows/LogbookColumns.h"
#include "support/ReadText.h"
#include "support/WindowTest.h"

#include <QAbstractItemModelTester>
#include <QTest>

class LogbookModelTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        ReadText(Lines({Header("INFO:    GEO AXIS"), "K\xFChlung", Header("BERR:    b")}), Result);
        Result.Book.Entries.SetComment(1, "seen");
    }

    void RowsShowTheirEntries() {
        LogbookRows rows;
        LogbookModel model(Result.Book.Entries, rows);
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(model.rowCount(), 0);
        SetRows(model, rows, {{1, 1}, {0, 0}});
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(Cells(model, 0),
                 QStringList({"Fatal", "b", "", "", "04.01.2010 12:34:56.789", "1", "seen"}));
        QCOMPARE(Cells(model, 1),
                 QStringList({"Info", "Kühlung", "GEO", "AXIS", "04.01.2010 12:34:56.789", "0", ""}));
        QCOMPARE(model.index(0, 0).data(LogbookModel::ImageRole).toInt(), 18);
        QCOMPARE(model.index(1, 0).data(LogbookModel::ImageRole).toInt(), 1);
        SetRows(model, rows, {});
        QCOMPARE(model.rowCount(), 0);
    }

    void ColumnsHaveTheirHeaders() {
        LogbookRows rows;
        const LogbookModel model(Result.Book.Entries, rows);
        QStringList headers;
        for (int column = 0; column < model.columnCount(); ++column)
            headers << model.headerData(column, Qt::Horizontal).toString();
        QCOMPARE(headers, QStringList({"Event type", "Data", "Sender", "Name", "Time", "Index", "Comment"}));
        QVERIFY(!model.headerData(LogbookColumnCount, Qt::Horizontal).isValid());
    }

    void FirstCellTellsAScreenReaderOfTheRow() {
        LogbookRows rows;
        LogbookModel model(Result.Book.Entries, rows);
        SetRows(model, rows, {{1, 1}, {0, 0}});
        const auto spoken = [&](int row) {
            return model.index(row, 0).data(Qt::AccessibleTextRole).toString();
        };
        QCOMPARE(spoken(0), QString("Fatal, highlighted"));
        QCOMPARE(spoken(1), QString("Info"));
        model.SetLanguage({Language::German});
        QCOMPARE(spoken(0), QString("Fatal, markiert"));
        model.ToggleHighlighting({{0, 1}});
        QCOMPARE(spoken(0), QString("Fatal"));
        QCOMPARE(spoken(1), QString("Info, markiert"));
        // The other cells say what they show.
        QVERIFY(!model.index(0, 1).data(Qt::AccessibleTextRole).isValid());
    }

    void KeptIndexesFollowTheirEntriesThroughASort() {
        LogbookRows rows;
        LogbookModel model(Result.Book.Entries, rows);
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        SetRows(model, rows, {{0, 0}, {1, 1}});
        QVERIFY(!model.IsSorted());
        const QPersistentModelIndex kept = model.index(0, 3);
        model.SortByColumn(LogbookColumn::Index);
        QVERIFY(model.IsSorted());
        model.SortByColumn(LogbookColumn::Index);
        QCOMPARE(Cells(model, 0).at(5), QString("1"));
        QCOMPARE(kept.row(), 1);
        QCOMPARE(kept.data().toString(), QString("AXIS"));
        SetRows(model, rows, {{0, 0}, {1, 1}});
        QVERIFY(!model.IsSorted());
        QVERIFY(!kept.isValid());
    }

    void RowsAreTakenOut() {
        LogbookRows rows;
        LogbookModel model(Result.Book.Entries, rows);
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        SetRows(model, rows, {{0, 0}, {1, 1}});
        model.RemoveFromList({{0, 0}});
        QCOMPARE(model.rowCount(), 1);
        QCOMPARE(Cells(model, 0).at(5), QString("1"));
    }

  private:
    static QStringList Cells(const LogbookModel& model, int row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells << model.index(row, column).data().toString();
        return cells;
    }

    ReadResult Result;
};

QORVIX_WINDOW_TEST(LogbookModelTest)
#include "LogbookModelTest.moc"
