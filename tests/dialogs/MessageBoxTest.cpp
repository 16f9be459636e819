// SPDX-License-Identifier: MIT
#include "dialogs/MessageBox.h"

#include "support/WindowTest.h"

#include <QLabel>
#include <QTest>

class MessageBoxTest : public QObject {
    Q_OBJECT

  private slots:
    void ShortTextLeavesRoomForTheTitle() {
        const QString title = "A title that is far longer than the text";
        MessageBox box(QMessageBox::NoIcon, title, "No", QMessageBox::Ok, nullptr);
        box.show();
        QFont bold = box.font();
        bold.setBold(true);
        QVERIFY(box.width() >= QFontMetrics(bold).horizontalAdvance(title) + 8 * box.fontMetrics().height());
        MessageBox untitled(QMessageBox::NoIcon, "", "No", QMessageBox::Ok, nullptr);
        untitled.show();
        QVERIFY(untitled.width() < box.width() / 2);
        QCOMPARE(untitled.height(), box.height());
        // Shown again it is as large as before.
        const QSize size = box.size();
        box.hide();
        box.show();
        QCOMPARE(box.size(), size);
    }

    void TextIsShownAsItStands() {
        MessageBox box(QMessageBox::Warning, "a", "<b>no markup</b> &amp;", QMessageBox::Ok, nullptr);
        box.show();
        const auto* const label = box.findChild<QLabel*>("qt_msgbox_label");
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QCOMPARE(label->text(), "<b>no markup</b> &amp;");
    }

    void EnterPressesTheDefaultButton() {
        MessageBox box(QMessageBox::Question, "a", "b?", QMessageBox::Yes | QMessageBox::No, nullptr,
                       QMessageBox::No);
        box.show();
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.result(), QMessageBox::No);
    }
};

QORVIX_WINDOW_TEST(MessageBoxTest)
#include "MessageBoxTest.moc"
