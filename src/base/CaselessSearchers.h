// SPDX-License-Identifier: MIT
#pragma once

#include "base/TextSearcher.h"

#include <vector>

// Searchers for a text without regard to case; `lower` is its lower-case form (UTF-8, not empty). They find
// candidates: wherever the text stands in any mixture of cases, one searcher finds a place within the
// occurrence. They may find other places, too, so the caller must check each.
//
// One searcher finds the characters' usual forms, which take as many bytes as the lower-case ones. Each form
// of another length has a searcher of its own: the Kelvin sign for k, the dotted capital I for i. Such forms
// are rare in any text.
std::vector<TextSearcher> CaselessSearchers(std::string_view lower);
