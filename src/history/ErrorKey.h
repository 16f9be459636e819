// SPDX-License-Identifier: MIT
#pragma once

#include "eventinfo/Mod_Facility.h"

#include <string>
#include <string_view>

// What makes two errors the same one: the control's code where the entry has one, otherwise its words.
//
//     232-0005     the code behind "Event: ", facility and number in capital hexadecimal digits, at least
//     four of
//                  the number; the lookup of error texts reads it in the same way
//     P2318        the letter and the decimal number that the data begins with, as the lookup of classic
//     errors
//                  reads them, so with a blank somewhere behind the number
//     IPO/FEED #   sender, name and data, with "#" for every run of digits in the data
class ErrorKeys {
  public:
    explicit ErrorKeys(FacilityTable facilities);

    enum class Form { Code, Words };

    // Makes `key` the key of an entry with these UTF-8 texts. Reuses the room of `key`.
    Form MakeKey(std::string_view data, std::string_view sender, std::string_view name,
                 std::string& key) const;

    // The code that the data of a message names, which says that an error has been cleared: "N5797", "P12 CE"
    // or the form of coded events. "" when it names none.
    std::string ClearedCode(std::string_view data) const;

  private:
    bool AppendEventCode(std::string_view data, std::string& key) const;

    FacilityTable facilities_;
};
