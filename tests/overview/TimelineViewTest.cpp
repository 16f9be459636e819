// SPDX-License-Identifier: MIT
// The timeline under the mouse, the keys and whatever reads the screen.
#include "overview/TimelineView.h"

#include "overview/HistoryOfStory.h"
#include "support/WindowTest.h"

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QSignalSpy>
#include <QToolTip>
#include <QWheelEvent>

class TimelineViewTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        View = std::make_unique<TimelineView>(nullptr);
        View->SetLanguage({Language::English});
        View->resize(700, View->sizeHint().height());
        View->show();
        QVERIFY(QTest::qWaitForWindowExposed(View.get()));
        View->ShowHistory(&Story.History(), HistoryOfStory::SetOf({3}), HistoryOfStory::SetOf({5}));
        Entries = std::make_unique<QSignalSpy>(View.get(), &TimelineView::EntryWanted);
        Spans = std::make_unique<QSignalSpy>(View.get(), &TimelineView::SpanSelected);
    }
    void cleanup() { View.reset(); }

    void ShowsTheWholeLogbookAtFirst() {
        QVERIFY(View->Scale().ShowsAll());
        QCOMPARE(View->SeenText(), QString("20.11.2010 08:00:00 to 20.11.2010 12:00:00"));
        View->SetLanguage({Language::German});
        QCOMPARE(View->SeenText(), QString("20.11.2010 08:00:00 bis 20.11.2010 12:00:00"));
    }

    void AtTheEndIsTheTimeOfTheLastEntry() {
        ReadResult result;
        ReadText(
            Lines({Header("STIB:    On", "20.11.2010 08:00:00"), Header("STIB:    On", "20.11.2010 09:00:00"),
                   Header("STIB:    On", "20.11.2010 08:30:00")}),
            result);
        LogbookHistory history(result.Book, {});
        while (history.Go()) {
        }
        View->ShowHistory(&history, EntrySet(3), EntrySet(3));
        QCOMPARE(View->SeenText(), QString("20.11.2010 08:00:00 to 20.11.2010 08:30:00"));
        // The break stands before it, at the edge.
        const QImage picture = View->grab().toImage();
        const int edge = Left() + View->Scale().Width();
        int painted = 0;
        for (int x = edge - 10; x < edge; ++x)
            painted += picture.pixelColor(x, 60) == View->palette().color(QPalette::Text) ? 1 : 0;
        QVERIFY(painted > 0);
        View->ShowHistory(nullptr, EntrySet(), EntrySet());
    }

    void SaysWhenNoEntryHasAReadableTime() {
        ReadResult result;
        ReadText(Lines({Header("STIB:    On", "99.99.2010 08:00:00")}), result);
        LogbookHistory history(result.Book, {});
        while (history.Go()) {
        }
        View->ShowHistory(&history, EntrySet(1), EntrySet(1));
        QCOMPARE(View->SeenText(), QString("No entry has a time that can be read"));
        View->SetLanguage({Language::German});
        QCOMPARE(View->SeenText(), QString("Kein Eintrag hat eine lesbare Zeit"));
        View->ShowHistory(nullptr, EntrySet(), EntrySet());
    }

    void TheWheelZoomsAroundThePointer() {
        const int x = XOf(std::chrono::hours(1));
        const Timeline::Place before = View->Scale().PlaceAt(View->Scale().PixelOf(std::chrono::hours(1)));
        for (int notch = 0; notch < 5; ++notch)
            Wheel(x, 120);
        QVERIFY(!View->Scale().ShowsAll());
        const Timeline::Place after = View->Scale().PlaceAt(x - Left());
        QVERIFY(std::abs((after - before).count()) <
                std::chrono::milliseconds(std::chrono::minutes(2)).count());
        for (int notch = 0; notch < 9; ++notch)
            Wheel(x, -120);
        QVERIFY(View->Scale().ShowsAll());
    }

    void ADragMoves() {
        for (int notch = 0; notch < 8; ++notch)
            Wheel(XOf(std::chrono::hours(2)), 120);
        const Timeline::Place from = View->Scale().From();
        Drag(Left() + 300, Left() + 200);
        QVERIFY(std::abs(View->Scale().PixelOf(from) + 100) <= 1);
        QVERIFY(Spans->isEmpty());
        QVERIFY(Entries->isEmpty());
        Drag(Left() + 200, Left() + 300);
        QVERIFY(std::abs(View->Scale().PixelOf(from)) <= 1);
    }

    void ADoubleClickGoesToTheEntry() {
        QTest::mouseDClick(View.get(), Qt::LeftButton, {}, PointOf(std::chrono::hours(2) - Minutes(1)));
        QCOMPARE(Entries->size(), 1);
        QCOMPARE(Entries->at(0).at(0).value<EntryNumber>(), EntryNumber{4}); // the first one there or later
        QTest::mouseDClick(View.get(), Qt::LeftButton, {}, PointOf(std::chrono::hours(4)));
        QCOMPARE(Entries->at(1).at(0).value<EntryNumber>(), EntryNumber{8});
        QTest::mouseDClick(View.get(), Qt::LeftButton, {}, QPoint(3, 10)); // a lane's name
        QCOMPARE(Entries->size(), 2);
    }

    void ADragWithShiftSelectsASpan() {
        Drag(XOf(Minutes(5)), XOf(Minutes(65)), Qt::ShiftModifier);
        QCOMPARE(Spans->size(), 1);
        QCOMPARE(SpanAt(0), (std::pair<EntryNumber, EntryNumber>{1, 4}));
        QVERIFY(View->Content().Selected.has_value());
        QVERIFY(View->Scale().ShowsAll());
        // From right to left is the same; a span without entries has none.
        Drag(XOf(Minutes(65)), XOf(Minutes(5)), Qt::ShiftModifier);
        QCOMPARE(SpanAt(1), (std::pair<EntryNumber, EntryNumber>{1, 4}));
        Drag(XOf(Minutes(70)), XOf(Minutes(80)), Qt::ShiftModifier);
        QCOMPARE(SpanAt(2), (std::pair<EntryNumber, EntryNumber>{4, 4}));
        // Beyond the edge is its end.
        Drag(XOf(Minutes(125)), 5000, Qt::ShiftModifier);
        QCOMPARE(SpanAt(3), (std::pair<EntryNumber, EntryNumber>{5, 9}));
    }

    void KeysDoWhatTheMouseDoes() {
        QTest::keyClick(View.get(), Qt::Key_End);
        QTest::keyClick(View.get(), Qt::Key_Return);
        QCOMPARE(Entries->at(0).at(0).value<EntryNumber>(), EntryNumber{8});
        QTest::keyClick(View.get(), Qt::Key_Home);
        QTest::keyClick(View.get(), Qt::Key_Right);
        QTest::keyClick(View.get(), Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(Entries->at(1).at(0).value<EntryNumber>(), EntryNumber{1});
        for (int step = 0; step < 8; ++step)
            QTest::keyClick(View.get(), Qt::Key_Plus);
        QVERIFY(!View->Scale().ShowsAll());
        const Timeline::Place from = View->Scale().From();
        QTest::keyClick(View.get(), Qt::Key_PageDown);
        QVERIFY(View->Scale().From() > from);
        QTest::keyClick(View.get(), Qt::Key_PageUp);
        QCOMPARE(View->Scale().From(), from);
        for (int step = 0; step < 8; ++step)
            QTest::keyClick(View.get(), Qt::Key_Minus);
        QVERIFY(View->Scale().ShowsAll());
    }

    void ShiftAndTheArrowsSelectASpan() {
        QTest::keyClick(View.get(), Qt::Key_Home);
        QTest::keyPress(View.get(), Qt::Key_End, Qt::ShiftModifier);
        QVERIFY(Spans->isEmpty());
        QTest::keyRelease(View.get(), Qt::Key_Shift);
        QCOMPARE(SpanAt(0), (std::pair<EntryNumber, EntryNumber>{0, 9}));
        QTest::keyClick(View.get(), Qt::Key_Left);
        QVERIFY(!View->Content().Selected.has_value());
        QTest::keyRelease(View.get(), Qt::Key_Shift);
        QCOMPARE(Spans->size(), 1);
    }

    // The keys of the window still reach it.
    void OtherKeysAreNotTaken() {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
        QApplication::sendEvent(View.get(), &key);
        QVERIFY(!key.isAccepted());
    }

    void ScreenReadersHaveWords() {
        const QAccessibleInterface* const words = QAccessible::queryAccessibleInterface(View.get());
        QCOMPARE(words->text(QAccessible::Name), QString("Timeline"));
        QCOMPARE(words->text(QAccessible::Description),
                 QString("20.11.2010 08:00:00 to 20.11.2010 12:00:00"));
        QTest::keyClick(View.get(), Qt::Key_Home);
        QTest::keyClick(View.get(), Qt::Key_Right);
        const QString at = words->text(QAccessible::Description);
        QVERIFY2(at.contains("Errors: 0, Warnings: 0"), qPrintable(at));
        View->SetLanguage({Language::German});
        QCOMPARE(words->text(QAccessible::Name), QString("Zeitleiste"));
    }

    void AToolTipCountsWhatABarStandsFor() {
        const QPoint at = PointOf(Minutes(10));
        QHelpEvent help(QEvent::ToolTip, at, View->mapToGlobal(at));
        QApplication::sendEvent(View.get(), &help);
        QVERIFY2(QToolTip::text().endsWith(", Errors: 1, Warnings: 0"), qPrintable(QToolTip::text()));
    }

    void WithoutALogbookNothingCanBeOrdered() {
        View->ShowHistory(nullptr, EntrySet(), EntrySet());
        QCOMPARE(View->SeenText(), QString());
        Wheel(Left() + 100, 120);
        Drag(Left() + 100, Left() + 200, Qt::ShiftModifier);
        QTest::mouseDClick(View.get(), Qt::LeftButton, {}, QPoint(Left() + 100, 20));
        for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Return, Qt::Key_Plus, Qt::Key_Left})
            QTest::keyClick(View.get(), key);
        View->ZoomIn();
        View->ZoomOut();
        View->ShowAll();
        QVERIFY(Spans->isEmpty());
        QVERIFY(Entries->isEmpty());
        QVERIFY(!View->grab().isNull());
    }

    // Bars and marks stand in the lane and at the place of their entries, in light and in dark.
    void EachLaneHasItsMarks() {
        for (const bool dark : {false, true}) {
            QPalette palette = QApplication::palette();
            palette.setColor(QPalette::Base, dark ? QColor(30, 30, 30) : QColor(Qt::white));
            palette.setColor(QPalette::Text, dark ? QColor(Qt::white) : QColor(Qt::black));
            View->setPalette(palette);
            const QImage picture = View->grab().toImage();
            const TimelineLanes lanes = LanesOf(View->fontMetrics(), View->width(), {Language::English});
            const auto painted = [&](TimelineLane lane, Timeline::Place place) {
                const QRect& rect = lanes.Of(lane);
                int colours = 0;
                for (int x = XOf(place) - 3; x <= XOf(place) + 3; ++x)
                    for (int y = rect.top() + 1; y < rect.bottom(); ++y) {
                        const QColor colour = picture.pixelColor(x, y);
                        const int spread = std::max({colour.red(), colour.green(), colour.blue()}) -
                                           std::min({colour.red(), colour.green(), colour.blue()});
                        colours += spread > 60 ? 1 : 0;
                    }
                return colours > 0;
            };
            QVERIFY(painted(TimelineLane::Errors, Minutes(10)));
            QVERIFY(!painted(TimelineLane::Errors, Minutes(20)));
            QVERIFY(painted(TimelineLane::Warnings, Minutes(20)));
            QVERIFY(!painted(TimelineLane::Warnings, Minutes(10)));
            QVERIFY(painted(TimelineLane::Comments, Minutes(60)));
            QVERIFY(!painted(TimelineLane::Comments, Minutes(130)));
            QVERIFY(painted(TimelineLane::Highlighted, Minutes(130)));
            QVERIFY(!painted(TimelineLane::Highlighted, Minutes(60)));
            QVERIFY(painted(TimelineLane::Sessions, Minutes(30)));  // recorded
            QVERIFY(painted(TimelineLane::Sessions, Minutes(180))); // recorded, of the second one
        }
    }

    void TheOpenPartOfASessionIsNotSolid() {
        const QImage picture = View->grab().toImage();
        const TimelineLanes lanes = LanesOf(View->fontMetrics(), View->width(), {Language::English});
        const int middle = lanes.Of(TimelineLane::Sessions).center().y();
        // Nothing is recorded from 09:00 to the start at 10:00.
        QVERIFY(picture.pixelColor(XOf(Minutes(30)), middle) != picture.pixelColor(XOf(Minutes(90)), middle));
        QCOMPARE(picture.pixelColor(XOf(Minutes(90)), middle), View->palette().color(QPalette::Base));
    }

    void WhatTheListShowsIsFramed() {
        const QImage before = View->grab().toImage();
        View->ShowList(TimelineSpan{Minutes(60), Minutes(120)}, Minutes(70));
        const QImage after = View->grab().toImage();
        QVERIFY(before.pixelColor(XOf(Minutes(60)), 40) != after.pixelColor(XOf(Minutes(60)), 40));
        QVERIFY(before.pixelColor(XOf(Minutes(120)), 40) != after.pixelColor(XOf(Minutes(120)), 40));
        QCOMPARE(before.pixelColor(XOf(Minutes(180)), 40), after.pixelColor(XOf(Minutes(180)), 40));
        QCOMPARE(View->Content().Cursor, std::optional<Timeline::Place>(Minutes(70)));
    }

    void LargeLettersMakeItHigher() {
        const int height = View->sizeHint().height();
        QFont font = View->font();
        font.setPointSize(18);
        View->setFont(font);
        QVERIFY(View->sizeHint().height() > height * 3 / 2);
        QVERIFY(View->minimumSizeHint().width() < 640);
    }

  private:
    using Minutes = std::chrono::minutes;

    int Left() const { return LanesOf(View->fontMetrics(), View->width(), {Language::English}).StripLeft; }
    int XOf(Timeline::Place place) const { return Left() + View->Scale().PixelOf(place); }
    QPoint PointOf(Timeline::Place place) const { return {XOf(place), 20}; }
    std::pair<EntryNumber, EntryNumber> SpanAt(int index) const {
        return {Spans->at(index).at(0).value<EntryNumber>(), Spans->at(index).at(1).value<EntryNumber>()};
    }
    void Wheel(int x, int degrees) const {
        const QPointF at(x, 20);
        QWheelEvent event(at, View->mapToGlobal(at), QPoint(), QPoint(0, degrees), Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(View.get(), &event);
        QVERIFY(event.isAccepted());
    }
    void Drag(int from, int to, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::mousePress(View.get(), Qt::LeftButton, modifiers, QPoint(from, 20));
        for (const int x : {(from + to) / 2, to}) {
            const QPointF at(x, 20);
            QMouseEvent move(QEvent::MouseMove, at, View->mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                             modifiers);
            QApplication::sendEvent(View.get(), &move);
        }
        QTest::mouseRelease(View.get(), Qt::LeftButton, modifiers, QPoint(to, 20));
    }

    HistoryOfStory Story;
    std::unique_ptr<TimelineView> View;
    std::unique_ptr<QSignalSpy> Entries;
    std::unique_ptr<QSignalSpy> Spans;
};

QORVIX_WINDOW_TEST(TimelineViewTest)
#include "TimelineViewTest.moc"
