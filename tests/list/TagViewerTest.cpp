// SPDX-License-Identifier: MIT
#include "list/TagViewer.h"

#include "list/LogbookModel.h"
#include "list/LogbookView.h"
#include "list/SetRows.h"
#include "support/ReadText.h"
#include "support/WindowTest.h"

#include <QApplication>
#include <QHelpEvent>
#include <QImage>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include <cmath>
#include <memory>
#include <set>

class TagViewerTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        ReadText(Lines({Header("BERR:    a"), Header("ERROR:   PLC X"), "b", Header("RESET:")}), Result);
        QCOMPARE(Result.Book.Entries.Count(), 3U);
        Area = std::make_unique<QWidget>();
        Model = std::make_unique<LogbookModel>(Result.Book.Entries, Rows);
        List = new LogbookView(Area.get());
        List->SetLogbook(Model.get());
        List->setGeometry(0, 0, 400, 320);
        Viewer = new TagViewer(*List, Result.Book.Entries, Area.get());
        Viewer->resize(12, 0);
        Area->resize(412, 320);
        Area->show();
        QVERIFY(QTest::qWaitForWindowExposed(Area.get()));
        Viewer->ResizeTagViewer();
        QTRY_VERIFY(!Timer()->isActive());
    }
    void cleanup() { Area.reset(); }

    void TimerDrawsEveryTwentyMillisecondsAndStopsWhenDone() {
        QCOMPARE(Timer()->interval(), 20);
        QVERIFY(!Timer()->isActive());
        Viewer->RefreshTagViewerDelayed();
        QVERIFY(Timer()->isActive());
        QTRY_VERIFY(!Timer()->isActive());
    }

    void EmptyListClearsThePicture() {
        Show(4, {1, 2});
        QVERIFY(!IsEmpty(Grab()));
        SetRows(*Model, Rows, {});
        QVERIFY(Viewer->RefreshTagViewer());
        QVERIFY(IsEmpty(Grab()));
    }

    void PictureIsWhatTheRuleGives() {
        for (const int rows : {1, 2, 3, 7, 64, 150, 299, 300, 301, 1000, 25000})
            for (const int every : {1, 2, 97}) {
                std::set<int> highlighted;
                for (int row = 0; row < rows; row += every)
                    highlighted.insert(row);
                for (const int selected : {-1, 0, rows / 2, rows - 1}) {
                    Show(rows, highlighted, selected);
                    CompareWithRule(rows, highlighted, selected);
                }
            }
    }

    void RowsOnOneLineGiveOneMark() {
        Show(3000, {1501, 1502, 1503});
        const QImage picture = Grab();
        QVERIFY(Viewer->height() < 1500);
        QCOMPARE(LinesOf(picture, Qt::cyan), 1);
    }

    void WithoutHighlightsOnlyTheSelectionIsSeen() {
        Show(10, {4}, 7);
        QVERIFY(LinesOf(Grab(), Qt::cyan) > 0);
        Show(10, {}, 7);
        QCOMPARE(LinesOf(Grab(), Qt::cyan), 0);
        QCOMPARE(LinesOf(Grab(), Qt::red), static_cast<int>(std::lround(Height() / 10.0)));
    }

    void SelectionMarkHasTwoPixelsAtLeastAlsoInTheLastRow() {
        for (const int row : {0, 12345, 24999}) {
            Show(25000, {}, row);
            QCOMPARE(LinesOf(Grab(), Qt::red), 2);
        }
    }

    void NewRefreshBeginsAnew() {
        std::set<int> all;
        for (int row = 0; row < 25000; ++row)
            all.insert(row);
        Fill(25000, all);
        Viewer->RefreshTagViewerDelayed();
        QVERIFY(!Viewer->RefreshTagViewer());
        Fill(10, {});
        Viewer->RefreshTagViewerDelayed();
        QVERIFY(Viewer->RefreshTagViewer());
        QVERIFY(IsEmpty(Grab()));
    }

    void ClickJumpsToTheRowAtThatHeight() {
        Show(1000, {});
        const int y = Viewer->height() / 2;
        const int row = static_cast<int>(std::lround(y / (Viewer->height() / 1000.0) + 1)) - 1;
        Click(y);
        QCOMPARE(List->SelectedRow(), std::optional(row));
        QVERIFY(List->viewport()->rect().contains(List->visualRect(Model->index(row, 0)).center()));
        QVERIFY(Timer()->isActive());
        QTRY_VERIFY(!Timer()->isActive());
        QCOMPARE(LinesOf(Grab(), Qt::red), 2);
        Click(0);
        QCOMPARE(List->SelectedRow(), std::optional(0));
    }

    void ClickInTheLowestBandGoesToTheLastRow() {
        for (const int rows : {1, 3, 50, Viewer->height()}) {
            Show(rows, {});
            Click(Viewer->height() - 1);
            QCOMPARE(List->SelectedRow(), std::optional(rows - 1));
        }
    }

    void ClickOnAnEmptyListDoesNothing() {
        Show(0, {});
        Click(10);
        QVERIFY(!List->SelectedRow());
    }

    void ToolTipTellsTheRowUnderThePointer() {
        SetRows(*Model, Rows, {{2, 0}, {1, 0}});
        QCOMPARE(TipAt(1), QString("2  04.01.2010 12:34:56.789  Restart"));
        QCOMPARE(TipAt(Viewer->height() - 1), QString("1  04.01.2010 12:34:56.789  Error"));
        SetRows(*Model, Rows, {});
        TipAt(1);
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void StandsBesideTheRowsBelowTheHeader() {
        for (int column = 0; column < 7; ++column)
            List->setColumnWidth(column, 20);
        Show(3, {});
        QTRY_VERIFY(!List->horizontalScrollBar()->isVisible());
        QCOMPARE(Viewer->geometry(), QRect(400, 20, 12, 300));
        List->setColumnWidth(1, 1000);
        QTRY_VERIFY(List->horizontalScrollBar()->isVisible());
        QCOMPARE(Viewer->geometry().bottom(), List->viewport()->geometry().bottom());
        QVERIFY(Viewer->height() < 300);
        // A vertical scroll bar stands within the list.
        Show(1000, {});
        QTRY_VERIFY(List->verticalScrollBar()->isVisible());
        QCOMPARE(Viewer->geometry().left(), 400);
    }

    void NeverHasANegativeHeight() {
        List->resize(400, 10);
        Viewer->ResizeTagViewer();
        QCOMPARE(Viewer->height(), 0);
        QVERIFY(Viewer->RefreshTagViewer());
    }

    void ResizingDrawsAnew() {
        Show(2, {1});
        List->resize(400, 200);
        Viewer->ResizeTagViewer();
        QVERIFY(Timer()->isActive());
        QTRY_VERIFY(!Timer()->isActive());
        CompareWithRule(2, {1}, -1);
    }

    void MarksKeepTheirColoursInADarkPalette() {
        Show(10, {2}, 5);
        QPalette dark;
        dark.setColor(QPalette::Base, QColor(20, 20, 20));
        Viewer->setPalette(dark);
        CompareWithRule(10, {2}, 5);
        QCOMPARE(Grab().pixelColor(0, Height() - 1), QColor(20, 20, 20));
    }

  private:
    QTimer* Timer() const { return Viewer->findChild<QTimer*>("tmTagViewer"); }
    int Height() const {
        return static_cast<int>(std::lround(Viewer->height() * Viewer->devicePixelRatioF()));
    }
    QImage Grab() const { return Viewer->grab().toImage(); }
    QColor Background() const { return Viewer->palette().color(QPalette::Base); }

    void Fill(int rows, const std::set<int>& highlighted, int selected = -1) {
        LogbookRows list;
        for (int row = 0; row < rows; ++row)
            list.push_back({static_cast<EntryNumber>(row % 3) & MostEntries, highlighted.contains(row)});
        SetRows(*Model, Rows, std::move(list));
        if (selected >= 0)
            List->SelectAndShow(selected);
    }

    void Show(int rows, const std::set<int>& highlighted, int selected = -1) {
        Fill(rows, highlighted, selected);
        Viewer->RefreshTagViewerDelayed();
        while (!Viewer->RefreshTagViewer()) {
        }
    }

    // Draws line by line what the rule says: y = (row - 1) * H / n, height H / n.
    void CompareWithRule(int rows, const std::set<int>& highlighted, int selected) {
        const int height = Height();
        std::vector<QColor> expected(static_cast<std::size_t>(height), Background());
        const auto fill = [&](int top, int lines, const QColor& colour) {
            for (int line = top; line < top + lines && line < height; ++line)
                expected[static_cast<std::size_t>(line)] = colour;
        };
        const int markHeight = static_cast<int>(std::lround(static_cast<double>(height) / rows));
        for (const int row : highlighted)
            fill(static_cast<int>(static_cast<long long>(row) * height / rows), std::max(1, markHeight),
                 Qt::cyan);
        if (selected >= 0) {
            const int lines = std::max(2, markHeight);
            const int top = static_cast<int>(static_cast<long long>(selected) * height / rows);
            fill(std::max(0, std::min(top, height - lines)), lines, Qt::red);
        }
        const QImage picture = Grab();
        QCOMPARE(picture.height(), height);
        for (int y = 0; y < height; ++y)
            for (const int x : {0, picture.width() / 2, picture.width() - 1})
                QCOMPARE(picture.pixelColor(x, y).name(), expected[static_cast<std::size_t>(y)].name());
    }

    static int LinesOf(const QImage& picture, Qt::GlobalColor colour) {
        int lines = 0;
        for (int y = 0; y < picture.height(); ++y)
            lines += picture.pixelColor(0, y) == QColor(colour);
        return lines;
    }

    static bool IsEmpty(const QImage& picture) {
        return LinesOf(picture, Qt::cyan) == 0 && LinesOf(picture, Qt::red) == 0;
    }

    void Click(int y) const { QTest::mouseClick(Viewer, Qt::LeftButton, {}, QPoint(5, y)); }

    QString TipAt(int y) const {
        const QPoint place(5, y);
        QHelpEvent help(QEvent::ToolTip, place, Viewer->mapToGlobal(place));
        QApplication::sendEvent(Viewer, &help);
        return PlainText(QToolTip::text());
    }

    static QString PlainText(QString tip) {
        tip.remove("<qt style='white-space:pre'>").remove("</qt>");
        return tip;
    }

    ReadResult Result;
    LogbookRows Rows;
    std::unique_ptr<LogbookModel> Model;
    std::unique_ptr<QWidget> Area;
    LogbookView* List = nullptr;
    TagViewer* Viewer = nullptr;
};

QORVIX_WINDOW_TEST(TagViewerTest)
#include "TagViewerTest.moc"
