// SPDX-License-Identifier: MIT
#pragma once

#include "app/MainWindowTest.h"
#include "app/session/RandomSessionModel.h"
#include "app/session/SessionLogbook.h"
#include "app/session/SessionPerson.h"
#include "settings/JsonSettings.h"
#include "tools/Dice.h"

#include <optional>

class frmOverview;

// A person at the main window, who gives one order after the other as the dice fall, and the model beside it
// that is told the same. The settings are those of a real file.
class RandomSession : public MainWindowTest {
  public:
    // The same seed gives the same session.
    explicit RandomSession(std::uint64_t seed);

    // Gives one order. "", or what the window shows or stores that the model does not.
    QString Step();

    // What the orders were, in words; the last one last.
    const QStringList& Orders() const { return orders_; }

  private:
    struct Order {
        int Weight;
        void (RandomSession::*Give)();
    };
    static const Order OrderTable[];

    // A logbook file, or an archive with its comments and filters.
    struct Source {
        QString File; // name in the session's folder
        QString Name; // in the title
        SessionEntries Entries;
        QStringList Filters;
        bool IsArchive = false;
    };

    // Comments that were neither saved nor dropped when the window closed or the program crashed.
    struct Lost {
        SessionEntries Logbook; // without comments
        std::map<int, QString> Comments;
        bool Held = false;     // by the window, as the logbook has the comments
        bool Restored = false; // from it just now
    };

    // Adds to what the order is in words.
    void Say(const QString& words);
    bool Chance(unsigned count) { return dice_.OneIn(count); }
    int Below(int bound) { return static_cast<int>(dice_.Below(static_cast<std::uint64_t>(bound))); }
    QString Localised(const char* english, const char* german) const;
    QString PathOf(const QString& file) const { return QString::fromStdString(Folder / file.toStdString()); }
    void WriteLogbook(Source& source, Generation generation);
    void StartProgram();

    // SessionSources.cpp
    void Open();
    void OpenDropped();
    void Archive();
    void Refresh();
    void RewriteAndRefresh();
    void Restart();
    void Crash();
    Source& AnySource();
    void PlanReading(const Source& source, QMessageBox::StandardButton replaceFilters);
    enum class Leave { Go, Stay };
    Leave PlanLeaving(bool closing = false);
    bool PlanArchive();
    bool PlanReplacing(const Source& old);
    void PlanRestoring();
    void LetLostGo();
    void LoseComments();
    void Show(const Source& source, bool withFilters);
    void Drop(const QString& path);

    // SessionRows.cpp
    void ClickRow();
    void AddRowByClick();
    void SelectRange();
    void SelectAll();
    void ClickBeside();
    void MoveByKey();
    void Sort();
    void SortByMenu();
    void Remove();
    void Toggle();
    void KeepBetween();
    void UndoOrRedo();
    void Copy();
    void EditComments();
    void ClickOn(int row, Qt::KeyboardModifiers modifiers = {});
    void PressInList(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    void ClickAlone(int row);
    void OpenPopup(int row);
    void ChooseInPopup(const char* item);
    int AnyRow() { return Below(Model.RowCount()); }
    void PlanComment(int row, bool isLast);

    // SessionSearches.cpp
    void FindByDialog();
    void FindAgain();
    void FindAll();
    void StepToMark();
    void ChangeLanguage();

    // SessionOverview.cpp
    void ToggleOverview();
    void UseOverview();
    void GoToFirst(const QString& key);
    frmOverview* Overview() const; // nullptr while it is closed
    QString OverviewDifference() const;

    // SessionFilterDialogs.cpp
    void EditFilters();
    void EditFiltersByPopup();
    void PlanFilterDialog();
    void PlanAdding(SessionFilters& rows, SessionStrings& strings);
    void PlanEditing(SessionFilters& rows, SessionStrings& strings);
    void PlanRemoving(SessionFilters& rows, const QList<int>& removed);
    void PlanLook(const SessionFilters& rows);
    void PlanClosing(SessionFilters& rows, const SessionStrings& strings);
    void Save(const SessionFilters& rows, const SessionStrings& strings);

    // SessionFilterDefinition.cpp
    SessionFilter AnyFilter();
    bool PlanDefinition(SessionFilter& filter, SessionStrings& strings);
    void PlanStrings(SessionStrings& strings, QString& text);

    // SessionLayout.cpp
    void Resize();
    void ToggleContent();
    void ToggleBars();
    void WidenColumn();

    // SessionChecks.cpp
    QString Difference() const;
    QString RowsDifference() const;
    QString SelectionDifference() const;
    QString TextsDifference() const;
    bool FilterButtonIsFilled() const;
    QString SettingsDifference() const;
    QString LayoutDifference() const;

    Dice dice_;
    QString settingsFile_;
    std::unique_ptr<JsonSettings> jsonSettings_;
    RandomSessionModel Model;
    SessionPerson Answers;
    QList<Source> logbooks_;
    QList<Source> archives_;
    QList<Lost> lost_;           // the oldest first
    bool contentStored_ = false; // the content pane was shown when the window was closed the last time
    Source shown_;               // as it was opened
    int archivesMade_ = 0;
    QList<int> columnWidths_; // as set
    bool toolBarShown_ = true;
    bool statusBarShown_ = true;
    QStringList orders_;
};
