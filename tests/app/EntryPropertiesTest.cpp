// SPDX-License-Identifier: MIT
#include "app/MainWindowTest.h"

#include "support/WindowTest.h"
#include "support/ZipWriter.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include <functional>

// The event entry dialog as the main window opens it.
class EntryPropertiesTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void init() { StartAfresh(); }
    void cleanup() { Window.reset(); }

    void EnterWithoutASelectionDoesNothing() {
        Window->OpenLogbook(FileOfErrors(3));
        QTest::keyClick(List(), Qt::Key_Return);
        List()->selectionModel()->setCurrentIndex(List()->model()->index(1, 0),
                                                  QItemSelectionModel::NoUpdate);
        QTest::keyClick(List(), Qt::Key_Return);
        QCOMPARE(Book->Entries.Comment(1), std::string_view());
    }

    void DialogOpensOnceForEachSelectedRow() {
        Window->OpenLogbook(FileOfErrors(5));
        List()->SelectRanges({{0, 1}, {4, 4}}, 4);
        QStringList seen;
        AnswerDialogs({{"first", "cmdOK"}, {"second", "cmdCancel"}, {"third", "cmdOK"}}, &seen);
        QTest::keyClick(List(), Qt::Key_Return);
        QCOMPARE(seen, QStringList({"0", "1", "4"}));
        QCOMPARE(Column(6), QStringList({"first", "", "", "", "third"}));
    }

    void ClosingTheDialogEndsTheRowOfDialogs() {
        Window->OpenLogbook(FileOfErrors(5));
        List()->selectAll();
        QStringList seen;
        AnswerDialogs({{"first", "cmdOK"}, {"second", nullptr}}, &seen);
        Item("mnuPopupProperties")->trigger();
        QCOMPARE(seen, QStringList({"0", "1"}));
        QCOMPARE(Column(6), QStringList({"first", "", "", "", ""}));
    }

    void LinesOfACommentStandOnOneLineInTheList() {
        Window->OpenLogbook(FileOfErrors(2));
        List()->selectRow(1);
        AnswerDialogs({{"a\nb", "cmdOK"}});
        QTest::mouseDClick(List()->viewport(), Qt::LeftButton, {}, RowPoint(1));
        QCOMPARE(Cell(1, 6), QString("a | b"));
        Window->ApplyFilter();
        QCOMPARE(Cell(1, 6), QString("a | b"));
        AnswerDialogs({{"", "cmdOK"}});
        List()->selectRow(1);
        QTest::keyClick(List(), Qt::Key_Enter);
        QCOMPARE(Cell(1, 6), QString());
    }

    void CommentOfSeveralLinesIsShownInLines() {
        WriteZip(Folder / "own.qorvix",
                 {{"x.log", Lines({Header("INFO:    GEO AXIS"), "first", " second", Header("RESET:")})},
                  {"x.cmt", "[Comments]\r\n 0 oil | filter | seen\r\n"}});
        Window->OpenLogbook(Folder / "own.qorvix");
        QCOMPARE(Cell(0, 1), QString("first | second | "));
        QCOMPARE(Cell(0, 6), QString("oil | filter | seen"));
        QStringList shown;
        PressOK(0, [&](QPlainTextEdit& comment) {
            shown << comment.toPlainText()
                  << comment.window()->findChild<QPlainTextEdit*>("tbIdent")->toPlainText();
        });
        QCOMPARE(shown, QStringList({"oil\nfilter\nseen", "first\nsecond\n"}));
        QCOMPARE(Cell(0, 6), QString("oil | filter | seen"));
    }

    void TypedMarkOfAClearedCommentClearsIt() {
        Window->OpenLogbook(FileOfErrors(2));
        EnterComment(1, "seen");
        PressOK(1, [](QPlainTextEdit& comment) {
            comment.selectAll();
            QTest::keyClicks(&comment, "!!Clear!!");
        });
        QCOMPARE(Cell(1, 6), QString());
        QVERIFY(Book->Entries.Comments().empty());
    }

    void ProposedTextThatStaysUntouchedBecomesTheComment_data() {
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("comment");
        QTest::newRow("English")
            << 0
            << "Start is locked: the door is open | Reason: | The protective door is open "
               "or not locked. | Fix: | Close the door. | Reaction: | Ev_class 12 | "
               "Nc-Stop | Anzeige - Logfile-Eintrag - Quittierung";
        QTest::newRow("German")
            << 1
            << "Start gesperrt: Tür offen | Ursache: | Die Schutztür ist offen oder nicht "
               "verriegelt. | Behebung: | Tür schließen. | Reaktion: | Ev_class 12 | "
               "Nc-Stop | Anzeige - Logfile-Eintrag - Quittierung";
    }

    void ProposedTextThatStaysUntouchedBecomesTheComment() {
        QFETCH(int, language);
        QFETCH(QString, comment);
        WriteLanguage(*Settings, {language});
        OpenWindow();
        Window->OpenLogbook(QORVIX_SOURCE_FOLDER "/samples/events.log");
        const int row = static_cast<int>(Column(1).indexOf("Event: 232-0012"));
        QVERIFY(row >= 0);
        QString proposed;
        PressOK(row, [&](QPlainTextEdit& box) { proposed = box.toPlainText(); });
        QCOMPARE(proposed, QString(comment).replace(" | ", "\n"));
        QCOMPARE(Cell(row, 6), comment);
        QCOMPARE(Book->Entries.Comments().size(), 1U);
    }

    void CommentGoesToTheEntryOfItsRow() {
        Window->OpenLogbook(FileOfErrors(3));
        ClickHeader(5);
        ClickHeader(5);
        List()->selectRow(0);
        QCOMPARE(Cell(0, 5), QString("2"));
        AnswerDialogs({{"last", "cmdOK"}});
        QTest::keyClick(List(), Qt::Key_Return);
        QCOMPARE(QString::fromStdString(std::string(Book->Entries.Comment(2))), QString("last"));
        QCOMPARE(Cell(0, 6), QString("last"));
    }

    void EventIDIsTheTagOfTheRow() {
        Window->OpenLogbook(FileOfErrors(2));
        const auto tagOfRow = [this](int row) {
            List()->selectRow(row);
            QString tag;
            QTimer::singleShot(0, this, [&tag] {
                QWidget* const dialog = QApplication::activeModalWidget();
                tag = dialog->findChild<QLineEdit*>("tbEventID")->text();
                QTest::mouseClick(dialog->findChild<QPushButton*>("cmdCancel"), Qt::LeftButton);
            });
            QTest::keyClick(List(), Qt::Key_Return);
            return tag;
        };
        QCOMPARE(tagOfRow(1), QString("4"));
        ClickHeader(1);
        QCOMPARE(tagOfRow(1), QString("4"));
        ClickHeader(4);
        QCOMPARE(tagOfRow(1), QString("04.01.2010 12:34:56.789"));
        ClickHeader(5);
        QCOMPARE(tagOfRow(1), Cell(1, 5));
        Window->ApplyFilter();
        QCOMPARE(tagOfRow(1), QString("4"));
    }

  private:
    struct Reply {
        const char* Comment;
        const char* Button; // nullptr closes the window
    };

    // Opens the dialog of a row, does this with the comment's box and presses OK.
    void PressOK(int row, const std::function<void(QPlainTextEdit&)>& act) {
        List()->selectRow(row);
        bool done = false;
        QTimer::singleShot(0, this, [&] {
            QWidget* const dialog = QApplication::activeModalWidget();
            act(*dialog->findChild<QPlainTextEdit*>("tbComment"));
            QTest::mouseClick(dialog->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
            done = true;
        });
        QTest::keyClick(List(), Qt::Key_Return);
        QVERIFY(done);
    }

    // Types a comment into each of the next dialogs and presses a button; notes the index that was shown.
    void AnswerDialogs(const std::vector<Reply>& replies, QStringList* seen = nullptr) {
        if (replies.empty())
            return;
        QTimer::singleShot(0, this, [this, replies, seen] {
            QWidget* const dialog = QApplication::activeModalWidget();
            if (dialog == nullptr)
                return AnswerDialogs(replies, seen);
            if (seen != nullptr)
                *seen << dialog->findChild<QLineEdit*>("tbIndex")->text();
            dialog->findChild<QPlainTextEdit*>("tbComment")->setPlainText(replies.front().Comment);
            AnswerDialogs({replies.begin() + 1, replies.end()}, seen);
            if (replies.front().Button == nullptr)
                dialog->close();
            else
                QTest::mouseClick(dialog->findChild<QPushButton*>(replies.front().Button), Qt::LeftButton);
        });
    }
};

QORVIX_WINDOW_TEST(EntryPropertiesTest)
#include "EntryPropertiesTest.moc"
