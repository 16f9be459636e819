// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <filesystem>
#include <memory>

class QWidget;

// Shows help files. There is one help window at most; it is no modal window and stands on its own, but is
// closed with this object. The next one has the place, the sizes and the size of the text of the one before.
//
// On Windows the system's viewer of compiled HTML help shows them (HTMLHelpWindows.cpp), elsewhere frmHelp.
class HtmlHelp {
  public:
    // The owner is the main window; it must outlive this. `reader` is the program that reads the files
    // (HelpReader), which the system's viewer does not need.
    HtmlHelp(QWidget* owner, std::filesystem::path reader);
    ~HtmlHelp();
    HtmlHelp(const HtmlHelp&) = delete;
    HtmlHelp& operator=(const HtmlHelp&) = delete;

    // Brings a help file to the front, with its contents or its search page. The language is that of the
    // window's own texts. False when the file is missing or damaged; then a help window that is open stays as
    // it was. A file that is shown already keeps its page.
    bool DisplayToc(const std::filesystem::path& file, Language language);
    bool DisplaySearch(const std::filesystem::path& file, Language language);

    // Closes the help window, if there is one.
    void CloseAll();

  private:
    enum class Page { Contents, Search };
    bool Display(const std::filesystem::path& file, Language language, Page page);

    struct Window;

    QWidget* owner_;
    std::filesystem::path reader_;
    std::unique_ptr<Window> window_; // what is known of the help window; null on Windows
};
