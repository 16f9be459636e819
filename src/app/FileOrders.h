// SPDX-License-Identifier: MIT
#pragma once

#include "app/Commands.h"
#include "settings/Language.h"

struct TakeOverResult;
class LogbookDocument;
class QWidget;
class Registry;
class WindowProgress;
class WindowUser;

// The orders that write files for use elsewhere or later: the list for other programs, the control's error
// texts for this one. They show their progress in a dialog, by which the person can end them; closing the
// window ends them, too.
class FileOrders {
  public:
    struct Parts {
        LogbookDocument& Document;
        Registry& Settings;
        WindowUser& User;
        const WindowProgress& Progress;
        QWidget& Window;
    };

    // The parts must outlive this object.
    explicit FileOrders(Parts parts) : parts_(parts) {}

    void SetLanguage(Language language) { language_ = language; }

    // Carries out a command; false when it is none of these.
    bool Run(Command command);

  private:
    void ExportList();
    void TakeOverErrorTexts();
    void TellResult(const TakeOverResult& result);

    Parts parts_;
    Language language_;
};
