// SPDX-License-Identifier: MIT
#include "app/session/Session.h"

#include <cstdio>
#include <numeric>

// Rare orders are those that take long, or after which little is left of the list.
const Session::Order Session::OrderTable[] = {
    {12, &Session::ClickRow},
    {10, &Session::AddRowByClick},
    {10, &Session::SelectRange},
    {1, &Session::SelectAll},
    {2, &Session::ClickBeside},
    {8, &Session::MoveByKey},
    {10, &Session::Sort},
    {4, &Session::SortByMenu},
    {8, &Session::Remove},
    {1, &Session::KeepBetween},
    {8, &Session::UndoOrRedo},
    {12, &Session::Toggle},
    {3, &Session::Copy},
    {7, &Session::EditComments},
    {7, &Session::FindByDialog},
    {10, &Session::FindAgain},
    {1, &Session::FindAll},
    {8, &Session::StepToMark},
    {3, &Session::ChangeLanguage},
    {8, &Session::EditFilters},
    {3, &Session::Resize},
    {2, &Session::ToggleContent},
    {2, &Session::ToggleBars},
    {2, &Session::WidenColumn},
    {3, &Session::OpenDropped},
    {1, &Session::Open},
    {1, &Session::Archive},
    {3, &Session::Refresh},
    {1, &Session::RewriteAndRefresh},
    {1, &Session::Restart},
    {1, &Session::Crash},
    {1, &Session::EditFiltersByPopup},
};

Session::Session(std::uint64_t seed) : dice_(seed), settingsFile_(PathOf("settings.json")) {
    jsonSettings_ = std::make_unique<JsonSettings>(settingsFile_.toStdString());
    Settings = std::make_unique<Registry>(*jsonSettings_);
    for (const char* file : {"classic.log", "separated.log", "operation.log", "Prüf.act.log"}) {
        Source source;
        source.File = file;
        source.Name = source.File.section('.', 0, 0);
        WriteLogbook(source, static_cast<Generation>(logbooks_.size() % 3));
        logbooks_ << source;
    }
    StartProgram();
}

void Session::WriteLogbook(Source& source, Generation generation) {
    SessionLogbook logbook = MakeSessionLogbook(dice_, generation);
    Folder.Write(source.File.toStdString(), logbook.File.toStdString());
    source.Entries = std::move(logbook.Entries);
}

// A new window with a logbook on its command line.
void Session::StartProgram() {
    OpenWindow();
    const Source source = logbooks_[Below(static_cast<int>(logbooks_.size()))];
    Say("starts with " + source.File);
    Show(source, false);
    Window->FirstActivation({PathOf(source.File).toStdString()});
    toolBarShown_ = statusBarShown_ = true;
    columnWidths_.clear();
    for (int column = 0; column < 7; ++column)
        columnWidths_ << List()->columnWidth(column);
}

QString Session::Step() {
    const int all = std::accumulate(std::begin(OrderTable), std::end(OrderTable), 0,
                                    [](int sum, const Order& order) { return sum + order.Weight; });
    int place = Below(all);
    const Order* order = OrderTable;
    for (; place >= order->Weight; ++order)
        place -= order->Weight;
    orders_ << QString();
    Answers.Begin();
    (this->*order->Give)();
    Answers.Wait();
    return Answers.Fault().isEmpty() ? Difference() : Answers.Fault();
}

void Session::Say(const QString& words) {
    if (orders_.isEmpty())
        orders_ << QString();
    orders_.last() += orders_.last().isEmpty() ? words : ", " + words;
    if (qEnvironmentVariableIsSet("QORVIX_SESSION_LOG"))
        std::fprintf(stderr, "%lld: %s\n", static_cast<long long>(orders_.size() - 1), qPrintable(words));
}

QString Session::Localised(const char* english, const char* german) const {
    return Model.Language == 1 ? german : english;
}
