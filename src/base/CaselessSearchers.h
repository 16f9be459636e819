// SPDX-License-Identifier: MIT
#pragma once

#include "base/TextSearcher.h"

#include <vector>

// Searchers for a text without regard to case, `lower` being its lower-case form (UTF-8, not empty). They
// find candidates: wherever the text stands in some mixture of cases, one of them finds a place within the
// occurrence; they may find other places, too, so what they find has to be looked at.
//
// One searcher is for the characters' usual forms, which take as many bytes as the lower-case one. A
// character that also has a form of another length has a searcher for that form alone: the Kelvin sign for k,
// the dotted capital I for i. Such forms are rare in any text.
std::vector<TextSearcher> CaselessSearchers(std::string_view lower);
