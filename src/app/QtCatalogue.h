// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <QTranslator>

// The texts that Qt itself shows, such as the buttons of message boxes and file dialogs: German when the user
// interface is, English otherwise. Where Qt's catalogue is not installed they stay English.
class QtCatalogue {
  public:
    QtCatalogue() = default;
    ~QtCatalogue() { SetLanguage({}); }
    QtCatalogue(const QtCatalogue&) = delete;
    QtCatalogue& operator=(const QtCatalogue&) = delete;

    void SetLanguage(Language language);

  private:
    QTranslator german_;
    bool installed_ = false;
};
