// SPDX-License-Identifier: MIT
#include "dialogs/frmProgress.h"

#include "dialogs/DialogTest.h"
#include "support/WindowTest.h"

#include <QProgressBar>
#include <QPushButton>

class frmProgressTest : public DialogTest {
    Q_OBJECT

  private slots:
    void cleanup() { frmProgress::ShownAfter = ShownAfter; }

    void ComesUpOnlyAfterAWhile() {
        QVERIFY(ShownAfter >= std::chrono::milliseconds(300) &&
                ShownAfter <= std::chrono::milliseconds(1000));
        frmProgress::ShownAfter = std::chrono::milliseconds(50);
        frmProgress dialog(TextId::ExportingList, {}, nullptr);
        bool eventsRan = false;
        QTimer::singleShot(0, this, [&] { eventsRan = true; });
        QVERIFY(dialog.GoesOn(0));
        QVERIFY(!dialog.isVisible());
        QVERIFY(!eventsRan);
        QElapsedTimer time;
        time.start();
        while (time.elapsed() < 51)
            QVERIFY(dialog.GoesOn(10));
        QVERIFY(dialog.GoesOn(10)); // a slow machine may have had no call since
        QVERIFY(dialog.isVisible());
        QVERIFY(eventsRan);
        QVERIFY(Find<QProgressBar>(dialog, "pbProgress")->value() == 10);
    }

    void IsEndedByButtonKeyAndTitleBar() {
        for (const auto& end : std::vector<std::function<void(frmProgress&)>>{
                 [](frmProgress& dialog) { Click(dialog, "cmdCancel"); },
                 [](frmProgress& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); },
                 [](frmProgress& dialog) { dialog.close(); }}) {
            frmProgress::ShownAfter = std::chrono::milliseconds(0);
            frmProgress dialog(TextId::ExportingList, {Language::German}, nullptr);
            QVERIFY(dialog.GoesOn(0));
            QVERIFY(dialog.isVisible());
            QCOMPARE(NamelessControls(dialog), QStringList());
            QCOMPARE(CutOffTexts(dialog), QStringList());
            QCOMPARE(TextOf(dialog, "lblWhat"), QString("Exportiere die Liste..."));
            end(dialog);
            QVERIFY(!dialog.GoesOn(50));
            QVERIFY(!dialog.isVisible());
        }
    }

  private:
    const std::chrono::milliseconds ShownAfter = frmProgress::ShownAfter;
};

QORVIX_WINDOW_TEST(frmProgressTest)
#include "frmProgressTest.moc"
