// SPDX-License-Identifier: MIT
#include "list/ToolTip.h"

#include "support/WindowTest.h"

#include <QLabel>
#include <QTest>
#include <QTextDocument>

class ToolTipTest : public QObject {
    Q_OBJECT

  private slots:
    void TextStandsAsItIs_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("word") << "N938";
        QTest::newRow("blanks") << "  two  in front,   three  ";
        QTest::newRow("markup") << "<b>bold</b> &amp; <script>";
        QTest::newRow("long with blanks") << QString("  ab   c ").repeated(50);
        QTest::newRow("numbers") << QString("12345-12399,").repeated(100);
        QTest::newRow("one word") << QString(500, 'x');
        QTest::newRow("beyond the first plane") << QString::fromUcs4(U"\U0001F600").repeated(200);
        QTest::newRow("combined") << QString("e\u0301").repeated(100);
    }

    void TextStandsAsItIs() {
        QFETCH(QString, text);
        QCOMPARE(Shown(ToolTipOf(text)), text);
    }

    void NoTextHasNone() { QCOMPARE(ToolTipOf(""), QString()); }

    void LongTextsWrap() {
        for (const QString& text : {QString("ab cd ").repeated(60), QString("12345-12399,").repeated(60),
                                    QString(700, 'x'), QString("a,b").repeated(200)}) {
            QLabel tip(ToolTipOf(text)); // as the tool tip is one
            tip.setWordWrap(true);
            const int mostWidth = 100 * tip.fontMetrics().horizontalAdvance('x');
            QVERIFY2(tip.sizeHint().width() < mostWidth, qPrintable(text.left(20)));
            QVERIFY(tip.sizeHint().height() > 3 * tip.fontMetrics().height());
        }
    }

    void ShortTextsStandOnOneLine() {
        QLabel tip(ToolTipOf(QString("ab  cd ").repeated(8)));
        tip.setWordWrap(true);
        QVERIFY(tip.sizeHint().height() < 2 * tip.fontMetrics().height());
    }

    void CommasAreWhereNumbersWrap() {
        const QStringList words = ToolTipOf(QString("1000,").repeated(100)).split(QChar(0x200B));
        QVERIFY(words.size() > 5);
        for (const QString& word : words.first(words.size() - 1))
            QVERIFY(word.endsWith(','));
    }

  private:
    static QString Shown(const QString& tip) {
        QTextDocument document;
        document.setHtml(tip);
        return document.toPlainText().remove(QChar(0x200B)).replace(QChar(QChar::Nbsp), ' ');
    }
};

QORVIX_WINDOW_TEST(ToolTipTest)
#include "ToolTipTest.moc"
