// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Texts.h"

#include <optional>
#include <string>
#include <string_view>

// What a file dialog begins with.
struct FileRequest {
    TextId Title;
    TextId Filter;                // descriptions and patterns in turn, separated by "|"
    std::string Folder;           // where it begins
    std::string FileName;         // proposed
    std::string DefaultExtension; // appended to a name that was typed without one
};

// What opening and saving logbooks asks of the person. The window, the command-line tool and the tests each
// implement it.
class UserInterface {
  public:
    virtual ~UserInterface() = default;

    enum class Answer { Yes, No, Cancel };
    enum class MessageIcon { None, Exclamation };

    virtual void ShowMessage(std::string_view text, MessageIcon icon) = 0;
    virtual Answer Ask(TextId question) = 0;

    // A question with Yes and No, put together from several texts. True for Yes.
    virtual bool Confirm(std::string_view question) = 0;

    // The path that the person chose; nothing on cancel. A file to save may exist: the person was asked then.
    virtual std::optional<std::string> AskFileToOpen(const FileRequest& request) = 0;
    virtual std::optional<std::string> AskFileToSave(const FileRequest& request) = 0;

    // A status text for the time of a longer step; RestoreStatus puts the one before it back.
    virtual void ShowStatus(TextId status) = 0;
    virtual void RestoreStatus() = 0;

    // How much of the step is done, from 0 to 100.
    virtual void ShowProgress(double percent) = 0;
};
