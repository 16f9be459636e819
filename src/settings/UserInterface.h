// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Texts.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

// A question for a file.
struct FileQuestion {
    TextId Title;
    TextId Filters;               // "label|patterns|label|patterns", patterns separated by ";"
    std::string DefaultExtension; // without its "."; a name without extension gets it. "" = none
    std::string Folder;           // where to begin
    std::string Name;             // the name that is proposed, without a folder; "" = none
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

    // An answer to a question: what stands on its button, and whether something is lost with it.
    struct AnswerButton {
        TextId Text;
        bool Loses = false;
    };

    // A question with answers of its own, and Cancel: the place of the answer, from 0; nothing for Cancel.
    // Who only presses Enter gives the first answer that loses nothing, or else Cancel.
    virtual std::optional<std::size_t> Choose(std::string_view question,
                                              std::span<const AnswerButton> answers) = 0;

    // A question with Yes and No that names what it is about; true for Yes.
    virtual bool Confirm(std::string_view question) = 0;

    // The file (UTF-8) that the person names; nothing when that was cancelled. Whoever asks for a file to
    // save asks also before an existing one is replaced.
    virtual std::optional<std::string> AskFileToOpen(const FileQuestion& question) = 0;
    virtual std::optional<std::string> AskFileToSave(const FileQuestion& question) = 0;

    // A status text for the time of a longer step; RestoreStatus puts the one before it back.
    virtual void ShowStatus(TextId status) = 0;
    virtual void RestoreStatus() = 0;
};
