// SPDX-License-Identifier: MIT
#pragma once

#include "faults/RunningProgram.h"

#include <nlohmann/json_fwd.hpp>

#include <functional>
#include <string>
#include <vector>

// What a person sees of the program.
struct Sight {
    bool IsShown = false; // the window is on the screen
    std::string Title;
    std::string Status;
    std::string Counts;
    bool Progress = false;                       // the progress bar is shown
    std::string Front;                           // the class of the dialog in front; "" = none
    std::string Text;                            // of a message or question in front
    std::vector<std::vector<std::string>> Cells; // of the first rows of the list

    bool IsIdle() const { return IsShown && Front.empty() && Status == "Ready"; }
    std::vector<std::string> Column(std::size_t column) const;
};

// The real program with its real window, without a screen, and a person at it. What it is told and shown goes
// through the plugin Person.cpp; the program itself knows nothing of the tests.
class ProgramWindow {
  public:
    ProgramWindow(const std::vector<std::string>& arguments, Environment environment);

    Sight See();

    // Looks until the condition holds, and gives what was seen; a failure of the test where it never does, or
    // the program has ended.
    Sight Until(const std::function<bool(const Sight&)>& condition, const char* what);

    // Waits until a logbook is shown, nothing is in front and nothing is being done.
    Sight UntilShown();
    Sight UntilIdle();

    // Waits until the list has so many rows.
    Sight UntilRows(std::size_t count);

    // Waits for a message or question, and gives its text.
    std::string Message();

    // Selects a row of the list.
    void Select(int row);

    // Presses a button by what stands on it or by its name.
    void Press(const std::string& button);

    // Chooses an item of the menus by its name in the code.
    void Trigger(const std::string& item);

    // Waits for the file dialog, and gives it a file. Nothing is waited for then.
    void ChooseFile(const std::string& path);

    // Opens a file with the menu; and saves an archive as far as the dialog's end.
    void Open(const std::string& path);
    void SaveAs(const std::string& path);

    // Writes a comment to the entry of a row; the second waits until that is done.
    void EnterComment(int row, const std::string& text);
    void Comment(int row, const std::string& text);

    // Asks the window to close.
    void Close();

    RunningProgram& Program() { return program_; }

  private:
    nlohmann::json Ask(const nlohmann::json& order);
    void Tell(const nlohmann::json& order);

    RunningProgram program_;
};
