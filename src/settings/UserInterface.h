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
    std::string Folder;           // to show first
    std::string Name;             // the proposed name, without a folder; "" = none
};

// What the program asks of a person when it opens and saves logbooks. The window, the command-line tool and
// the tests each implement it.
class UserInterface {
  public:
    virtual ~UserInterface() = default;

    enum class Answer { Yes, No, Cancel };
    enum class MessageIcon { None, Exclamation };

    virtual void ShowMessage(std::string_view text, MessageIcon icon) = 0;
    virtual Answer Ask(TextId question) = 0;

    // An answer to a question: the text of its button, and whether it loses something.
    struct AnswerButton {
        TextId Text;
        bool Loses = false;
    };

    // Asks a question with its own answers and Cancel. Returns the place of the answer, from 0; nothing for
    // Cancel. Enter gives the first answer that loses nothing, or Cancel if there is none.
    virtual std::optional<std::size_t> Choose(std::string_view question,
                                              std::span<const AnswerButton> answers) = 0;

    // Asks a question with Yes and No whose text names its subject; true for Yes.
    virtual bool Confirm(std::string_view question) = 0;

    // The file (UTF-8) that the person names; nothing when the person cancels. AskFileToSave gives an
    // existing file only when the person agrees to replace it.
    virtual std::optional<std::string> AskFileToOpen(const FileQuestion& question) = 0;
    virtual std::optional<std::string> AskFileToSave(const FileQuestion& question) = 0;

    // A file to save in one of several forms.
    struct TypedFile {
        std::string Path;
        std::size_t Type = 0; // the place of its form in the question's filters, from 0
    };

    // The same as AskFileToSave for a file whose form the person chooses by the question's filters, which
    // have these extensions (without "."). A name with one of these has that form, whatever was chosen; a
    // name without extension gets that of the chosen form.
    virtual std::optional<TypedFile> AskTypedFileToSave(const FileQuestion& question,
                                                        std::span<const std::string_view> extensions) = 0;

    // Shows a status text during a longer step; RestoreStatus shows the text before it again.
    virtual void ShowStatus(TextId status) = 0;
    virtual void RestoreStatus() = 0;
};
