// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Texts.h"

#include <string>
#include <string_view>

// What opening and saving logbooks asks of the person. The window, the command-line tool and the tests each
// implement it.
class UserInterface {
  public:
    virtual ~UserInterface() = default;

    enum class Answer { Yes, No, Cancel };
    enum class MessageIcon { None, Exclamation };

    virtual void ShowMessage(std::string_view text, MessageIcon icon) = 0;
    virtual Answer Ask(TextId question) = 0;

    // A status text for the time of a longer step; RestoreStatus puts the one before it back.
    virtual void ShowStatus(TextId status) = 0;
    virtual void RestoreStatus() = 0;
};
