// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <filesystem>
#include <memory>

class QWidget;

// Shows help files. There is at most one help window. It is not modal and stands on its own, but this
// object's end closes it. The next window has the place, the sizes and the text size of the one before.
//
// Where the system has a viewer of compiled HTML help (Windows), that one shows them, elsewhere frmHelp.
class HtmlHelp {
  public:
    // The owner is the main window; it must outlive this. `reader` is the program that reads the files for
    // frmHelp (HelpReader).
    HtmlHelp(QWidget* owner, std::filesystem::path reader);
    ~HtmlHelp();
    HtmlHelp(const HtmlHelp&) = delete;
    HtmlHelp& operator=(const HtmlHelp&) = delete;

    // Brings a help file to the front, with its contents or its search page. `language` is that of the
    // window's own texts. False when the file is missing or damaged; an open help window then stays as it
    // was. A file that is already shown keeps its page.
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
    std::unique_ptr<Window> window_; // the state of frmHelp
};
