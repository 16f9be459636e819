// SPDX-License-Identifier: MIT
#include "dialogs/HTMLHelp.h"

#include "base/SystemHelpViewer.h"
#include "dialogs/frmHelp.h"

#include <QIcon>
#include <QScreen>

struct HtmlHelp::Window {
    std::unique_ptr<frmHelp> Form; // null when none was opened
    std::filesystem::path File;    // the one that is shown
    HelpWindowLook Look;           // of the one that was closed

    void Close() {
        if (Form)
            Look = Form->Look();
        Form.reset();
    }
};

HtmlHelp::HtmlHelp(QWidget* owner, std::filesystem::path reader)
    : owner_(owner), reader_(std::move(reader)), window_(std::make_unique<Window>()) {}
HtmlHelp::~HtmlHelp() = default;

bool HtmlHelp::DisplayToc(const std::filesystem::path& file, Language language) {
    return Display(file, language, Page::Contents);
}

bool HtmlHelp::DisplaySearch(const std::filesystem::path& file, Language language) {
    return Display(file, language, Page::Search);
}

void HtmlHelp::CloseAll() {
    CloseSystemHelp();
    window_->Close();
}

bool HtmlHelp::Display(const std::filesystem::path& file, Language language, Page page) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error))
        return false;
    const std::uintptr_t owner = owner_->effectiveWinId();
    if (page == Page::Contents ? ShowHelpContents(owner, file) : ShowHelpSearch(owner, file))
        return true;
    std::optional<HelpBook> book = OpenHelpBook(file, reader_);
    if (!book)
        return false;
    if (!window_->Form || !window_->Form->isVisible() || file != window_->File) {
        window_->Close();
        window_->Form = std::make_unique<frmHelp>(std::move(*book), language);
        window_->File = file;
        window_->Form->SetLook(window_->Look, *owner_->screen());
        window_->Form->setWindowIcon(owner_->windowIcon());
    }
    frmHelp& form = *window_->Form;
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
