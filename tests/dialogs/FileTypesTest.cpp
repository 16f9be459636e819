// SPDX-License-Identifier: MIT
#include "dialogs/FileTypes.h"

#include "support/WindowTest.h"

#include <QComboBox>
#include <QTest>

class FileTypesTest : public QObject {
    Q_OBJECT

  private slots:
    void DescriptionsStandAsTheyAreGiven() {
        QFileDialog dialog;
        SetFileTypes(dialog, "Logs|*.log;service*.zip|Filter Files (*.fil)|*.fil|All Files (*.*)|*.*");
        QCOMPARE(dialog.nameFilters(), QStringList({"Logs (*.log service*.zip)",
                                                    "Filter Files (*.fil) (*.fil)", "All Files (*.*) (*)"}));
        const auto* const types = dialog.findChild<QComboBox*>("fileTypeCombo");
        QCOMPARE(types->itemText(0).trimmed(), "Logs");
        QCOMPARE(types->itemText(1).trimmed(), "Filter Files (*.fil)");
        QCOMPARE(types->itemText(2).trimmed(), "All Files (*.*)");
    }

    void HalfAPairIsLeftOut() {
        QFileDialog dialog;
        SetFileTypes(dialog, "Logs|*.log|more");
        QCOMPARE(dialog.nameFilters(), QStringList({"Logs (*.log)"}));
    }
};

QORVIX_WINDOW_TEST(FileTypesTest)
#include "FileTypesTest.moc"
