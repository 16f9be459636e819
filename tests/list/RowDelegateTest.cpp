// SPDX-License-Identifier: MIT
#include "list/RowDelegate.h"

#include "list/LogbookModel.h"
#include "list/LogbookView.h"
#include "list/SetRows.h"
#include "support/ReadText.h"
#include "support/WindowTest.h"

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QStyleOptionViewItem>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>

#include <memory>

class RowDelegateTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        ReadText(Lines({Header("BERR:    <b>two  blanks</b> & more")}), Result);
        Model = std::make_unique<LogbookModel>(Result.Book.Entries, Rows);
        SetRows(*Model, Rows, {{0, 0}});
        List = std::make_unique<LogbookView>();
        List->SetLogbook(Model.get());
        List->resize(900, 200);
        List->show();
        QVERIFY(QTest::qWaitForWindowExposed(List.get()));
    }
    void cleanup() { List.reset(); }

    void StampThatDoesNotFitLosesItsBeginning() {
        struct OpenDelegate : RowDelegate {
            using RowDelegate::initStyleOption;
        } delegate;
        for (int column = 0; column < Model->columnCount(); ++column) {
            QStyleOptionViewItem option;
            option.textElideMode = Qt::ElideRight;
            delegate.initStyleOption(&option, Model->index(0, column));
            QCOMPARE(option.textElideMode, column == 4 ? Qt::ElideLeft : Qt::ElideRight);
        }
    }

    // The end of the stamp is drawn at the right edge, and the dots at the left one.
    void ClockIsSeen() {
        List->setColumnWidth(4, 150);
        const auto picture = [this] {
            const QRect cell = List->visualRect(Model->index(0, 4));
            return List->viewport()->grab(cell).toImage();
        };
        const QImage stamp = picture();
        Result.Book.Entries.Clear();
        ReadText(Lines({Header("BERR:    x", "03.02.2009 12:34:56.789")}), Result);
        QCOMPARE(Model->index(0, 4).data().toString(), QString("03.02.2009 12:34:56.789"));
        List->setColumnWidth(4, List->fontMetrics().horizontalAdvance(QString(" 12:34:56.789")) + 20);
        const QImage otherDate = picture();
        Result.Book.Entries.Clear();
        ReadText(Lines({Header("BERR:    x", "03.02.2009 12:34:56.111")}), Result);
        const QImage otherClock = picture();
        QVERIFY(otherDate != otherClock);
        QVERIFY(stamp != otherDate);
    }

    void ToolTipShowsTheTextAsItIs() {
        List->setColumnWidth(1, 30);
        const QPoint place = List->visualRect(Model->index(0, 1)).center();
        QHelpEvent help(QEvent::ToolTip, place, List->viewport()->mapToGlobal(place));
        QApplication::sendEvent(List->viewport(), &help);
        QTRY_VERIFY(QToolTip::isVisible());
        QTextDocument shown;
        shown.setHtml(QToolTip::text());
        QCOMPARE(shown.toPlainText(), QString("<b>two  blanks</b> & more"));
        QToolTip::hideText();
    }

  private:
    ReadResult Result;
    LogbookRows Rows;
    std::unique_ptr<LogbookModel> Model;
    std::unique_ptr<LogbookView> List;
};

QORVIX_WINDOW_TEST(RowDelegateTest)
#include "RowDelegateTest.moc"
