// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <optional>
#include <string>

class QWidget;

// Let the person choose a filter file (*.fil) to write or to read. The dialog opens in `folder` and sets it
// to the folder of the chosen file, with its last separator. After Cancel they return nothing and leave
// `folder` unchanged.
std::optional<std::string> FilterFileToSave(std::string& folder, Language language, QWidget* parent);
std::optional<std::string> FilterFileToOpen(std::string& folder, Language language, QWidget* parent);
