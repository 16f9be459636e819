// SPDX-License-Identifier: MIT
#include "dialogs/frmFilterSettings.h"

#include "dialogs/DialogTest.h"
#include "dialogs/frmStringSettings.h"
#include "filter/FilterText.h"
#include "support/WindowTest.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

class frmFilterSettingsTest : public DialogTest {
    Q_OBJECT

  private slots:
    void init() {
        StartAfresh();
        Strings = DefaultStringFilters({});
        Context.Names = {};
        UseLanguage(Language::English);
    }

    void TextsFollowTheLanguage() {
        const frmFilterSettings english(Context, Strings);
        QCOMPARE(english.windowTitle(), "Filter definition");
        QCOMPARE(TextOf(english, "lblFilterType"), "&Event:");
        QCOMPARE(TextOf(english, "lblEmitter"), "Se&nder:");
        QCOMPARE(TextOf(english, "lblName"), "Na&me:");
        QCOMPARE(TextOf(english, "lblStringFilter"), "Contained &string:");
        QCOMPARE(Find<QGroupBox>(english, "frFilterAction")->title(),
                 "If above filter conditions meet, the log entries are");
        QCOMPARE(TextOf(english, "obExcludeFilter"), "&Removed from the list");
        QCOMPARE(TextOf(english, "obIncludeFilter"), "&Added to the list");
        QCOMPARE(TextOf(english, "obHighlightFilter"), "&Highlighted");
        QCOMPARE(TextOf(english, "cmdOK"), "OK");
        QCOMPARE(TextOf(english, "cmdCancel"), "Cancel");
        QCOMPARE(Items(english, "cbFilterType"),
                 QStringList({"All entries", "Info", "Warning", "Error", "System error",
                              "Program status change", "Key", "Restart", "Entry number(s)", "Keystr"}));

        UseLanguage(Language::German);
        const frmFilterSettings german(Context, Strings);
        QCOMPARE(german.windowTitle(), "Filterdefinition");
        QCOMPARE(TextOf(german, "lblFilterType"), "&Ereignis:");
        QCOMPARE(TextOf(german, "lblEmitter"), "&Quelle:");
        QCOMPARE(TextOf(german, "lblName"), "&Name:");
        QCOMPARE(TextOf(german, "lblStringFilter"), "Enthaltener &String:");
        QCOMPARE(Find<QGroupBox>(german, "frFilterAction")->title(),
                 "Wenn obige Filterbedingungen zutreffen werden die Logeinträge");
        QCOMPARE(TextOf(german, "obExcludeFilter"), "&aus der Liste entfernt");
        QCOMPARE(TextOf(german, "obIncludeFilter"), "&in die Liste aufgenommen");
        QCOMPARE(TextOf(german, "obHighlightFilter"), "&markiert");
        QCOMPARE(TextOf(german, "cmdCancel"), "Abbrechen");
        QCOMPARE(Items(german, "cbFilterType"),
                 QStringList({"Alle Einträge", "Information", "Warnung", "Fehler", "Systemfehler",
                              "Programmstatus Änderung (STIB)", "Tastenbetätigung", "Restart",
                              "Nur bestimmte Nummern", "Zeichenfolgen"}));
        ChooseType(german, 8);
        QCOMPARE(TextOf(german, "lblStringFilter"), "&Liste von Nummern:");
    }

    void NewFilterShowsEveryEntry() {
        const frmFilterSettings dialog(Context, Strings);
        QCOMPARE(dialog.Definition(), FilterDefinition());
    }

    void FilterIsShownAndGivenBack() {
        for (const char* text : {"I|3|N938|ABC|PLC|1", "X|1||||1", "H|8|10-20,35|||1", "X|9|Keys|||1"}) {
            frmFilterSettings dialog(Context, Strings);
            dialog.Preset(Filter(text));
            QCOMPARE(FormatFilter(dialog.Definition()), text);
        }
    }

    void ActionsAreTheOptions() {
        const frmFilterSettings dialog(Context, Strings);
        for (const auto& [option, action] : {std::pair("obExcludeFilter", FilterActions::Exclude),
                                             {"obIncludeFilter", FilterActions::Include},
                                             {"obHighlightFilter", FilterActions::Highlight}}) {
            Find<QRadioButton>(dialog, option)->setChecked(true);
            QCOMPARE(dialog.Definition().Action, action);
        }
    }

    void NameAndSenderAreForInfoWarningAndError() {
        frmFilterSettings dialog(Context, Strings);
        dialog.Preset(Filter("I|3|text|ABC|PLC|1"));
        for (int type = 0; type < FilterTypes::Count; ++type) {
            ChooseType(dialog, type);
            const bool enabled = type >= 1 && type <= 3;
            for (const char* name : {"lblEmitter", "cbEmitter", "lblName", "cbName"})
                QCOMPARE(Find<QWidget>(dialog, name)->isEnabled(), enabled);
            QCOMPARE(dialog.Definition().Name, enabled ? "ABC" : "");
            QCOMPARE(dialog.Definition().Emitter, enabled ? "PLC" : "");
            QCOMPARE(dialog.Definition().StringFilter, "text");
            QCOMPARE(dialog.Definition().FilterType, type);
        }
    }

    void NumberListHasNoPredefinedStrings() {
        frmFilterSettings dialog(Context, Strings);
        for (int type = 0; type < FilterTypes::Count; ++type) {
            ChooseType(dialog, type);
            QCOMPARE(TextOf(dialog, "lblStringFilter"),
                     type == 8 ? "&List of Numbers:" : "Contained &string:");
            QCOMPARE(Find<QWidget>(dialog, "cmdPredefinedStrings")->isEnabled(), type != 8);
            QCOMPARE(Items(dialog, "cbStringFilter"),
                     type == 8 ? QStringList()
                               : QStringList({"\"Key without function N938\"-Error",
                                              "\"Key without function N940\"-Error"}));
        }
    }

    void ChosenCommentLeavesItsString() {
        frmFilterSettings dialog(Context, Strings);
        dialog.show();
        QComboBox* const box = Box(dialog, "cbStringFilter");
        QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(box->currentText(), "\"Key without function N938\"-Error");
        QVERIFY(Find<QTimer>(dialog, "Timer1")->isActive());
        QTRY_COMPARE(box->currentText(), "N938");
        QVERIFY(!Find<QTimer>(dialog, "Timer1")->isActive());
        QTest::keyClick(box, Qt::Key_Down);
        QTRY_COMPARE(box->currentText(), "N940");
        QCOMPARE(dialog.Definition().StringFilter, "N940");
    }

    void OkDirectlyAfterAChoiceHasTheString() {
        frmFilterSettings dialog(Context, Strings);
        dialog.show();
        QTest::keyClick(Box(dialog, "cbStringFilter"), Qt::Key_Down);
        Click(dialog, "cmdOK");
        QCOMPARE(dialog.Definition().StringFilter, "N938");
    }

    void FirstStringOfAnAmbiguousCommentIsTaken() {
        Strings = {{"first", "same"}, {"second", "same"}};
        frmFilterSettings dialog(Context, Strings);
        dialog.show();
        QTest::keyClick(Box(dialog, "cbStringFilter"), Qt::Key_Down);
        QTest::keyClick(Box(dialog, "cbStringFilter"), Qt::Key_Down);
        QTRY_COMPARE(Box(dialog, "cbStringFilter")->currentText(), "first");
    }

    void TypedTextStaysWhatItIs() {
        Strings = {{"N938", "Keys"}};
        Context.Names = {{"ABC"}, {}};
        frmFilterSettings dialog(Context, Strings);
        ChooseType(dialog, 3);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        for (const auto& [name, text] :
             {std::pair("cbStringFilter", "Keys"), {"cbName", "ab"}, {"cbEmitter", "ge"}}) {
            Box(dialog, name)->setFocus();
            QTest::keyClicks(Box(dialog, name), text);
            QTest::keyClick(Box(dialog, name), Qt::Key_Tab);
            QCoreApplication::processEvents();
            QCOMPARE(Box(dialog, name)->currentText(), text);
        }
    }

    void PickedStringGoesIntoTheBox() {
        frmFilterSettings dialog(Context, Strings);
        dialog.show();
        Box(dialog, "cbStringFilter")->setEditText("before");
        AnswerStringList([](QTreeWidget& list) { Select(list, {1}); });
        Click(dialog, "cmdPredefinedStrings");
        QCOMPARE(Answered, 1);
        QCOMPARE(Box(dialog, "cbStringFilter")->currentText(), "N940");
    }

    void NoPickedStringLeavesTheBox() {
        frmFilterSettings dialog(Context, Strings);
        dialog.show();
        Box(dialog, "cbStringFilter")->setEditText("before");
        AnswerStringList([](QTreeWidget&) {});
        Click(dialog, "cmdPredefinedStrings");
        QCOMPARE(Answered, 1);
        QCOMPARE(Box(dialog, "cbStringFilter")->currentText(), "before");
    }

    void ChangedStringsAreOfferedAtOnce() {
        frmFilterSettings dialog(Context, Strings);
        dialog.show();
        AnswerStringList([](QTreeWidget& list) {
            Select(list, {0});
            Choose(*list.window(), "mnuFilterRemove");
            QTRY_COMPARE(list.topLevelItemCount(), 1);
        });
        Click(dialog, "cmdPredefinedStrings");
        QCOMPARE(Items(dialog, "cbStringFilter"), QStringList({"\"Key without function N940\"-Error"}));
    }

    void SameFilterExists() {
        frmFilterSettings dialog(Context, Strings);
        dialog.Preset(Filter("X|3|N938|ABC|PLC|1"));
        QVERIFY(dialog.FilterExists(std::vector{Filter("I|0||||1"), Filter("X|3|N938|ABC|PLC|1")}));
        QVERIFY(dialog.FilterExists(std::vector{Filter("X|3|N938|ABC|PLC|0")}));
        QVERIFY(!dialog.FilterExists({}));
        for (const char* other : {"I|3|N938|ABC|PLC|1", "X|2|N938|ABC|PLC|1", "X|3|n938|ABC|PLC|1",
                                  "X|3|N938|Abc|PLC|1", "X|3|N938|ABC|plc|1", "X|3|N938|||1"})
            QVERIFY(!dialog.FilterExists(std::vector{Filter(other)}));
        // What stands in disabled boxes is no part of the filter.
        ChooseType(dialog, 5);
        QVERIFY(dialog.FilterExists(std::vector{Filter("X|5|N938|||1")}));
    }

    void BoxesOfferWhatTheLogbookHas() {
        Context.Names = {{"ABC", "Zeta"}, {"FOO", "PLC"}};
        const frmFilterSettings dialog(Context, Strings);
        QCOMPARE(Items(dialog, "cbName"), QStringList({"ABC", "Zeta"}));
        QStringList senders;
        for (const std::string_view sender : SenderChoices)
            senders << QString::fromStdString(std::string(sender));
        QCOMPARE(Items(dialog, "cbEmitter"), senders << "FOO");
    }

    void SeparatorIsToldBesideItsField() {
        const char* const english =
            "A filter with \"|\" cannot be stored: the whole list would fall back to the default filter.";
        const char* const german =
            "Ein Filter mit \"|\" kann nicht gespeichert werden: Die ganze Liste würde auf den "
            "Standardfilter zurückfallen.";
        for (const auto& [language, text] :
             {std::pair(Language::English, english), {Language::German, german}}) {
            UseLanguage(language);
            frmFilterSettings dialog(Context, Strings);
            ChooseType(dialog, 3);
            dialog.show();
            for (const auto& [box, note] : {std::pair("cbStringFilter", "lblStringNote"),
                                            {"cbName", "lblNameNote"},
                                            {"cbEmitter", "lblEmitterNote"}}) {
                QVERIFY(!Find<QLabel>(dialog, note)->isVisible());
                QTest::keyClicks(Box(dialog, box), "a|");
                QVERIFY(Find<QLabel>(dialog, note)->isVisible());
                QCOMPARE(TextOf(dialog, note), text);
                QCOMPARE(Box(dialog, box)->accessibleDescription(), text);
                QTest::keyClick(Box(dialog, box), Qt::Key_Backspace);
                QVERIFY(!Find<QLabel>(dialog, note)->isVisible());
                QVERIFY(Box(dialog, box)->accessibleDescription().isEmpty());
            }
        }
    }

    void SeparatorInADisabledBoxIsNoMatter() {
        frmFilterSettings dialog(Context, Strings);
        dialog.show();
        ChooseType(dialog, 3);
        Box(dialog, "cbName")->setEditText("a|b");
        QVERIFY(Find<QLabel>(dialog, "lblNameNote")->isVisible());
        ChooseType(dialog, 4);
        QVERIFY(!Find<QLabel>(dialog, "lblNameNote")->isVisible());
    }

    void TooLongFilterIsTold() {
        frmFilterSettings english(Context, Strings);
        english.show();
        // The other fields take 6 characters at least.
        Box(english, "cbStringFilter")->setEditText(QString(1017, QChar(0xE4)));
        QVERIFY(!Find<QLabel>(english, "lblStringNote")->isVisible());
        Box(english, "cbStringFilter")->setEditText(QString(1018, 'a'));
        QVERIFY(Find<QLabel>(english, "lblStringNote")->isVisible());
        QCOMPARE(
            TextOf(english, "lblStringNote"),
            "This filter is too long to be stored: the whole list would fall back to the default filter.");

        UseLanguage(Language::German);
        frmFilterSettings german(Context, Strings);
        Box(german, "cbStringFilter")->setEditText(QString(1018, 'a'));
        QCOMPARE(TextOf(german, "lblStringNote"), "Dieser Filter ist zu lang, um gespeichert zu werden: Die "
                                                  "ganze Liste würde auf den Standardfilter "
                                                  "zurückfallen.");
    }

    void NotesGetRoom() {
        frmFilterSettings dialog(Context, Strings);
        ChooseType(dialog, 3);
        dialog.show();
        for (const char* name : {"cbStringFilter", "cbName", "cbEmitter"})
            Box(dialog, name)->setEditText("|");
        for (const char* name : {"lblStringNote", "lblNameNote", "lblEmitterNote"}) {
            const auto* const note = Find<QLabel>(dialog, name);
            QTRY_VERIFY(note->height() >= note->heightForWidth(note->width()));
        }
    }

    void ResultTellsTheButton() {
        for (const auto& [button, result] : {std::pair("cmdOK", "OK"), {"cmdCancel", ""}}) {
            frmFilterSettings dialog(Context, Strings);
            dialog.show();
            Click(dialog, button);
            QVERIFY(!dialog.isVisible());
            QCOMPARE(dialog.ResultText(), result);
        }
        frmFilterSettings dialog(Context, Strings);
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.ResultText(), "");
    }

    void EnterInABoxIsOk() {
        frmFilterSettings dialog(Context, Strings);
        dialog.show();
        QTest::keyClicks(Box(dialog, "cbStringFilter"), "N938");
        QTest::keyClick(Box(dialog, "cbStringFilter"), Qt::Key_Return);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.ResultText(), "OK");
        QCOMPARE(dialog.Definition().StringFilter, "N938");
    }

    void UnknownTypeStaysUntilOneIsChosen() {
        frmFilterSettings dialog(Context, Strings);
        dialog.Preset(Filter("X|42|text|||1"));
        QCOMPARE(Box(dialog, "cbFilterType")->currentText(), "");
        QCOMPARE(dialog.Definition().FilterType, 42);
        ChooseType(dialog, 1);
        QCOMPARE(dialog.Definition().FilterType, 1);
    }

    void EveryControlHasANameAndRoom() {
        for (const std::int32_t language : {Language::English, Language::German}) {
            UseLanguage(language);
            frmFilterSettings dialog(Context, Strings);
            for (const int type : {3, 8}) {
                ChooseType(dialog, type);
                dialog.show();
                QCOMPARE(NamelessControls(dialog).join(", "), "");
                QTRY_COMPARE(CutOffTexts(dialog).join(", "), "");
            }
        }
    }

  private:
    void UseLanguage(std::int32_t number) {
        Context.DialogLanguage = {number};
        Context.Labels.SetLanguage({number});
    }

    // The person deals with the list of predefined strings and presses OK.
    void AnswerStringList(const std::function<void(QTreeWidget&)>& deal) {
        Answer<frmStringSettings>([deal](frmStringSettings& dialog) {
            deal(*Find<QTreeWidget>(dialog, "lvFilterStrings"));
            Click(dialog, "cmdOK");
        });
    }

    static FilterDefinition Filter(const char* text) {
        FilterDefinition filter;
        ParseFilter(text, filter);
        return filter;
    }

    static QComboBox* Box(const QWidget& dialog, const char* name) { return Find<QComboBox>(dialog, name); }
    static void ChooseType(const QWidget& dialog, int type) {
        Box(dialog, "cbFilterType")->setCurrentIndex(type);
    }

    static QStringList Items(const QWidget& dialog, const char* name) {
        QStringList items;
        for (int i = 0; i < Box(dialog, name)->count(); ++i)
            items << Box(dialog, name)->itemText(i);
        return items;
    }

    FilterDialogContext Context{Settings, CodePage(), {}, {}, {}};
    std::vector<StringFilter> Strings;
};

QORVIX_WINDOW_TEST(frmFilterSettingsTest)
#include "frmFilterSettingsTest.moc"
