// SPDX-License-Identifier: MIT
#pragma once

#include "sources/UserInterface.h"

#include <functional>
#include <optional>
#include <string>

class Registry;

// Before edited comments go, because another logbook takes their place: the person is asked whether to save
// them. False when they must stay: the person cancelled, or saving did not succeed.
bool MayLeaveComments(bool commentsEdited, UserInterface& user, const std::function<bool()>& zipLogbook);

// Asks for the source to open and keeps its folder and path in the settings. Nothing on cancel, with nothing
// kept. The dialog begins in the folder of the last one, at first in that of the program.
std::optional<std::string> ReadAndShowLogbookName(Registry& registry, UserInterface& user,
                                                  const std::string& programFolder);
