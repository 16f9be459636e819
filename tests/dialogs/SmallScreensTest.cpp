// SPDX-License-Identifier: MIT
// Every dialog on every screen that people have, also with large letters.
#include "dialogs/FieldNote.h"
#include "dialogs/FilterDialogContext.h"
#include "dialogs/FilterFileDialog.h"
#include "dialogs/frmAbout.h"
#include "dialogs/frmErrorTexts.h"
#include "dialogs/frmFilterSettings.h"
#include "dialogs/frmFilterString.h"
#include "dialogs/frmGoToTime.h"
#include "dialogs/frmLanguageDialog.h"
#include "dialogs/frmLogbookIdent.h"
#include "dialogs/frmLogbookSettings.h"
#include "dialogs/frmProgress.h"
#include "dialogs/frmSearchForString.h"
#include "dialogs/frmStringSettings.h"
#include "filter/FilterStorage.h"
#include "settings/Registry.h"
#include "support/MemorySettings.h"
#include "support/Screens.h"
#include "support/WindowTest.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

namespace {

constexpr const char* FontSizes[] = {"as it is", "18 points"};

} // namespace

class SmallScreensTest : public QObject {
    Q_OBJECT

  private slots:
    void cleanup() { QApplication::setFont(Font); }

    void DialogsStandOnTheirScreen_data() { AddScreens(); }
    void DialogsStandOnTheirScreen() {
        for (const Language language : {Language{Language::English}, Language{Language::German}})
            for (const auto& make : Dialogs(language)) {
                const std::unique_ptr<QWidget> owner = OwnerOnScreen();
                const std::unique_ptr<QDialog> dialog(make(owner.get()));
                dialog->show();
                QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
                CheckOnScreen(*dialog, *owner->screen());
                // Large screens need no scrolling.
                if (owner->font() == Font && owner->screen()->size().height() >= 768)
                    for (const auto* const content : dialog->findChildren<QScrollArea*>())
                        for (const QScrollBar* const bar :
                             {content->horizontalScrollBar(), content->verticalScrollBar()})
                            QVERIFY2(!bar->isVisible(), Tell(*dialog, dialog->geometry()).constData());
                for (const auto* const button : dialog->findChildren<QPushButton*>())
                    if (qobject_cast<QDialogButtonBox*>(button->parentWidget()) != nullptr)
                        CheckWhole(*button, *dialog);
                CheckReachable(*dialog);
            }
    }

    void FileDialogsStandOnTheirScreen_data() { AddScreens(); }
    void FileDialogsStandOnTheirScreen() {
        const std::unique_ptr<QWidget> owner = OwnerOnScreen();
        bool seen = false;
        QTimer::singleShot(0, this, [&] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            CheckOnScreen(*dialog, *owner->screen());
            for (const auto* const button :
                 dialog->findChild<QDialogButtonBox*>()->findChildren<QPushButton*>())
                CheckWhole(*button, *dialog);
            seen = true;
            dialog->reject();
        });
        std::string folder = "/";
        FilterFileToOpen(folder, {Language::German}, owner.get());
        QVERIFY(seen);
    }

    // A note makes the dialog higher; near the lower edge of the screen it then stands higher, too.
    void GrowingDialogStaysOnTheScreen() {
        const QScreen& screen = *QGuiApplication::primaryScreen();
        frmFilterString dialog({}, {}, nullptr);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        dialog.move(100, screen.availableGeometry().bottom() - dialog.frameGeometry().height());
        const int height = dialog.height();
        dialog.findChild<QLineEdit*>("tbString")->setText("a|b");
        QTRY_VERIFY(dialog.height() > height);
        CheckOnScreen(dialog, screen);
    }

  private:
    using MakeDialog = std::function<QDialog*(QWidget*)>;

    static void AddScreens() {
        QTest::addColumn<int>("screen");
        QTest::addColumn<int>("points");
        for (int screen = 0; screen < static_cast<int>(QGuiApplication::screens().size()); ++screen)
            for (int large = 0; large < 2; ++large) {
                const QSize size = QGuiApplication::screens()[screen]->size();
                QTest::addRow("%d x %d, font %s", size.width(), size.height(), FontSizes[large])
                    << screen << (large == 0 ? 0 : 18);
            }
    }

    // Sets the font of the row, too.
    std::unique_ptr<QWidget> OwnerOnScreen() const {
        QFETCH(int, screen);
        QFETCH(int, points);
        QFont font = Font;
        if (points > 0)
            font.setPointSize(points);
        QApplication::setFont(font);
        auto owner = std::make_unique<QWidget>();
        const QRect place = QGuiApplication::screens()[screen]->availableGeometry();
        owner->setGeometry(place.x() + 20, place.y() + 40, 400, 300);
        owner->show();
        return owner;
    }

    std::vector<MakeDialog> Dialogs(Language language) {
        FilterTypeLabels labels;
        labels.SetLanguage(language);
        const FilterDialogContext context{Settings, CodePage(), language, labels, {}};
        FilterDefinition noted;
        noted.FilterType = 1;
        for (std::string* const text : {&noted.StringFilter, &noted.Name, &noted.Emitter})
            *text = "a|b";
        SaveFilters(Settings, {std::vector<FilterDefinition>(40), {}}, "");
        return {
            [=](QWidget* owner) {
                return new frmAbout(language, "1.2.3",
                                    std::vector<LibraryVersion>(6, {"Library", "1.23.456", "LGPL 2.1"}),
                                    owner);
            },
            [=, this](QWidget* owner) {
                auto* const dialog = new frmFilterSettings(context, Strings, owner);
                dialog->Preset(noted);
                return dialog;
            },
            [=](QWidget* owner) {
                ErrorTextPlan plan;
                plan.Kinds.fill({220, 220, 40});
                plan.Replaced.assign(40, "GERMAN/qx_error_help.txt");
                plan.TooLarge = {"NCKERNEL_DE.XMT"};
                auto* const dialog = new frmErrorTexts(
                    language, "/home/" + std::string(200, 'u') + "/language/", "/",
                    [](const std::string&) { return ErrorTextPlan(); }, owner);
                dialog->ShowFound("/media/" + std::string(200, 'm'), plan);
                return dialog;
            },
            [=](QWidget* owner) { return new frmProgress(TextId::TakingOverErrorTexts, language, owner); },
            [=](QWidget* owner) {
                return new frmFilterString(language, {"a|b", "comment"}, owner);
            },
            [=](QWidget* owner) {
                auto* const dialog =
                    new frmGoToTime(language, std::vector<LogbookDay>(300, LogbookDay{}), {}, owner);
                dialog->findChild<QLineEdit*>("tbTime")->setText("yesterday");
                return dialog;
            },
            [=](QWidget* owner) { return new frmLanguageDialog(language, owner); },
            [=](QWidget* owner) {
                return new frmLogbookIdent(
                    language, [](const QString&) { return QString("proposed"); }, owner);
            },
            [=](QWidget* owner) {
                auto* const dialog = new frmLogbookSettings(
                    context, [] {}, owner);
                auto* const note = dialog->findChild<FieldNote*>("lblNote");
                note->Say(QString(250, 'n') + ".fil: ungültiger Filter in Zeile 3");
                return dialog;
            },
            [=](QWidget* owner) { return new frmSearchForString({}, language, owner); },
            [=, this](QWidget* owner) { return new frmStringSettings(Settings, language, Strings, owner); },
        };
    }

    static QByteArray Tell(const QWidget& widget, const QRect& place) {
        QString text;
        QDebug(&text) << &widget << place;
        return text.toUtf8();
    }

    static void CheckOnScreen(const QWidget& window, const QScreen& screen) {
        QVERIFY2(screen.availableGeometry().contains(window.frameGeometry()),
                 Tell(window, window.frameGeometry()).constData());
    }

    // The whole of it can be seen, and it has the room that it needs.
    static void CheckWhole(const QWidget& control, const QWidget& window) {
        if (!control.isVisibleTo(&window))
            return;
        const QRect place(control.mapTo(&window, QPoint()), control.size());
        QVERIFY2(window.rect().contains(place), Tell(control, place).constData());
        QVERIFY2(control.visibleRegion().boundingRect() == control.rect(), Tell(control, place).constData());
        QVERIFY2(control.height() >= control.minimumSizeHint().height(), Tell(control, place).constData());
    }

    // What Tab or an access key gives the focus comes into view.
    static void CheckReachable(QWidget& window) {
        for (QWidget* control = window.nextInFocusChain(); control != &window;
             control = control->nextInFocusChain()) {
            if ((control->focusPolicy() & Qt::TabFocus) == 0 || !control->isVisibleTo(&window) ||
                !control->isEnabled())
                continue;
            control->setFocus(Qt::ShortcutFocusReason);
            QVERIFY2(control->visibleRegion().boundingRect().height() >= control->fontMetrics().height(),
                     Tell(*control, control->geometry()).constData());
        }
    }

    const QFont Font = QApplication::font();
    MemorySettings Store;
    Registry Settings{Store};
    std::vector<StringFilter> Strings;
};

static int RunSmallScreens(int argc, char** argv) {
    // The last is one of 1280 x 900 at a scale of 1.5, the one before it one of 1920 x 1080 at a scale of 2.
    const Screens screens({{1920, 1080}, {1366, 768}, {960, 540}, {853, 600}});
    return RunWindowTest<SmallScreensTest>(argc, argv);
}
QORVIX_WINDOW_TEST_RUN(SmallScreensTest, RunSmallScreens)
#include "SmallScreensTest.moc"
