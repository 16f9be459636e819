// SPDX-License-Identifier: MIT
#include "app/CommonDialog.h"

#include "app/WindowUser.h"
#include "support/TemporaryFolder.h"
#include "support/WindowTest.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

class CommonDialogTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        User.SetLanguage({Language::English});
        Titles.clear();
        Questions.clear();
    }

    void FiltersAreThoseOfTheText() {
        QCOMPARE(NameFilters("All|*.log;*.a;service*.zip|Archives (*.qorvix)|*.qorvix"),
                 QStringList({"All (*.log *.a service*.zip)", "Archives (*.qorvix) (*.qorvix)"}));
        QCOMPARE(NameFilters(""), QStringList());
        QCOMPARE(NameFilters("label without patterns"), QStringList());
    }

    void OpenDialogShowsTheTextsOfBothLanguages() {
        for (const bool german : {false, true}) {
            User.SetLanguage({german ? Language::German : Language::English});
            QStringList filters;
            QString folder;
            WhenOpen([&](QFileDialog& dialog) {
                Titles << dialog.windowTitle();
                filters = dialog.nameFilters();
                folder = dialog.directory().path();
                QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFile);
                QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
                dialog.reject();
            });
            QVERIFY(!User.AskFileToOpen(ToOpen()));
            QCOMPARE(filters.size(), 5);
            QVERIFY(filters[0].endsWith(" (*.log *.qorvix *.a service*.zip)"));
            QCOMPARE(filters[4], QString(german ? "Service-Dateien" : "Service files") +
                                     " (service*.zip) (service*.zip)");
            QCOMPARE(folder, QString::fromStdString(Folder.Path().string()));
        }
        QCOMPARE(Titles, QStringList({"Open", "Öffnen"}));
    }

    void ChosenFileIsGiven() {
        const std::string file = Folder.Write("Kühlung 1.log", "x");
        Type("Kühlung 1.log");
        QCOMPARE(User.AskFileToOpen(ToOpen()), std::optional(file));
    }

    void FilesOfTheOtherCaseAreShown() {
        Folder.Write("SERVICE1.ZIP", "x");
        Folder.Write("other.txt", "x");
        bool upper = false;
        bool other = true;
        WhenOpen([&](QFileDialog& dialog) {
            const auto* list = dialog.findChild<QAbstractItemView*>("listView");
            const auto shows = [&](const QString& name) {
                return !list->model()
                            ->match(list->model()->index(0, 0, list->rootIndex()), Qt::DisplayRole, name, 1,
                                    Qt::MatchExactly)
                            .isEmpty();
            };
            upper = QTest::qWaitFor([&] { return shows("SERVICE1.ZIP"); });
            other = shows("other.txt");
            dialog.reject();
        });
        User.AskFileToOpen(ToOpen());
        QVERIFY(upper);
        QVERIFY(!other);
    }

    void SaveDialogProposesANameAndAppendsTheExtension() {
        QString proposed;
        WhenOpen([&](QFileDialog& dialog) {
            Titles << dialog.windowTitle();
            proposed = NameBox(dialog)->text();
            Accept(dialog, "case 7");
        });
        QCOMPARE(User.AskFileToSave(ToSave()), std::optional(Folder / "case 7.qorvix"));
        QCOMPARE(proposed, QString("lb_act.qorvix"));
        Type("case.v2");
        QCOMPARE(User.AskFileToSave(ToSave()), std::optional(Folder / "case.v2"));
        User.SetLanguage({Language::German});
        WhenOpen([&](QFileDialog& dialog) {
            Titles << dialog.windowTitle();
            QCOMPARE(dialog.nameFilters(), QStringList({"Logbuch-Archiv (*.qorvix) (*.qorvix)"}));
            dialog.reject();
        });
        QVERIFY(!User.AskFileToSave(ToSave()));
        QCOMPARE(Titles, QStringList({"Save Archive", "Archiv speichern"}));
    }

    void ExistingFileIsReplacedOnlyWhenWanted() {
        Folder.Write("old.qorvix", "old");
        AnswerQuestion(QMessageBox::No, [this] { DialogOf()->reject(); });
        Type("old");
        QVERIFY(!User.AskFileToSave(ToSave()));
        AnswerQuestion(QMessageBox::Yes, [] {});
        Type("old");
        QCOMPARE(User.AskFileToSave(ToSave()), std::optional(Folder / "old.qorvix"));
        QCOMPARE(Questions.size(), 2);
        QVERIFY(Questions[0].contains("old.qorvix"));
    }

    void ConfirmAsksForYes() {
        for (const bool yes : {true, false}) {
            AnswerQuestion(yes ? QMessageBox::Yes : QMessageBox::No, [] {});
            QCOMPARE(User.Confirm("<b>7</b>, 12: all the same?"), yes);
        }
        QCOMPARE(Questions, QStringList(2, "<b>7</b>, 12: all the same?"));
    }

    void EscapeIsNoConsent() {
        QTimer::singleShot(0, this, [] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QCOMPARE(box->textFormat(), Qt::PlainText);
            QCOMPARE(box->defaultButton(), box->button(QMessageBox::No));
            QTest::keyClick(box, Qt::Key_Escape);
        });
        QVERIFY(!User.Confirm("all the same?"));
    }

  private:
    FileQuestion ToOpen() const {
        return {TextId::OpenTitle, TextId::OpenFilter, "", Folder.Path().string() + "/", ""};
    }
    FileQuestion ToSave() const {
        return {TextId::SaveArchiveTitle, TextId::SaveArchiveFilter, "qorvix", Folder.Path().string() + "/",
                "lb_act.qorvix"};
    }

    QFileDialog* DialogOf() const { return Window.findChild<QFileDialog*>("dlgCommonDialog"); }
    static QLineEdit* NameBox(const QFileDialog& dialog) {
        return dialog.findChild<QLineEdit*>("fileNameEdit");
    }

    void WhenOpen(const std::function<void(QFileDialog&)>& action) {
        QTimer::singleShot(0, this, [this, action] { action(*DialogOf()); });
    }

    static void Accept(const QFileDialog& dialog, const QString& name) {
        NameBox(dialog)->setText(name);
        const auto* buttons = dialog.findChild<QDialogButtonBox*>("buttonBox");
        for (const auto which : {QDialogButtonBox::Open, QDialogButtonBox::Save})
            if (buttons->button(which) != nullptr)
                buttons->button(which)->click();
    }

    void Type(const QString& name) {
        WhenOpen([name](QFileDialog& dialog) { Accept(dialog, name); });
    }

    // Presses a button of the next message box, and goes on with what comes after it.
    void AnswerQuestion(QMessageBox::StandardButton button, const std::function<void()>& afterwards) {
        QTimer::singleShot(0, this, [this, button, afterwards] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr)
                return AnswerQuestion(button, afterwards);
            Questions << box->text();
            QTimer::singleShot(0, this, afterwards);
            box->button(button)->click();
        });
    }

    TemporaryFolder Folder;
    QWidget Window;
    QLabel Status;
    WindowUser User{&Window, &Status, "Qorvix"};
    QStringList Titles;
    QStringList Questions;
};

QORVIX_WINDOW_TEST(CommonDialogTest)
#include "CommonDialogTest.moc"
