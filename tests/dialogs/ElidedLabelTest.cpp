// SPDX-License-Identifier: MIT
#include "dialogs/ElidedLabel.h"

#include "support/WindowTest.h"

#include <QApplication>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

class ElidedLabelTest : public QObject {
    Q_OBJECT

  private slots:
    void OneLineLosesItsMiddle() {
        ElidedLabel label(1, nullptr);
        label.setText("/home/person/" + QString(300, 'x') + ": a mistake in line 2");
        const QStringList shown = label.ShownLines(300);
        QCOMPARE(shown.size(), 1);
        QVERIFY(shown[0].startsWith("/home"));
        QVERIFY(shown[0].contains(QChar(0x2026)));
        QVERIFY(shown[0].endsWith("line 2"));
        QVERIFY(label.fontMetrics().horizontalAdvance(shown[0]) <= 300);
        QVERIFY(label.minimumSizeHint().width() < 100);
    }

    void WhatFitsIsShownAsItIs() {
        ElidedLabel label(1, nullptr);
        label.setText("Ready");
        QCOMPARE(label.ShownLines(300), QStringList({"Ready"}));
        label.setText("a\r\nb\nc");
        QCOMPARE(label.ShownLines(300), QStringList({"a b c"}));
        label.setText("");
        QVERIFY(label.ShownLines(300).isEmpty());
        ElidedLabel lines(3, nullptr);
        lines.setText("a\nb");
        QCOMPARE(lines.ShownLines(300), QStringList({"a", "b"}));
    }

    void LongWordsBreakAndLinesAreBounded() {
        ElidedLabel label(3, nullptr);
        label.setText(QString(60, 'x') + " last");
        const int width = label.fontMetrics().averageCharWidth() * 30;
        QVERIFY(label.ShownLines(width).size() > 1);
        label.setText(QString(4000, 'x') + " last");
        const QStringList shown = label.ShownLines(width);
        QVERIFY(shown.size() > 1 && shown.size() <= 3);
        for (const QString& line : shown)
            QVERIFY(label.fontMetrics().horizontalAdvance(line.trimmed()) <= width);
        QVERIFY(shown.join("").endsWith("last"));
        QVERIFY(label.heightForWidth(width) <= 3 * label.fontMetrics().lineSpacing());
        QVERIFY(label.minimumSizeHint().width() < width);
    }

    void WholeTextIsThePlainToolTipOfWhatIsCut() {
        ElidedLabel label(1, nullptr);
        label.resize(100, 20);
        label.show();
        ToolTipOf(label, "short");
        QVERIFY(!QToolTip::isVisible());
        const QString markup = "<b>" + QString(300, 'x') + "</b>";
        const QString tip = ToolTipOf(label, markup).remove(QChar(0x200B)); // where lines may end
        QVERIFY(tip.contains("pre-wrap"));
        QVERIFY(tip.contains(markup.toHtmlEscaped()));
        label.resize(10000, 20);
        ToolTipOf(label, markup);
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void TextIsNeverMarkup() {
        ElidedLabel label(1, nullptr);
        label.setText("<b>x</b>");
        QCOMPARE(label.textFormat(), Qt::PlainText);
        QCOMPARE(label.ShownLines(300), QStringList({"<b>x</b>"}));
    }

  private:
    static QString ToolTipOf(ElidedLabel& label, const QString& text) {
        label.setText(text);
        QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), label.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&label, &help);
        return QToolTip::text();
    }
};

QORVIX_WINDOW_TEST(ElidedLabelTest)
#include "ElidedLabelTest.moc"
