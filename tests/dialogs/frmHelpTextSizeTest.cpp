// SPDX-License-Identifier: MIT
#include "dialogs/HelpTest.h"

#include "support/WindowTest.h"

#include <QAction>
#include <QWheelEvent>

class frmHelpTextSizeTest : public HelpTest {
    Q_OBJECT

  private slots:
    void TextSizeHasItsLimits() {
        frmHelp window(SmallBook(), {Language::English});
        auto* larger = Find<QAction>(window, "actLargerText");
        auto* smaller = Find<QAction>(window, "actSmallerText");
        const qreal size = PageOf(window)->font().pointSizeF();
        larger->trigger();
        QCOMPARE(PageOf(window)->font().pointSizeF(), size + 1);
        smaller->trigger();
        QCOMPARE(PageOf(window)->font().pointSizeF(), size);
        for (int i = 0; i < 50; ++i)
            smaller->trigger();
        QCOMPARE(PageOf(window)->font().pointSizeF(), size - 4);
        QVERIFY(!smaller->isEnabled());
        for (int i = 0; i < 50; ++i)
            larger->trigger();
        QCOMPARE(PageOf(window)->font().pointSizeF(), size + 12);
        QVERIFY(!larger->isEnabled());
        QVERIFY(smaller->isEnabled());
    }

    void NormalTextIsOneStepAway() {
        frmHelp window(SmallBook(), {Language::English});
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        auto* normal = Find<QAction>(window, "actNormalText");
        const qreal size = PageOf(window)->font().pointSizeF();
        QVERIFY(!normal->isEnabled());
        for (int i = 0; i < 3; ++i)
            Find<QAction>(window, "actLargerText")->trigger();
        QVERIFY(normal->isEnabled());
        QTest::keyClick(&window, Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(PageOf(window)->font().pointSizeF(), size);
        QVERIFY(!normal->isEnabled());
    }

    void WheelWithCtrlGoesTheSameSteps() {
        frmHelp window(SmallBook(), {Language::English});
        window.show();
        auto* page = PageOf(window);
        const qreal size = page->font().pointSizeF();
        TurnWheel(*page, 120, Qt::ControlModifier);
        QCOMPARE(page->font().pointSizeF(), size + 1);
        QVERIFY(Find<QAction>(window, "actNormalText")->isEnabled());
        TurnWheel(*page, -240, Qt::ControlModifier);
        QCOMPARE(page->font().pointSizeF(), size - 1);
        // Fine wheels make a step of several turns.
        for (int i = 0; i < 4; ++i)
            TurnWheel(*page, 30, Qt::ControlModifier);
        QCOMPARE(page->font().pointSizeF(), size);
        for (int i = 0; i < 50; ++i)
            TurnWheel(*page, 120, Qt::ControlModifier);
        QCOMPARE(page->font().pointSizeF(), size + 12);
        QVERIFY(!Find<QAction>(window, "actLargerText")->isEnabled());
        TurnWheel(*page, -120, {});
        QCOMPARE(page->font().pointSizeF(), size + 12);
    }

  private:
    static void TurnWheel(QWidget& page, int delta, Qt::KeyboardModifiers modifiers) {
        QWheelEvent event(QPointF(5, 5), page.mapToGlobal(QPointF(5, 5)), {}, {0, delta}, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(page.findChild<QWidget*>("qt_scrollarea_viewport"), &event);
    }
};

QORVIX_WINDOW_TEST(frmHelpTextSizeTest)
#include "frmHelpTextSizeTest.moc"
