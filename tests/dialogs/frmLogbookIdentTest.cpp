// SPDX-License-Identifier: MIT
#include "dialogs/frmLogbookIdent.h"

#include "list/QtText.h"
#include "support/WindowTest.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

class frmLogbookIdentTest : public QObject {
    Q_OBJECT

  private slots:
    void init() { AskedFor.clear(); }

    void TextsFollowTheLanguage() {
        const QStringList english{"Event entry", "Event type:", "Data:",     "Sender:",  "Name:",
                                  "Time:",       "Index:",      "Event ID:", "&Comment:"};
        const QStringList german{
            "Ereignis-Eintrag", "Ereignistyp:", "Inhalt:",    "Quelle:", "Name:", "Zeit:",
            "Index:",           "Ereignis-ID:", "&Kommentar:"};
        for (const auto& [number, texts] :
             {std::pair(0, english), std::pair(1, german), std::pair(7, english)}) {
            frmLogbookIdent dialog({number}, Propose(""), nullptr);
            QStringList shown{dialog.windowTitle()};
            for (const char* label :
                 {"lbEvent", "lbIdent", "lbEmitter", "lbName", "lbTime", "lbIndex", "lbEventID", "lbComment"})
                shown << dialog.findChild<QLabel*>(label)->text();
            QCOMPARE(shown, texts);
            QCOMPARE(dialog.findChild<QPushButton*>("cmdOK")->text(), QString("OK"));
            QCOMPARE(dialog.findChild<QPushButton*>("cmdCancel")->text(),
                     QString(number == 1 ? "Abbrechen" : "Cancel"));
        }
    }

    void FieldsShowTheEntryAndCanOnlyBeRead() {
        frmLogbookIdent dialog({}, Propose(""), nullptr);
        Show(dialog, Entry, [&] {
            const std::pair<const char*, const char*> fields[] = {
                {"tbEvent", "Error"},  {"tbEmitter", "MAIN"},
                {"tbName", "PROBING"}, {"tbTime", "04.01.2010 12:34:56"},
                {"tbIndex", "12"},     {"tbEventID", "3"}};
            for (const auto& [name, text] : fields) {
                QCOMPARE(dialog.findChild<QLineEdit*>(name)->text(), QString(text));
                QVERIFY(dialog.findChild<QLineEdit*>(name)->isReadOnly());
            }
            auto* const data = dialog.findChild<QPlainTextEdit*>("tbIdent");
            QCOMPARE(data->toPlainText(), QString("N215 B\nsecond"));
            QVERIFY(data->isReadOnly());
            QVERIFY(data->textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard));
            QCOMPARE(Box(dialog)->toPlainText(), QString("seen\ntwice"));
            QCOMPARE(QApplication::focusWidget(), Box(dialog));
            Press(dialog, "cmdCancel");
        });
        QVERIFY(AskedFor.isEmpty());
        QCOMPARE(dialog.Comment(), QString());
    }

    void EmptyCommentIsProposedAndSelected() {
        frmLogbookIdent dialog({}, Propose("message\r\nReason:\r\nworn"), nullptr);
        Show(dialog, Uncommented(), [&] {
            QCOMPARE(AskedFor, QStringList({"N215 B\r\nsecond"}));
            QCOMPARE(Box(dialog)->textCursor().selectedText(), QString("message\u2029Reason:\u2029worn"));
            Press(dialog, "cmdOK");
        });
        QCOMPARE(dialog.Comment(), QString("message\r\nReason:\r\nworn"));
        Show(dialog, Uncommented(), [&] {
            QTest::keyClicks(Box(dialog), "my own");
            Press(dialog, "cmdOK");
        });
        QCOMPARE(dialog.Comment(), QString("my own"));
    }

    void ProposalComesOnceAShowing() {
        frmLogbookIdent dialog({}, Propose("text"), nullptr);
        Show(dialog, Uncommented(), [&] {
            Box(dialog)->clear();
            QEvent again(QEvent::WindowActivate);
            QApplication::sendEvent(&dialog, &again);
            QCOMPARE(Box(dialog)->toPlainText(), QString());
            Press(dialog, "cmdCancel");
        });
        QCOMPARE(AskedFor.size(), 1);
    }

    void NoProposalLeavesTheBoxEmptyAndOKClears() {
        frmLogbookIdent dialog({}, Propose(""), nullptr);
        Show(dialog, Uncommented(), [&] {
            QCOMPARE(Box(dialog)->toPlainText(), QString());
            Press(dialog, "cmdOK");
        });
        QCOMPARE(dialog.Comment(), QString("!!Clear!!"));
    }

    void DeletedCommentIsClearedByOKAndKeptByCancel() {
        frmLogbookIdent dialog({}, Propose(""), nullptr);
        Show(dialog, Entry, [&] {
            Box(dialog)->clear();
            Press(dialog, "cmdOK");
        });
        QCOMPARE(dialog.Comment(), QString("!!Clear!!"));
        Show(dialog, Entry, [&] {
            Box(dialog)->clear();
            Press(dialog, "cmdCancel");
        });
        QCOMPARE(dialog.Comment(), QString());
    }

    void EscapeActsLikeCancel() {
        frmLogbookIdent dialog({}, Propose(""), nullptr);
        Show(dialog, Entry, [&] { QTest::keyClick(Box(dialog), Qt::Key_Escape); });
        QCOMPARE(dialog.Comment(), QString());
        QVERIFY(!dialog.WasClosed());
    }

    void ClosingTheWindowIsTold() {
        frmLogbookIdent dialog({}, Propose(""), nullptr);
        Show(dialog, Entry, [&] { dialog.close(); });
        QCOMPARE(dialog.Comment(), QString());
        QVERIFY(dialog.WasClosed());
    }

    void EveryBlankSurvives() {
        frmLogbookIdent dialog({}, Propose(""), nullptr);
        LogbookIdent entry = Entry;
        entry.Comment = QString("a\u00A0b\r\n\r\n c\t");
        Show(dialog, entry, [&] { Press(dialog, "cmdOK"); });
        QCOMPARE(dialog.Comment(), entry.Comment);
    }

    void EnterInTheBoxIsALineBreakAndWithControlOK() {
        frmLogbookIdent dialog({}, Propose(""), nullptr);
        Show(dialog, Uncommented(), [&] {
            QTest::keyClicks(Box(dialog), "a");
            QTest::keyClick(Box(dialog), Qt::Key_Return);
            QTest::keyClicks(Box(dialog), "b");
            QTest::keyClick(Box(dialog), Qt::Key_Return, Qt::ControlModifier);
        });
        QCOMPARE(dialog.Comment(), QString("a\r\nb"));
    }

    void EveryControlOfATabWalkHasAName() {
        frmLogbookIdent dialog({}, Propose(""), nullptr);
        Show(dialog, Entry, [&] {
            QStringList walked;
            for (int step = 0; step < 10; ++step) {
                const QWidget* const control = QApplication::focusWidget();
                QVERIFY2(!control->accessibleName().isEmpty() || qobject_cast<const QPushButton*>(control),
                         qPrintable(control->objectName()));
                walked << control->objectName();
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            }
            QCOMPARE(walked, QStringList({"tbComment", "cmdOK", "cmdCancel", "tbEvent", "tbIdent",
                                          "tbEmitter", "tbName", "tbTime", "tbIndex", "tbEventID"}));
            Press(dialog, "cmdCancel");
        });
    }

  private:
    const LogbookIdent Entry{"Error", "N215 B\r\nsecond", "MAIN", "PROBING", "04.01.2010 12:34:56", "12",
                             "3",     "seen\r\ntwice"};

    LogbookIdent Uncommented() const {
        LogbookIdent entry = Entry;
        entry.Comment.clear();
        return entry;
    }

    frmLogbookIdent::Proposal Propose(const QString& text) {
        return [this, text](const QString& data) {
            AskedFor << data;
            return text;
        };
    }

    static QPlainTextEdit* Box(const frmLogbookIdent& dialog) {
        return dialog.findChild<QPlainTextEdit*>("tbComment");
    }

    static void Press(const frmLogbookIdent& dialog, const char* button) {
        QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
    }

    // Shows the dialog and does this as soon as it is there.
    template <typename Action>
    void Show(frmLogbookIdent& dialog, const LogbookIdent& entry, Action action) {
        bool done = false;
        QTimer::singleShot(0, &dialog, [&] {
            QApplication::setActiveWindow(&dialog);
            action();
            done = true;
        });
        dialog.ShowEntry(entry);
        QVERIFY(done);
    }

    QStringList AskedFor;
};

QORVIX_WINDOW_TEST(frmLogbookIdentTest)
#include "frmLogbookIdentTest.moc"
