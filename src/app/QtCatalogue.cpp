// SPDX-License-Identifier: MIT
#include "app/QtCatalogue.h"

#include <QCoreApplication>
#include <QLibraryInfo>

void QtCatalogue::SetLanguage(Language language) {
    if (language.IsGerman() == installed_)
        return;
    if (installed_) {
        QCoreApplication::removeTranslator(&german_);
        installed_ = false;
        return;
    }
    if (german_.isEmpty())
        (void)german_.load("qtbase_de", QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    installed_ = !german_.isEmpty() && QCoreApplication::installTranslator(&german_);
}
