// SPDX-License-Identifier: MIT
// The help on Windows: calls of the system's viewer.
#include "dialogs/HTMLHelp.h"

#include <QWidget>

#include <windows.h>

#include <htmlhelp.h>

// The header's name for HtmlHelpA or HtmlHelpW is also that of this class.
#undef HtmlHelp

// The viewer expects the size of its structure for the program's own word length.
static_assert(sizeof(HH_FTS_QUERY) == (sizeof(void*) == 4 ? 32 : 40));

struct HtmlHelp::Window {};

HtmlHelp::HtmlHelp(QWidget* owner, std::filesystem::path) : owner_(owner) {}
HtmlHelp::~HtmlHelp() { CloseAll(); }

bool HtmlHelp::DisplayToc(const std::filesystem::path& file, Language language) {
    return Display(file, language, Page::Contents);
}

bool HtmlHelp::DisplaySearch(const std::filesystem::path& file, Language language) {
    return Display(file, language, Page::Search);
}

void HtmlHelp::CloseAll() { HtmlHelpA(nullptr, "", HH_CLOSE_ALL, 0); }

bool HtmlHelp::Display(const std::filesystem::path& file, Language, Page page) {
    const auto window = reinterpret_cast<HWND>(owner_->winId());
    if (page == Page::Contents)
        return HtmlHelpA(window, file.string().c_str(), HH_DISPLAY_TOC, 0) != nullptr;
    // Its texts are plain, as the flag says, even when UNICODE makes the header declare them as wide.
    HH_FTS_QUERY query{};
    query.cbStruct = sizeof query;
    query.fUniCodeStrings = FALSE;
    query.pszSearchQuery = reinterpret_cast<LPCTSTR>("");
    query.iProximity = 0;
    query.fStemmedSearch = FALSE;
    query.fTitleOnly = FALSE;
    query.fExecute = FALSE;
    query.pszWindow = reinterpret_cast<LPCTSTR>("");
    return HtmlHelpA(window, file.string().c_str(), HH_DISPLAY_SEARCH, reinterpret_cast<DWORD_PTR>(&query)) !=
           nullptr;
}
