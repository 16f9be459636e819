// SPDX-License-Identifier: MIT
#include "dialogs/LogbookSettingsTest.h"

#include "support/WindowTest.h"

class frmLogbookSettingsTest : public LogbookSettingsTest {
    Q_OBJECT

  private slots:
    void init() { BeginWithoutSettings(); }

    void TextsFollowTheLanguage() {
        Open({Language::English});
        QCOMPARE(Dialog->windowTitle(), "Filters");
        QCOMPARE(TextOf(*Dialog, "lblFilter"), "&List of filters to apply:");
        QCOMPARE(HeaderTexts(List()), QStringList({"Event", "String/List", "Name", "Sender"}));
        QCOMPARE(PopupTexts(*Dialog), QStringList({"&Add...", "&Remove", "&Edit..."}));
        QCOMPARE(TextOf(*Dialog, "cmdOK"), "OK");
        QCOMPARE(TextOf(*Dialog, "cmdCancel"), "Cancel");
        QCOMPARE(TextOf(*Dialog, "cmdApply"), "&Apply");
        QCOMPARE(TextOf(*Dialog, "cmdExport"), "Sa&ve filter list");
        QCOMPARE(TextOf(*Dialog, "cmdImport"), "&Load filter list");

        Open({Language::German});
        QCOMPARE(Dialog->windowTitle(), "Filter");
        QCOMPARE(TextOf(*Dialog, "lblFilter"), "&Liste der anzuwendenden Filter:");
        QCOMPARE(HeaderTexts(List()), QStringList({"Ereignis", "String", "Name", "Quelle"}));
        QCOMPARE(PopupTexts(*Dialog), QStringList({"&Neu...", "&Löschen", "&Bearbeiten..."}));
        QCOMPARE(TextOf(*Dialog, "cmdOK"), "OK");
        QCOMPARE(TextOf(*Dialog, "cmdCancel"), "Abbrechen");
        QCOMPARE(TextOf(*Dialog, "cmdApply"), "Über&nehmen");
        QCOMPARE(TextOf(*Dialog, "cmdExport"), "Filterliste spei&chern");
        QCOMPARE(TextOf(*Dialog, "cmdImport"), "Filterliste la&den");
    }

    void ShowsTheStoredFilters() {
        StoreFilters({"I|0||||1", "X|3|N938|ABC|PLC|1", "H|8|10-20,35|||0"});
        Open();
        QCOMPARE(Rows(List()),
                 QStringList({"All entries///", "Error/N938/ABC/PLC", "Entry number(s)/10-20,35//"}));
        QCOMPARE(Checks(), QList<bool>({true, true, false}));
    }

    void EmptySettingsShowTheDefaultFilter() {
        Open({Language::German});
        QCOMPARE(Rows(List()), QStringList({"Alle Einträge///"}));
        QCOMPARE(Checks(), QList<bool>({true}));
    }

    void ActionsAreToldByShapeAndInWords() {
        StoreFilters({"I|1||||1", "X|1||||1", "H|1||||1"});
        Open();
        QCOMPARE(ActionTexts(), QStringList({"Info: Added to the list", "Info: Removed from the list",
                                             "Info: Highlighted"}));
        QList<QImage> shapes;
        for (int row = 0; row < 3; ++row)
            shapes << List()
                          .topLevelItem(row)
                          ->icon(0)
                          .pixmap(QSize(16, 16), 1.0)
                          .toImage()
                          .convertToFormat(QImage::Format_Alpha8);
        for (const QImage& shape : shapes)
            QCOMPARE(shape.size(), QSize(16, 16));
        for (int row = 0; row < 3; ++row) {
            const QIcon icon = List().topLevelItem(row)->icon(0);
            QCOMPARE(icon.pixmap(QSize(16, 16), 1.0, QIcon::Selected).toImage(),
                     icon.pixmap(QSize(16, 16), 1.0, QIcon::Normal).toImage());
        }
        QCOMPARE_GT(PixelsThatDiffer(shapes[0], shapes[1]), 40);
        QCOMPARE_GT(PixelsThatDiffer(shapes[0], shapes[2]), 40);
        QCOMPARE_GT(PixelsThatDiffer(shapes[1], shapes[2]), 40);

        Open({Language::German});
        QCOMPARE(ActionTexts(),
                 QStringList({"Information: in die Liste aufgenommen", "Information: aus der Liste entfernt",
                              "Information: markiert"}));
    }

    void OkStoresTheRows() {
        StoreFilters({"I|0||||1", "X|3|N938|ABC|PLC|1"});
        Open();
        List().topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        Click(*Dialog, "cmdOK");
        QVERIFY(!Dialog->isVisible());
        QCOMPARE(Dialog->ResultText(), "OK");
        QCOMPARE(StoredFilters(), QStringList({"I|0||||0", "X|3|N938|ABC|PLC|1"}));
        QCOMPARE(Applied, 0);
    }

    void CancelAndEscapeStoreNothing() {
        for (const bool escape : {false, true}) {
            StoreFilters({"I|0||||1"});
            Open();
            List().topLevelItem(0)->setCheckState(0, Qt::Unchecked);
            if (escape)
                QTest::keyClick(Dialog.get(), Qt::Key_Escape);
            else
                Click(*Dialog, "cmdCancel");
            QVERIFY(!Dialog->isVisible());
            QCOMPARE(Dialog->ResultText(), "CANCEL");
            QCOMPARE(StoredFilters(), QStringList({"I|0||||1"}));
        }
    }

    void ClosingTheWindowIsCancel() {
        Open();
        Dialog->close();
        QCOMPARE(Dialog->ResultText(), "CANCEL");
    }

    void ApplyStoresAndFiltersAnew() {
        StoreFilters({"I|0||||1"});
        Open();
        List().topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        QStringList storedWhenApplied;
        OnApply = [&] { storedWhenApplied = StoredFilters(); };
        Click(*Dialog, "cmdApply");
        QCOMPARE(Applied, 1);
        QCOMPARE(storedWhenApplied, QStringList({"I|0||||0"}));
        QVERIFY(Dialog->isVisible());
        Click(*Dialog, "cmdCancel");
        QCOMPARE(Dialog->ResultText(), "CANCEL");
        QCOMPARE(StoredFilters(), QStringList({"I|0||||0"}));
        OnApply = {};
    }

    void RowsOfOneLanguageAreStoredAsNumbers() {
        StoreFilters({"I|3||||1", "H|8|7|||0"});
        Open({Language::German});
        QCOMPARE(Rows(List()), QStringList({"Fehler///", "Nur bestimmte Nummern/7//"}));
        Click(*Dialog, "cmdOK");
        QCOMPARE(StoredFilters(), QStringList({"I|3||||1", "H|8|7|||0"}));
        Open({Language::English});
        QCOMPARE(Rows(List()), QStringList({"Error///", "Entry number(s)/7//"}));
    }

    void LabelsNeedNotFollowTheLanguage() {
        StoreFilters({"I|3||||1"});
        Open({5});
        QCOMPARE(Rows(List()), QStringList({"Error///"}));
        Open({Language::German});
        Open({5});
        QCOMPARE(Rows(List()), QStringList({"Fehler///"}));
        QCOMPARE(Dialog->windowTitle(), "Filters");
        Click(*Dialog, "cmdOK");
        QCOMPARE(StoredFilters(), QStringList({"I|3||||1"}));
    }

    void WhatADialogDoesNotMakeIsKept() {
        // A name and a sender of type 4, and a type without a label.
        StoreFilters({"I|4||ABC|PLC|1", "X|42|a|b|c|0", "X|-7||||1"});
        Open();
        QCOMPARE(Rows(List()), QStringList({"System error//ABC/PLC", "42/a/b/c", "-7///"}));
        Click(*Dialog, "cmdOK");
        QCOMPARE(StoredFilters(), QStringList({"I|4||ABC|PLC|1", "X|42|a|b|c|0", "X|-7||||1"}));
    }

    void ColumnWidthsAreKept() {
        Open();
        QCOMPARE(Widths(), QList<int>({133, 133, 52, 52}));
        List().setColumnWidth(2, 100);
        Click(*Dialog, "cmdCancel");
        QCOMPARE(StoredNumber("LogbookFilter", "FilterCol(1).Width"), 2000);
        QCOMPARE(StoredNumber("LogbookFilter", "FilterCol(2).Width"), 2000);
        QCOMPARE(StoredNumber("LogbookFilter", "FilterCol(3).Width"), 1500);
        QCOMPARE(StoredNumber("LogbookFilter", "FilterCol(4).Width"), 780);
        Open();
        QCOMPARE(Widths(), QList<int>({133, 133, 100, 52}));
        List().setColumnWidth(3, 60);
        Click(*Dialog, "cmdOK");
        QCOMPARE(StoredNumber("LogbookFilter", "FilterCol(4).Width"), 900);
    }

    void StringFiltersAreStoredWithTheList() {
        Open();
        Click(*Dialog, "cmdOK");
        QCOMPARE(LoadFilters(Settings, {}).StringFilters.front().FilterString, "N938");
        QCOMPARE(StoredNumber("Logbook\\Filters", "SpecialFilterCount"), 2);
    }

    void EmptyListIsAskedAbout_data() {
        QTest::addColumn<bool>("german");
        QTest::addColumn<QString>("button");
        for (const bool german : {false, true})
            for (const char* button : {"cmdOK", "cmdApply"})
                QTest::addRow("%s %s", german ? "German" : "English", button) << german << button;
    }

    void EmptyListIsAskedAbout() {
        QFETCH(bool, german);
        QFETCH(QString, button);
        const QByteArray name = button.toLatin1();
        StoreFilters({"I|3||||1"});
        Open({german ? Language::German : Language::English});
        Select(List(), {0});
        QTest::keyClick(&List(), Qt::Key_Delete);

        AnswerMessage(QMessageBox::No);
        Click(*Dialog, name);
        QCOMPARE(
            MessageTexts.last(),
            german ? "Sie haben keinen Filter in der Liste eingetragen.\nMöchten Sie alle Einträge anzeigen?"
                   : "You have no filter in the list\nShow all items?");
        QVERIFY(Dialog->isVisible());
        QCOMPARE(List().topLevelItemCount(), 0);
        QCOMPARE(StoredFilters(), QStringList({"I|3||||1"}));
        QCOMPARE(Applied, 0);

        AnswerMessage(QMessageBox::Yes);
        Click(*Dialog, name);
        QCOMPARE(Answered, 2);
        QCOMPARE(StoredFilters(), QStringList({"I|0||||1"}));
        QCOMPARE(Dialog->isVisible(), button == "cmdApply");
        QCOMPARE(Applied, button == "cmdApply" ? 1 : 0);
        QCOMPARE(Rows(List()), QStringList({german ? "Alle Einträge///" : "All entries///"}));
    }

    void ListWithRowsIsNotAskedAbout() {
        Open();
        Click(*Dialog, "cmdApply");
        QCOMPARE(Answered, 0);
        QCOMPARE(Applied, 1);
    }

    void EveryControlHasANameAndRoom() {
        for (const std::int32_t language : {Language::English, Language::German}) {
            Open({language});
            QCOMPARE(NamelessControls(*Dialog).join(", "), "");
            QCOMPARE(CutOffTexts(*Dialog).join(", "), "");
        }
    }

    void SameKeyGoesFromTheListToTheButton() {
        Open({Language::English});
        QVERIFY(QTest::qWaitForWindowActive(Dialog.get()));
        Find<QWidget>(*Dialog, "cmdOK")->setFocus();
        QTest::keyClick(Dialog.get(), Qt::Key_L, Qt::AltModifier);
        QVERIFY(List().hasFocus() || Find<QWidget>(*Dialog, "cmdImport")->hasFocus());
        const bool listFirst = List().hasFocus();
        QTest::keyClick(Dialog.get(), Qt::Key_L, Qt::AltModifier);
        QCOMPARE(Find<QWidget>(*Dialog, "cmdImport")->hasFocus(), listFirst);
        QCOMPARE(List().hasFocus(), !listFirst);
    }

  private:
    QList<int> Widths() const {
        QList<int> widths;
        for (int column = 0; column < 4; ++column)
            widths << List().columnWidth(column);
        return widths;
    }

    static int PixelsThatDiffer(const QImage& a, const QImage& b) {
        int count = 0;
        for (int y = 0; y < a.height(); ++y)
            for (int x = 0; x < a.width(); ++x)
                count += std::abs(a.constScanLine(y)[x] - b.constScanLine(y)[x]) > 64 ? 1 : 0;
        return count;
    }
};

QORVIX_WINDOW_TEST(frmLogbookSettingsTest)
#include "frmLogbookSettingsTest.moc"
