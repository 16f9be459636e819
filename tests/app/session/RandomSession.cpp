// SPDX-License-Identifier: MIT
#include "app/session/RandomSession.h"

#include <cstdio>
#include <numeric>

// Rare orders are those that take long, or after which little is left of the list.
const RandomSession::Order RandomSession::OrderTable[] = {
    {12, &RandomSession::ClickRow},
    {10, &RandomSession::AddRowByClick},
    {10, &RandomSession::SelectRange},
    {1, &RandomSession::SelectAll},
    {2, &RandomSession::ClickBeside},
    {8, &RandomSession::MoveByKey},
    {10, &RandomSession::Sort},
    {4, &RandomSession::SortByMenu},
    {8, &RandomSession::Remove},
    {1, &RandomSession::KeepBetween},
    {8, &RandomSession::UndoOrRedo},
    {12, &RandomSession::Toggle},
    {3, &RandomSession::Copy},
    {7, &RandomSession::EditComments},
    {7, &RandomSession::FindByDialog},
    {10, &RandomSession::FindAgain},
    {1, &RandomSession::FindAll},
    {8, &RandomSession::StepToMark},
    {3, &RandomSession::ToggleOverview},
    {12, &RandomSession::UseOverview},
    {3, &RandomSession::ChangeLanguage},
    {8, &RandomSession::EditFilters},
    {3, &RandomSession::Resize},
    {2, &RandomSession::ToggleContent},
    {2, &RandomSession::ToggleBars},
    {2, &RandomSession::WidenColumn},
    {3, &RandomSession::OpenDropped},
    {1, &RandomSession::Open},
    {1, &RandomSession::Archive},
    {3, &RandomSession::Refresh},
    {1, &RandomSession::RewriteAndRefresh},
    {1, &RandomSession::Restart},
    {1, &RandomSession::Crash},
    {1, &RandomSession::EditFiltersByPopup},
};

RandomSession::RandomSession(std::uint64_t seed) : dice_(seed), settingsFile_(PathOf("settings.json")) {
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

void RandomSession::WriteLogbook(Source& source, Generation generation) {
    SessionLogbook logbook = MakeSessionLogbook(dice_, generation);
    Folder.Write(source.File.toStdString(), logbook.File.toStdString());
    source.Entries = std::move(logbook.Entries);
}

// A new window with a logbook on its command line.
void RandomSession::StartProgram() {
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

QString RandomSession::Step() {
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

void RandomSession::Say(const QString& words) {
    if (orders_.isEmpty())
        orders_ << QString();
    orders_.last() += orders_.last().isEmpty() ? words : ", " + words;
    if (qEnvironmentVariableIsSet("QORVIX_SESSION_LOG"))
        std::fprintf(stderr, "%lld: %s\n", static_cast<long long>(orders_.size() - 1), qPrintable(words));
}

QString RandomSession::Localised(const char* english, const char* german) const {
    return Model.Language == 1 ? german : english;
}
