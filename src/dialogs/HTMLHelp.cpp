// SPDX-License-Identifier: MIT
#include "dialogs/HTMLHelp.h"

#include "dialogs/frmHelp.h"

#include <QIcon>

struct HtmlHelp::Window {
    frmHelp Form;
    std::filesystem::path File; // the one that is shown
};

HtmlHelp::HtmlHelp(QWidget* owner) : owner_(owner) {}
HtmlHelp::~HtmlHelp() = default;

bool HtmlHelp::DisplayToc(const std::filesystem::path& file, Language language) {
    return Display(file, language, Page::Contents);
}

bool HtmlHelp::DisplaySearch(const std::filesystem::path& file, Language language) {
    return Display(file, language, Page::Search);
}

void HtmlHelp::CloseAll() { window_.reset(); }

bool HtmlHelp::Display(const std::filesystem::path& file, Language language, Page page) {
    std::optional<HelpBook> book = OpenHelpBook(file);
    if (!book)
        return false;
    if (!window_ || !window_->Form.isVisible() || file != window_->File) {
        window_.reset(new Window{{std::move(*book), language}, file});
        window_->Form.setWindowIcon(owner_->windowIcon());
    }
    frmHelp& form = window_->Form;
    if (page == Page::Contents)
        form.ShowContents();
    else
        form.ShowSearch();
    form.setWindowState(form.windowState() & ~Qt::WindowMinimized);
    form.show();
    form.raise();
    form.activateWindow();
    return true;
}
