// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Texts.h"

#include <optional>
#include <span>
#include <string>

// Why a list may not be written to this file: it would replace one of the files that the list is made from,
// or an existing file of comments, filters or an own archive, also at the end of links. Nothing when it may.
// Sources that are "" do not count.
std::optional<TextId> RefusalOfListPlace(const std::string& file, std::span<const std::string> sources);
