// SPDX-License-Identifier: MIT
#include "app/session/Session.h"

// A long session of random orders, each followed by a look at all that the window shows and stores.
//
// QORVIX_SESSION_SEED and QORVIX_SESSION_STEPS choose another session than the usual one; with
// QORVIX_SESSION_LOG every order is told before the next.
class RandomSessionTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void WindowAndModelAgreeAfterEveryOrder() {
        const qulonglong seed = Number("QORVIX_SESSION_SEED", 1);
        const qulonglong steps = Number("QORVIX_SESSION_STEPS", 2000);
        const bool tells = qEnvironmentVariableIsSet("QORVIX_SESSION_LOG");
        qInfo("session of seed %llu, %llu steps", seed, steps);
        Session session(seed);
        for (qulonglong step = 1; step <= steps; ++step) {
            const QString difference = session.Step();
            if (tells)
                qInfo("%llu: %s", step, qPrintable(session.Orders().last()));
            if (!difference.isEmpty())
                QFAIL(qPrintable(
                    QString("Seed %1, step %2: %3.\nThe last orders:\n  %4")
                        .arg(seed)
                        .arg(step)
                        .arg(difference, session.Orders().last(LastOrders(session)).join("\n  "))));
        }
    }

  private:
    static qulonglong Number(const char* variable, qulonglong usual) {
        bool isNumber = false;
        const qulonglong number = qEnvironmentVariable(variable).toULongLong(&isNumber);
        return isNumber ? number : usual;
    }

    static qsizetype LastOrders(const Session& session) {
        return std::min<qsizetype>(20, session.Orders().size());
    }
};

QTEST_MAIN(RandomSessionTest)
#include "RandomSessionTest.moc"
