// SPDX-License-Identifier: MIT
#include "app/MainWindowTest.h"

#include "app/MainArea.h"
#include "list/Twips.h"
#include "support/Screens.h"
#include "support/WindowTest.h"

#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScreen>
#include <QScrollBar>

class MainWindowLayoutTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void init() { StartAfresh(); }
    void cleanup() { Window.reset(); }

    void FirstStartHasTheDefaults() {
        QCOMPARE(Window->pos(), QPoint(6, 6));
        QCOMPARE(Window->size(), QSize(933, 800));
        QVERIFY(!Window->isMaximized());
        QVERIFY(!Content()->isVisible());
        QVERIFY(!Item("mnuVContent")->isChecked());
        const int pixels[] = {133, 333, 113, 113, 133, 66, 200};
        for (int column = 0; column < 7; ++column)
            QCOMPARE(List()->columnWidth(column), pixels[column]);
    }

    void WhatWasPlacedComesBack() {
        Window->move(60, 30);
        Window->resize(700, 500);
        List()->setColumnWidth(0, 50);
        List()->setColumnWidth(5, 150);
        Item("mnuVContent")->trigger();
        Window->close();
        QCOMPARE(Stored("Main.Left"), 900);
        QCOMPARE(Stored("Main.Top"), 450);
        QCOMPARE(Stored("Main.Width"), 10500);
        QCOMPARE(Stored("Main.Height"), 7500);
        QCOMPARE(Stored("MainIsMaximized"), 0);
        QCOMPARE(Stored("MainViewContents"), 1);
        QCOMPARE(Stored("Column(1).Width"), 750);
        QCOMPARE(Stored("Column(6).Width"), 2250);

        OpenWindow();
        Window->FirstActivation({});
        QCOMPARE(Window->pos(), QPoint(60, 30));
        QCOMPARE(Window->size(), QSize(700, 500));
        QCOMPARE(List()->columnWidth(0), 50);
        QVERIFY(Content()->isVisible());
        QVERIFY(Item("mnuVContent")->isChecked());
    }

    void ContentPaneIsKeptWhenTheProgramEndsBeforeItIsShown() {
        StoreNumber("MainViewContents", 1);
        OpenWindow();
        Window->close();
        QCOMPARE(Stored("MainViewContents"), 1);
    }

    void UntouchedLengthsKeepTheirTwips() {
        Window->close();
        QCOMPARE(Stored("Main.Left"), 100);
        QCOMPARE(Stored("Main.Width"), 14000);
        QCOMPARE(Stored("Column(1).Width"), 2000);
        QCOMPARE(Stored("Column(6).Width"), 1000);
        QVERIFY(!Store->Values.contains({LogbookKey, "Column(7).Width"}));
    }

    // The height is there before the window is shown; a window that grows then is moved by the desktop.
    void StoredHeightBelowTheLeastOneIsRaised() {
        const int least = Window->minimumSizeHint().height();
        Window->close();
        StoreNumber("Main.Left", 1500);
        StoreNumber("Main.Top", 1500);
        StoreNumber("Main.Width", 12000);
        StoreNumber("Main.Height", 600);
        MakeWindow();
        QCOMPARE(Window->geometry(), QRect(100, 100, 800, least));
        Window->show();
        QCOMPARE(Window->size(), QSize(800, least));
        Window->close();
        QCOMPARE(Stored("Main.Left"), 1500);
        QCOMPARE(Stored("Main.Top"), 1500);
        QCOMPARE(Stored("Main.Height"), 600);
    }

    void EverythingIsStoredAtOnce() {
        Store->Writes = 0;
        Window->close();
        QCOMPARE(Store->Writes, 1);
    }

    void MaximisedWindowKeepsItsNormalPlaceInTheSettings() {
        Window->move(60, 30);
        Window->close();
        OpenWindow();
        Window->showMaximized();
        QTRY_VERIFY(Window->isMaximized());
        Window->close();
        QCOMPARE(Stored("MainIsMaximized"), 1);
        QCOMPARE(Stored("Main.Left"), 900);
        QCOMPARE(Stored("Main.Width"), 14000);
        OpenWindow();
        QVERIFY(Window->isMaximized());
    }

    void ClosingWhileMaximisedKeepsAllFourLengths() {
        const std::pair<const char*, int> lengths[] = {
            {"Main.Left", 901}, {"Main.Top", 452}, {"Main.Width", 7503}, {"Main.Height", 6004}};
        for (const auto& [name, length] : lengths)
            StoreNumber(name, length);
        StoreNumber("MainIsMaximized", 1);
        OpenWindow();
        QTRY_VERIFY(Window->isMaximized());
        QVERIFY(Window->size() != QSize(500, 400));
        Window->close();
        QCOMPARE(Stored("MainIsMaximized"), 1);
        for (const auto& [name, length] : lengths)
            QCOMPARE(Stored(name), length);
    }

    void MinimisedWindowKeepsItsNormalPlaceInTheSettings() {
        Window->showMinimized();
        Window->move(90, 90);
        Window->close();
        QVERIFY(!Store->Values.contains({LogbookKey, "Main.Left"}));
        QCOMPARE(Stored("MainIsMaximized"), 0);
    }

    void WindowThatNoScreenShowsComesBack() {
        for (const int place : {-2000000000, -30000, 2000000000}) {
            StoreNumber("Main.Left", place);
            OpenWindow();
            QCOMPARE(Window->pos(), QPoint(6, 6));
        }
    }

    void DamagedLengthsAreCut() {
        StoreNumber("Main.Height", 2147483647);
        StoreNumber("Main.Width", -5);
        StoreNumber("Column(2).Width", -2147483647);
        OpenWindow();
        QVERIFY(Window->width() > 0);
        QVERIFY(Window->height() <= Screen(0).height());
        QVERIFY(List()->columnWidth(1) >= 0);
    }

    void NothingIsLargerThanTheScreens() {
        const int widest = Screen(0).width() + Screen(1).width();
        for (const char* name : {"Main.Width", "Main.Height", "Column(2).Width"})
            StoreNumber(name, 2147483647);
        for (const int place : {100, 2147483647, -2147483647}) {
            StoreNumber("Main.Left", place);
            StoreNumber("Main.Top", place);
            OpenWindow();
            QVERIFY(Screen(0).contains(Window->frameGeometry()));
            QCOMPARE(List()->columnWidth(1), widest);
            Window->close();
            // The person has changed nothing.
            for (const char* name : {"Main.Width", "Main.Height", "Column(2).Width"})
                QCOMPARE(Stored(name), 2147483647);
            QCOMPARE(Stored("Main.Left"), place);
        }
        OpenWindow();
        Window->resize(700, Window->height());
        List()->setColumnWidth(1, 90);
        Window->close();
        QCOMPARE(Stored("Main.Width"), 10500);
        QCOMPARE(Stored("Main.Height"), 2147483647);
        QCOMPARE(Stored("Column(2).Width"), 1350);
    }

    // The default size on a screen of 1920 x 1080 pixels at a scale of 2.
    void SmallScreenShowsTheWholeWindow() {
        StoreNumber("Main.Left", TwipsOf(Screen(1).left() + 30));
        OpenWindow();
        QVERIFY(Screen(1).contains(Window->frameGeometry()));
        QVERIFY(Window->width() > 900 && Window->height() > 450);
        Window->close();
        QCOMPARE(Stored("Main.Width"), 14000);
        QCOMPARE(Stored("Main.Height"), 12000);
        QCOMPARE(Stored("Main.Left"), TwipsOf(Screen(1).left() + 30));
    }

    void WindowAcrossTwoScreensStays() {
        const QRect across(Screen(0).right() - 500, 20, 1000, 400);
        StoreNumber("Main.Left", TwipsOf(across.x()));
        StoreNumber("Main.Top", TwipsOf(across.y()));
        StoreNumber("Main.Width", TwipsOf(across.width()));
        StoreNumber("Main.Height", TwipsOf(across.height()));
        OpenWindow();
        QCOMPARE(QRect(Window->pos(), Window->size()), across);
    }

    void ListFillsTheWindow() {
        const int width = Area()->width() - Find<QWidget>("pbTagViewer")->width();
        QCOMPARE(List()->geometry(), QRect(0, 0, width, Area()->height()));
        // The tag viewer ends above the list's horizontal scroll bar.
        const int rowsEnd = List()->viewport()->geometry().bottom() + 1;
        QVERIFY(List()->horizontalScrollBar()->isVisible());
        QCOMPARE(Find<QWidget>("pbTagViewer")->geometry(),
                 QRect(width, 20, Area()->width() - width, rowsEnd - 20));
        Window->resize(500, 400);
        QTRY_COMPARE(List()->height(), Area()->height());
    }

    void ContentPaneStandsBelowAGap() {
        const int contentHeight = Content()->height();
        Item("mnuVContent")->trigger();
        QVERIFY(Content()->isVisible());
        QCOMPARE(Content()->width(), Area()->width());
        QCOMPARE(Content()->height(), contentHeight);
        QCOMPARE(List()->height() + 80 / 15 + contentHeight, Area()->height());
        QCOMPARE(Content()->y(), List()->height() + 80 / 15);
        Window->resize(Window->width(), 600);
        QTRY_COMPARE(Content()->height(), contentHeight);
        QTRY_COMPARE(Content()->y() + contentHeight, Area()->height());
        Item("mnuVContent")->trigger();
        QVERIFY(!Content()->isVisible());
        QCOMPARE(List()->height(), Area()->height());
    }

    void WindowTooLowLeavesTheListItsHeight() {
        Item("mnuVContent")->trigger();
        Area()->resize(600, 400);
        const QRect before = List()->geometry();
        const int top = Content()->y();
        Area()->resize(600, Content()->height() + 5);
        QCOMPARE(List()->height(), before.height());
        QCOMPARE(Content()->y(), top);
    }

    void GapIsDragged() {
        Item("mnuVContent")->trigger();
        const int content = Content()->height();
        const int list = List()->height();
        const QPoint gap(40, list + 2);
        QTest::mouseMove(Area(), gap);
        QCOMPARE(Area()->cursor().shape(), Qt::SizeVerCursor);
        QTest::mousePress(Area(), Qt::LeftButton, {}, gap);
        Drag(gap - QPoint(0, 30));
        QCOMPARE(Content()->height(), content + 30);
        QCOMPARE(List()->height(), list - 30);
        Drag(gap + QPoint(0, 10));
        QCOMPARE(Content()->height(), content - 10);
        QTest::mouseRelease(Area(), Qt::LeftButton, {}, gap + QPoint(0, 10));
        Drag(gap - QPoint(0, 90));
        QCOMPARE(Content()->height(), content - 10);
        QCOMPARE(Area()->cursor().shape(), Qt::ArrowCursor);
    }

    void GapHasNoSizingPointerWithoutContentPane() {
        QTest::mouseMove(Area(), QPoint(40, List()->height() - 1));
        QCOMPARE(Area()->cursor().shape(), Qt::ArrowCursor);
    }

    void DragLeavesTheListItsLeastHeight() {
        // An area of 3000 twips: 1000 of content, the gap, 1920 of list.
        QCOMPARE(MainArea::ContentHeightAfterDrag(1000, 1950, 230, 3000), std::optional(2720));
        QCOMPARE(MainArea::ContentHeightAfterDrag(1000, 1950, 229, 3000), std::nullopt);
        QCOMPARE(MainArea::ContentHeightAfterDrag(1000, 1950, 2950, 3000), std::optional(0));
        QCOMPARE(MainArea::ContentHeightAfterDrag(1000, 1950, 2951, 3000), std::nullopt);
    }

    void RefusedDragsChangeNothing() {
        Item("mnuVContent")->trigger();
        const int content = Content()->height();
        const QPoint gap(40, List()->height() + 2);
        QTest::mouseMove(Area(), gap);
        QTest::mousePress(Area(), Qt::LeftButton, {}, gap);
        Drag(QPoint(40, 1));
        QCOMPARE(Content()->height(), content);
        Drag(QPoint(40, Area()->height() + 30));
        QCOMPARE(Content()->height(), content);
        QTest::mouseRelease(Area(), Qt::LeftButton, {}, gap);
    }

    void BarsAreHiddenByTheirItems() {
        QVERIFY(Item("mnuViewToolbar")->isChecked());
        Item("mnuViewToolbar")->trigger();
        QVERIFY(!Find<QWidget>("tbToolBar")->isVisible());
        Item("mnuViewStatusBar")->trigger();
        QVERIFY(!Find<QWidget>("sbStatusBar")->isVisible());
        QTRY_COMPARE(List()->height(), Area()->height());
        Item("mnuViewToolbar")->trigger();
        Item("mnuViewStatusBar")->trigger();
        QVERIFY(Find<QWidget>("tbToolBar")->isVisible());
        QVERIFY(Find<QWidget>("sbStatusBar")->isVisible());
    }

    void ProgressBarGoesAgainWhereTheLayoutChangesWithIt() {
        Window->OpenLogbook(FileOfErrors(3));
        Find<QWidget>("sbStatusBar")->setFixedHeight(60); // takes effect with the next layout
        Window->ApplyFilter();
        QVERIFY(!Find<QProgressBar>("ProgressBar")->isVisible());
    }

    void ProgressBarCoversTheThirdPanel() {
        auto* const status = Find<MainStatusBar>("sbStatusBar");
        auto* const bar = Find<QProgressBar>("ProgressBar");
        const auto* const panel = Find<QWidget>("statusProgress");
        QVERIFY(!bar->isVisible());
        status->ShowProgressBar();
        QVERIFY(bar->isVisible());
        QCOMPARE(bar->x(), panel->mapTo(Window.get(), QPoint()).x());
        QCOMPARE(bar->width(), panel->width());
        QCOMPARE(bar->y(), status->y() + 1);
        QCOMPARE(bar->height(), status->height() - 1);
        Window->RecalculateLayout();
        QVERIFY(!bar->isVisible());
    }

  private:
    static QRect Screen(int number) { return QGuiApplication::screens()[number]->availableGeometry(); }

    const std::string LogbookKey = std::string(ApplicationKey) + "\\Logbook";

    QWidget* Area() const { return Window->centralWidget(); }
    QPlainTextEdit* Content() const { return Find<QPlainTextEdit>("txContent"); }

    int Stored(const char* name) const { return Settings->ReadLogbookSettingLong(name, -1); }
    void StoreNumber(const char* name, int number) {
        Settings->WriteLogbookSetting(name, number, SettingType::Integer);
    }

    void Drag(QPoint to) {
        QMouseEvent move(QEvent::MouseMove, to, Area()->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(Area(), &move);
    }
};

static int RunMainWindowLayout(int argc, char** argv) {
    const Screens screens({{1920, 1080}, {960, 540}});
    return RunWindowTest<MainWindowLayoutTest>(argc, argv);
}
QORVIX_WINDOW_TEST_RUN(MainWindowLayoutTest, RunMainWindowLayout)
#include "MainWindowLayoutTest.moc"
