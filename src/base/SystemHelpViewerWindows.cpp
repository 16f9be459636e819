// SPDX-License-Identifier: MIT
#include "base/SystemHelpViewer.h"

#include <string>

#include <windows.h>

#include <htmlhelp.h>
#include <objbase.h>

namespace {

using Call = HWND(WINAPI*)(HWND, LPCSTR, UINT, DWORD_PTR);

// Whether the system can show pages. The viewer shows its contents, and empty pages, without that component.
bool ShowsPages() {
    constexpr CLSID HtmlDocument{
        0x25336920, 0x03F9, 0x11CF, {0x8F, 0xD0, 0x00, 0xAA, 0x00, 0x68, 0x6F, 0x13}};
    constexpr IID Unknown{0x00000000, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};
    void* document = nullptr;
    if (FAILED(CoCreateInstance(HtmlDocument, nullptr, CLSCTX_INPROC_SERVER, Unknown, &document)))
        return false;
    static_cast<IUnknown*>(document)->Release();
    return true;
}

// The viewer's one function; null where the system has no viewer. It is loaded when it is first asked for, so
// that the program starts without it, and from the system's folder alone.
Call Viewer() {
    static const Call viewer = [] {
        const HMODULE library =
            ShowsPages() ? LoadLibraryExW(L"hhctrl.ocx", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32) : nullptr;
        return library == nullptr
                   ? nullptr
                   : reinterpret_cast<Call>(reinterpret_cast<void*>(GetProcAddress(library, "HtmlHelpA")));
    }();
    return viewer;
}

// The name in the system's code page; empty when it has letters that are not in there.
std::string PlainName(const std::filesystem::path& file) {
    const std::wstring& name = file.native();
    BOOL isChanged = FALSE;
    const int size = WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, name.data(),
                                         static_cast<int>(name.size()), nullptr, 0, nullptr, &isChanged);
    if (isChanged != FALSE || size <= 0)
        return {};
    std::string plain(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, name.data(), static_cast<int>(name.size()),
                        plain.data(), size, nullptr, nullptr);
    return plain;
}

bool isUsed = false; // by this program

bool Show(std::uintptr_t window, const std::filesystem::path& file, UINT what, DWORD_PTR request) {
    isUsed = true;
    const std::string name = PlainName(file);
    return !name.empty() && Viewer() != nullptr &&
           Viewer()(reinterpret_cast<HWND>(window), name.c_str(), what, request) != nullptr;
}

} // namespace

// The viewer expects the size of its structure for the program's own word length.
static_assert(sizeof(HH_FTS_QUERY) == (sizeof(void*) == 4 ? 32 : 40));

bool ShowHelpContents(std::uintptr_t window, const std::filesystem::path& file) {
    return Show(window, file, HH_DISPLAY_TOC, 0);
}

bool ShowHelpSearch(std::uintptr_t window, const std::filesystem::path& file) {
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
    return Show(window, file, HH_DISPLAY_SEARCH, reinterpret_cast<DWORD_PTR>(&query));
}

void CloseSystemHelp() {
    if (isUsed && Viewer() != nullptr)
        Viewer()(nullptr, "", HH_CLOSE_ALL, 0);
}
