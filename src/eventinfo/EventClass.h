// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// The meaning of a class such as "Ev_class_2": the class, then the control's reaction. Always German,
// whatever the dialog language, because service people know the classes by these words. "???" follows an
// unknown class, also one in another case.
std::string EventClassText(std::string_view className);
