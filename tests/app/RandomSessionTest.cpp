// SPDX-License-Identifier: MIT
#include "app/session/RandomSession.h"

#include "support/WindowTest.h"

// A long session of random orders, each followed by a look at all that the window shows and stores.
//
// QORVIX_SESSION_SEED and QORVIX_SESSION_STEPS choose another session than the usual one; with
// QORVIX_SESSION_LOG the orders are told as they are given.
class RandomSessionTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        LeaveOutPlatformWarnings();
    }

    void WindowAndModelAgreeAfterEveryOrder() {
        const qulonglong seed = Number("QORVIX_SESSION_SEED", 1);
        const qulonglong steps = Number("QORVIX_SESSION_STEPS", 2000);
        qInfo("session of seed %llu, %llu steps", seed, steps);
        RandomSession session(seed);
        for (qulonglong step = 1; step <= steps; ++step) {
            const QString difference = session.Step();
            if (!difference.isEmpty())
                QFAIL(qPrintable(
                    QString("Seed %1, step %2: %3.\nThe last orders:\n  %4")
                        .arg(seed)
                        .arg(step)
                        .arg(difference, session.Orders().last(LastOrders(session)).join("\n  "))));
        }
    }

  private:
    // The platform without a display says what it lacks thousands of times; Qt Test would fall silent.
    static void LeaveOutPlatformWarnings() {
        static QtMessageHandler before = nullptr;
        before = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext& context, const QString& text) {
                if (!text.startsWith("This plugin does not support"))
                    before(type, context, text);
            });
    }

    static qulonglong Number(const char* variable, qulonglong usual) {
        bool isNumber = false;
        const qulonglong number = qEnvironmentVariable(variable).toULongLong(&isNumber);
        return isNumber ? number : usual;
    }

    static qsizetype LastOrders(const RandomSession& session) {
        return std::min<qsizetype>(20, session.Orders().size());
    }
};

QORVIX_WINDOW_TEST(RandomSessionTest)
#include "RandomSessionTest.moc"
