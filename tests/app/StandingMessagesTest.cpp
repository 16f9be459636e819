// SPDX-License-Identifier: MIT
#include "app/MainWindowTest.h"

#include "dialogs/ElidedLabel.h"
#include "eventinfo/iZEKEventInfo.h"
#include "support/WindowTest.h"

#include <QAccessible>
#include <QComboBox>

#include <filesystem>
#include <fstream>

// What stands in the status bar, and what a screen reader speaks, through a change of language.
class StandingMessagesTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void init() {
        std::filesystem::remove_all(GetErrorInfoPath());
        StartAfresh();
    }
    void cleanup() { Window.reset(); }
    void cleanupTestCase() { std::filesystem::remove_all(GetErrorInfoPath()); }

    void UnsecuredCommentsAreToldInTheNewLanguage() {
        Folder.Write("state", "a file");
        Window->OpenLogbook(FileOfErrors(2));
        EnterComment(0, "a");
        const QString english = "Comments are not secured against a crash: ";
        const QString german = "Kommentare sind nicht gegen einen Absturz gesichert: ";
        QVERIFY(Status().startsWith(english));
        ChooseLanguage(1);
        QVERIFY2(Status().startsWith(german), qPrintable(Status()));
        QVERIFY(Status().size() > german.size());
        ChooseLanguage(0);
        QVERIFY(Status().startsWith(english));
    }

    void MistakeInTheLanguageFilesIsToldInTheNewLanguage() {
        MakeFacilities("0x999;OWN;OWN\nwrong\n");
        LookUp();
        const QString file = QString::fromStdString(GetErrorInfoPath()) + "facilities.csv: ";
        QCOMPARE(Status(), file + "invalid facility in line 2");
        ChooseLanguage(1);
        QCOMPARE(Status(), file + "ungültiges Modul in Zeile 2");
        MakeFacilities("0x999;OWN;OWN\n");
        LookUp();
        QCOMPARE(Status(), QString("Bereit"));
        ChooseLanguage(0);
        QCOMPARE(Status(), QString("Ready"));
    }

    // However long a message is, the window stays as wide as the person made it.
    void LongMessagesAreCutToTheirRoom() {
        Window->resize(600, 400);
        const int least = Window->minimumSizeHint().width();
        auto* const status = Find<ElidedLabel>("statusText");
        status->setText(QString(500, 'x') + " end");
        Find<ElidedLabel>("statusCounts")->setText(QString(500, 'y'));
        QTest::qWait(0);
        QCOMPARE(Window->minimumSizeHint().width(), least);
        QCOMPARE(Window->width(), 600);
        QVERIFY(status->ShownLines(status->width())[0].endsWith("end"));
        QCOMPARE(Status(), QString(500, 'x') + " end");
    }

    void LabelsOfTheStatusBarTakeNoMarkup() {
        for (const auto* const label : Find<QWidget>("sbStatusBar")->findChildren<QLabel*>())
            if (label->objectName() != "statusProgress")
                QCOMPARE(label->textFormat(), Qt::PlainText);
    }

    void EveryNameFollowsTheLanguage() {
        Window->OpenLogbook(FileOfErrors(2));
        const QStringList english = AccessibleTexts(); // a screen reader has asked for them all
        ChooseLanguage(1);
        const QStringList switched = AccessibleTexts();
        OpenWindow();
        Window->OpenLogbook(FileOfErrors(2));
        const QStringList german = AccessibleTexts();
        QCOMPARE(switched, german);
        QVERIFY(german != english);
        QVERIFY(german.contains("tbToolBar: Symbolleiste"));
    }

  private:
    QString Status() const { return Find<QLabel>("statusText")->text(); }

    static void MakeFacilities(std::string_view content) {
        std::filesystem::create_directories(GetErrorInfoPath());
        std::ofstream(GetErrorInfoPath() + "facilities.csv", std::ios::binary) << content;
    }

    // Opens and leaves the dialog of an event that has a code.
    void LookUp() {
        Window->OpenLogbook(File("codes.log", {Header("BERR:    Event: 999-5"), Header("RESET:")}));
        List()->selectRow(0);
        QTimer::singleShot(0, Person.get(), [] {
            QTest::mouseClick(QApplication::activeModalWidget()->findChild<QPushButton*>("cmdCancel"),
                              Qt::LeftButton);
        });
        QTest::keyClick(List(), Qt::Key_Return);
    }

    void ChooseLanguage(int row) {
        QTimer::singleShot(0, Person.get(), [row] {
            QWidget* const dialog = QApplication::activeModalWidget();
            dialog->findChild<QComboBox*>("cbDialogLanguage")->setCurrentIndex(row);
            QTest::mouseClick(dialog->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
        });
        Item("mnuExtrasDialogLanguage")->trigger();
    }

    // Object name and name or description of everything in the window that has one, and of what lies in it.
    QStringList AccessibleTexts() const {
        QStringList texts;
        QWidgetList widgets = Window->findChildren<QWidget*>();
        widgets.prepend(Window.get());
        for (QWidget* const widget : widgets) {
            QAccessibleInterface* const item = QAccessible::queryAccessibleInterface(widget);
            const bool isOverflow = qobject_cast<QMenu*>(widget) != nullptr && widget->objectName().isEmpty();
            if (item == nullptr || isOverflow) // of the menu bar, which changes with its width
                continue;
            for (const QAccessible::Text kind : {QAccessible::Name, QAccessible::Description})
                texts << widget->objectName() + ": " + item->text(kind);
            for (int child = 0; child < item->childCount(); ++child)
                if (const QAccessibleInterface* const part = item->child(child); part != nullptr)
                    texts << widget->objectName() + " / " + part->text(QAccessible::Name);
        }
        return texts;
    }
};

QORVIX_WINDOW_TEST(StandingMessagesTest)
#include "StandingMessagesTest.moc"
