// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <optional>
#include <string>

class QWidget;

// Let the person choose a filter file (*.fil) to write or to read. The dialog opens in `folder`, which
// becomes the folder of the chosen file, with its last separator. Nothing, and the folder unchanged, after
// Cancel.
std::optional<std::string> FilterFileToSave(std::string& folder, Language language, QWidget* parent);
std::optional<std::string> FilterFileToOpen(std::string& folder, Language language, QWidget* parent);
