// SPDX-License-Identifier: MIT
#include "app/MainWindowTest.h"

#include "filter/FilterStorage.h"
#include "list/TagViewer.h"
#include "support/WindowTest.h"

#include <QComboBox>
#include <QTreeWidget>

#include <functional>

// Filters as they are edited and made from the main window, and what it shows of them.
class MainWindowFiltersTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void init() { StartAfresh(); }
    void cleanup() { Window.reset(); }

    void RemovingEveryFilterShowsEveryEntry() {
        StoreAndOpen({"I|7||||1", "X|4|b|||1"});
        QCOMPARE(Counts(), QString("1 / 3 Items"));
        InDialog("frmLogbookSettings", [this](QWidget& dialog) {
            auto* const list = dialog.findChild<QTreeWidget*>("lvFilter");
            list->selectAll();
            QTest::keyClick(list, Qt::Key_Delete);
            QCOMPARE(list->topLevelItemCount(), 0);
            AnswerQuestion(QMessageBox::Yes);
            Click(dialog, "cmdOK");
        });
        Item("mnuExtrasFilters")->trigger();
        QCOMPARE(MessageTexts, QStringList({"You have no filter in the list\nShow all items?"}));
        QCOMPARE(Counts(), QString("3 / 3 Items"));
        QCOMPARE(Column(1), QStringList({"a", "b", ""}));
        QCOMPARE(LoadFilters(*Settings, {}).Filters, DefaultFilters());
        OpenWindow();
        Window->OpenLogbook(File());
        QCOMPARE(Counts(), QString("3 / 3 Items"));
    }

    void FiltersRunAgainOnOK() {
        StoreAndOpen({"I|0||||1", "X|7||||1"});
        QCOMPARE(Counts(), QString("2 / 3 Items"));
        InDialog("frmLogbookSettings", [](QWidget& dialog) {
            Untick(dialog, 1);
            Click(dialog, "cmdOK");
        });
        Item("mnuExtrasFilters")->trigger();
        QCOMPARE(Counts(), QString("3 / 3 Items"));
        QCOMPARE(Column(5), QStringList({"0", "1", "2"}));
    }

    void FiltersDoNotRunOnCancel_data() {
        QTest::addColumn<QString>("button");
        QTest::newRow("Cancel") << "cmdCancel";
        QTest::newRow("Escape") << "";
    }

    void FiltersDoNotRunOnCancel() {
        QFETCH(QString, button);
        StoreAndOpen({"I|0||||1"});
        ClickHeader(5);
        ClickHeader(5);
        QCOMPARE(Column(5), QStringList({"2", "1", "0"}));
        InDialog("frmLogbookSettings", [&](QWidget& dialog) {
            Untick(dialog, 0);
            // What another copy of the program stores meanwhile is for the next run, too.
            Store({"I|7||||1"});
            if (button.isEmpty())
                QTest::keyClick(&dialog, Qt::Key_Escape);
            else
                Click(dialog, button.toLatin1());
        });
        Item("mnuExtrasFilters")->trigger();
        // A run would have left one row, or put the rows back into the order of the entries.
        QCOMPARE(Column(5), QStringList({"2", "1", "0"}));
        QCOMPARE(Counts(), QString("3 / 3 Items"));
        QCOMPARE(LoadFilters(*Settings, {}).Filters, std::vector{Filter("I|7||||1")});
        Window->ApplyFilter();
        QCOMPARE(Counts(), QString("1 / 3 Items"));
    }

    void DialogsOpenedAfterAChangeOfLanguageAreInIt() {
        StoreAndOpen({"I|3||||1"});
        QCOMPARE(TextsOfFilterDialogs(), QStringList({"Filters", "&List of filters to apply:", "Error",
                                                      "Filter definition", "Cancel"}));
        InDialog("frmLanguageDialog", [](QWidget& dialog) {
            dialog.findChild<QComboBox*>("cbDialogLanguage")->setCurrentIndex(Language::German);
            Click(dialog, "cmdOK");
        });
        Item("mnuExtrasDialogLanguage")->trigger();
        QCOMPARE(TextsOfFilterDialogs(), QStringList({"Filter", "&Liste der anzuwendenden Filter:", "Fehler",
                                                      "Filterdefinition", "Abbrechen"}));
    }

    void MarksFollowAToggle() {
        StoreAndOpen({"I|0||||1"});
        List()->SelectRanges({{0, 1}}, 0);
        QTRY_VERIFY(MarkedLines(Qt::red) > 0);
        QCOMPARE(MarkedLines(Qt::cyan), 0);
        Item("mnuPopupToggle")->trigger();
        QTRY_VERIFY(MarkedLines(Qt::cyan) > 0);
        QVERIFY(MarkedLines(Qt::red) > 0);

        // The only highlighted row: the mark of the selection remains.
        Item("mnuPopupToggle")->trigger();
        List()->selectRow(2);
        Item("mnuPopupToggle")->trigger();
        List()->SelectRanges({{0, 0}, {2, 2}}, 0);
        QTRY_VERIFY(MarkedLines(Qt::cyan) > 0);
        List()->SelectRanges({{2, 2}}, 2);
        Item("mnuPopupToggle")->trigger();
        QTRY_COMPARE(MarkedLines(Qt::cyan), 0);
        QVERIFY(MarkedLines(Qt::red) > 0);
    }

  private:
    // Two errors and a restart.
    std::string File() const {
        return MainWindowTest::File("a.log", {Header("BERR:    a"), Header("BERR:    b"), Header("RESET:")});
    }

    void Store(const std::vector<const char*>& filters) {
        FilterLists lists;
        for (const char* filter : filters)
            lists.Filters.push_back(Filter(filter));
        SaveFilters(*Settings, lists, "");
    }

    void StoreAndOpen(const std::vector<const char*>& filters) {
        Store(filters);
        Window->OpenLogbook(File());
    }

    // Does this in the next dialog of this name.
    void InDialog(const char* name, const std::function<void(QWidget&)>& act) {
        QTimer::singleShot(0, Person.get(), [=, this] {
            QWidget* const dialog = QApplication::activeModalWidget();
            if (dialog == nullptr || dialog->objectName() != name)
                return InDialog(name, act);
            act(*dialog);
        });
    }

    static void Click(const QWidget& dialog, const char* button) {
        QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
    }

    static void Untick(const QWidget& dialog, int row) {
        dialog.findChild<QTreeWidget*>("lvFilter")->topLevelItem(row)->setCheckState(0, Qt::Unchecked);
    }

    // Of the list of filters, and of the definition that is opened from it.
    QStringList TextsOfFilterDialogs() {
        QStringList texts;
        InDialog("frmLogbookSettings", [&](QWidget& list) {
            texts << list.windowTitle() << list.findChild<QLabel*>("lblFilter")->text()
                  << list.findChild<QTreeWidget*>("lvFilter")->topLevelItem(0)->text(0);
            InDialog("frmFilterSettings", [&](QWidget& definition) {
                texts << definition.windowTitle() << definition.findChild<QPushButton*>("cmdCancel")->text();
                InDialog("frmLogbookSettings", [](QWidget& again) { Click(again, "cmdCancel"); });
                Click(definition, "cmdCancel");
            });
            list.findChild<QAction*>("mnuFilterAdd")->trigger();
        });
        Item("mnuExtrasFilters")->trigger();
        return texts;
    }

    // The lines of the tag viewer's picture in this colour, once it is drawn.
    int MarkedLines(Qt::GlobalColor colour) const {
        auto* const viewer = Find<TagViewer>("pbTagViewer");
        if (viewer->findChild<QTimer*>("tmTagViewer")->isActive())
            return -1;
        const QImage picture = viewer->grab().toImage();
        int lines = 0;
        for (int y = 0; y < picture.height(); ++y)
            lines += picture.pixelColor(picture.width() / 2, y) == QColor(colour) ? 1 : 0;
        return lines;
    }
};

QORVIX_WINDOW_TEST(MainWindowFiltersTest)
#include "MainWindowFiltersTest.moc"
