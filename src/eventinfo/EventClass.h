// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// What a class such as "Ev_class_2" means: the class, then what the control does. Always German, whatever the
// dialog language; service people know the classes by these words. An unknown class, also one written in
// another case, is followed by "???".
std::string EventClassText(std::string_view className);
