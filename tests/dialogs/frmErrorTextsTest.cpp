// SPDX-License-Identifier: MIT
#include "dialogs/frmErrorTexts.h"

#include "dialogs/DialogList.h"
#include "dialogs/DialogTest.h"
#include "support/TemporaryFolder.h"
#include "support/WindowTest.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>

class frmErrorTextsTest : public DialogTest {
    Q_OBJECT

  private slots:
    void init() {
        StartAfresh();
        Searched.clear();
        Plan = {};
    }

    void TextsAreThoseOfTheLanguage() {
        for (const bool german : {false, true}) {
            frmErrorTexts dialog = MakeDialog(german);
            dialog.show();
            QCOMPARE(dialog.windowTitle(),
                     QString(german ? "Fehlertexte übernehmen" : "Take over error texts"));
            QCOMPARE(TextOf(dialog, "cmdFolder"), QString(german ? "&Ordner..." : "&Folder..."));
            QCOMPARE(TextOf(dialog, "cmdArchive"),
                     QString(german ? "Service-&Archiv..." : "Service &archive..."));
            QCOMPARE(TextOf(dialog, "lblOwnFolder"),
                     QString(german ? "Ihr Ordner für Fehlertexte: " : "Your folder for error texts: ") +
                         "/own/");
            QCOMPARE(HeaderTexts(*Found(dialog)),
                     german ? QStringList({"Dateien", "Englisch", "Deutsch", "Ersetzt"})
                            : QStringList({"Files", "English", "German", "Replaced"}));
            QCOMPARE(NamelessControls(dialog), QStringList());
            QCOMPARE(CutOffTexts(dialog), QStringList());
        }
    }

    void NothingIsTakenBeforeAnythingIsFound() {
        frmErrorTexts dialog = MakeDialog(false);
        dialog.show();
        QVERIFY(!Find<QPushButton>(dialog, "cmdOK")->isEnabled());
        QCOMPARE(Found(dialog)->topLevelItemCount(), 0);
        ChooseFolder(dialog, Folder.Path().string());
        QCOMPARE(Searched, QStringList({QString::fromStdString(Folder.Path().string())}));
        QVERIFY(!Find<QPushButton>(dialog, "cmdOK")->isEnabled());
        QCOMPARE(TextOf(dialog, "lblNote"), QString("No error texts of a control were found there."));
        Plan.Problem = "Permission denied";
        ChooseFolder(dialog, Folder.Path().string());
        QCOMPARE(TextOf(dialog, "lblNote"), QString("Permission denied"));
    }

    void WhatIsFoundIsShownByKindAndLanguage() {
        Plan.Kinds[0] = {12, 11, 1};
        Plan.Kinds[4] = {1, 1, 1};
        Plan.Replaced = {"A_EN.XMT", "facilities.csv"};
        Plan.TooLarge = {"B_EN.XMT"};
        for (const bool german : {false, true}) {
            frmErrorTexts dialog = MakeDialog(german);
            dialog.show();
            const std::string file = Folder.Write("service1.zip", "");
            ChooseArchive(dialog, file);
            QCOMPARE(TextOf(dialog, "lblPlace"), QString::fromStdString(file));
            QCOMPARE(Rows(*Found(dialog)).size(), 5);
            QCOMPARE(Rows(*Found(dialog))[0], QString(german ? "Codierte Ereignisse (*.XMT)/12/11/1"
                                                             : "Coded events (*.XMT)/12/11/1"));
            QCOMPARE(Rows(*Found(dialog))[1].right(6), QString("/0/0/0"));
            QCOMPARE(TextOf(dialog, "lblNote"),
                     german
                         ? QString("Diese Dateien darin werden ersetzt und als .bak aufgehoben: A_EN.XMT, "
                                   "facilities.csv\nNicht übernommen, weil größer als 64 MiB: B_EN.XMT")
                         : QString("These files in it are replaced, and kept as .bak: A_EN.XMT, "
                                   "facilities.csv\nNot taken over, because larger than 64 MiB: B_EN.XMT"));
            QCOMPARE(Found(dialog)->accessibleDescription(), TextOf(dialog, "lblNote"));
            QVERIFY(Find<QPushButton>(dialog, "cmdOK")->isEnabled());
            QCOMPARE(dialog.Folder(), Folder / "");
            Click(dialog, "cmdOK");
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
        }
    }

    void KeyboardDoesItAll() {
        Plan.Kinds[1] = {1, 0, 0};
        frmErrorTexts dialog = MakeDialog(false);
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QVERIFY(Find<QPushButton>(dialog, "cmdFolder")->hasFocus());
        AnswerFile(Folder.Path().string(), QFileDialog::Directory);
        QTest::keyClick(&dialog, Qt::Key_F, Qt::AltModifier);
        QTRY_COMPARE(Searched.size(), 1);
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void CancelledChoiceChangesNothing() {
        Plan.Kinds[0] = {1, 1, 0};
        frmErrorTexts dialog = MakeDialog(false);
        dialog.show();
        ChooseFolder(dialog, Folder.Path().string());
        Plan = {};
        AnswerFile("", QFileDialog::Directory);
        Click(dialog, "cmdFolder");
        QVERIFY(Find<QPushButton>(dialog, "cmdOK")->isEnabled());
        QCOMPARE(Searched.size(), 1);
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
    }

  private:
    frmErrorTexts MakeDialog(bool german) {
        return {{german ? 1 : 0}, "/own/", Folder / "", [this](const std::string& place) {
                    Searched << QString::fromStdString(place);
                    return Plan;
                }};
    }
    static DialogList* Found(const QWidget& dialog) { return Find<DialogList>(dialog, "lvFound"); }

    // Chooses a path in the next file dialog, or cancels it.
    void AnswerFile(const std::string& path, QFileDialog::FileMode mode) {
        Answer<QFileDialog>([path, mode](QFileDialog& dialog) {
            QCOMPARE(dialog.objectName(), QString("dlgCommonDialog"));
            QCOMPARE(dialog.fileMode(), mode);
            if (path.empty())
                return dialog.reject();
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(path));
            QMetaObject::invokeMethod(&dialog, "accept");
        });
    }
    void ChooseFolder(const QWidget& dialog, const std::string& path) {
        AnswerFile(path, QFileDialog::Directory);
        Click(dialog, "cmdFolder");
    }
    void ChooseArchive(const QWidget& dialog, const std::string& path) {
        AnswerFile(path, QFileDialog::ExistingFile);
        Click(dialog, "cmdArchive");
    }

    TemporaryFolder Folder;
    ErrorTextPlan Plan;
    QStringList Searched;
};

QORVIX_WINDOW_TEST(frmErrorTextsTest)
#include "frmErrorTextsTest.moc"
