// SPDX-License-Identifier: MIT
#include "faults/ProgramWindow.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <unistd.h>

namespace {

Environment WithPerson(Environment environment) {
    environment.insert({{"QT_QPA_PLATFORM", "offscreen"},
                        {"QT_QPA_GENERIC_PLUGINS", "person"},
                        {"QT_PLUGIN_PATH", QORVIX_PERSON_FOLDER}});
    return environment;
}

} // namespace

std::vector<std::string> Sight::Column(std::size_t column) const {
    std::vector<std::string> cells;
    for (const std::vector<std::string>& row : Cells)
        cells.push_back(row[column]);
    return cells;
}

ProgramWindow::ProgramWindow(const std::vector<std::string>& arguments, Environment environment)
    : program_(QORVIX_PROGRAM_FOLDER "/qorvix", arguments, WithPerson(std::move(environment))) {}

// The answer; null when the program has ended.
nlohmann::json ProgramWindow::Ask(const nlohmann::json& order) {
    program_.Say(order.dump());
    const std::optional<std::string> answer = program_.Hear();
    return answer ? nlohmann::json::parse(*answer) : nlohmann::json();
}

void ProgramWindow::Tell(const nlohmann::json& order) {
    const nlohmann::json answer = Ask(order);
    EXPECT_TRUE(answer.is_null() || answer.value("obeyed", false)) << order;
}

Sight ProgramWindow::See() {
    const nlohmann::json seen = Ask({{"do", "see"}});
    if (seen.empty())
        return {};
    return {.IsShown = true,
            .Title = seen["title"],
            .Status = seen["status"],
            .Counts = seen["counts"],
            .Progress = seen["progress"],
            .Front = seen["front"],
            .Text = seen.value("text", ""),
            .Cells = seen["cells"]};
}

Sight ProgramWindow::Until(const std::function<bool(const Sight&)>& condition, const char* what) {
    constexpr useconds_t Pause = 2000;
    const auto limit = std::chrono::steady_clock::now() + LongestWait;
    Sight sight;
    do {
        sight = See();
        if (condition(sight))
            return sight;
        usleep(Pause);
    } while (std::chrono::steady_clock::now() < limit && (sight.IsShown || program_.IsRunning()));
    ADD_FAILURE() << what << " never came: " << sight.Front << " \"" << sight.Text << "\" status \""
                  << sight.Status << "\" counts \"" << sight.Counts << "\"\n"
                  << program_.Errors();
    return sight;
}

Sight ProgramWindow::UntilShown() {
    return Until([](const Sight& sight) { return sight.IsIdle() && !sight.Counts.empty(); }, "the logbook");
}

Sight ProgramWindow::UntilIdle() {
    return Until([](const Sight& sight) { return sight.IsIdle(); }, "the window");
}

Sight ProgramWindow::UntilRows(std::size_t count) {
    return Until([&](const Sight& sight) { return sight.IsIdle() && sight.Cells.size() == count; },
                 "a list of that length");
}

void ProgramWindow::Select(int row) { Tell({{"do", "select"}, {"row", row}}); }

std::string ProgramWindow::Message() {
    return Until([](const Sight& sight) { return sight.Front == "QMessageBox"; }, "a message").Text;
}

void ProgramWindow::Press(const std::string& button) { Tell({{"do", "press"}, {"name", button}}); }

void ProgramWindow::Trigger(const std::string& item) { Tell({{"do", "trigger"}, {"name", item}}); }

void ProgramWindow::ChooseFile(const std::string& path) {
    Until([](const Sight& sight) { return sight.Front == "QFileDialog"; }, "the file dialog");
    Tell({{"do", "choose file"}, {"text", path}});
}

void ProgramWindow::Open(const std::string& path) {
    Trigger("mnuFileOpen");
    ChooseFile(path);
}

void ProgramWindow::SaveAs(const std::string& path) {
    Trigger("mnuFileZipLogbook");
    ChooseFile(path);
}

void ProgramWindow::EnterComment(int row, const std::string& text) {
    Select(row);
    Tell({{"do", "open entry"}});
    Until([](const Sight& sight) { return sight.Front == "frmLogbookIdent"; }, "the entry's dialog");
    Tell({{"do", "type"}, {"name", "tbComment"}, {"text", text}});
    Press("cmdOK");
}

void ProgramWindow::Comment(int row, const std::string& text) {
    EnterComment(row, text);
    UntilIdle();
}

void ProgramWindow::Close() { Tell({{"do", "close"}}); }
