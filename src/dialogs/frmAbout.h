// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/FittedDialog.h"
#include "settings/Language.h"

#include <string>
#include <string_view>
#include <vector>

class QLabel;
class QPlainTextEdit;
class QPushButton;

// A library that the program uses, as the about box shows it.
struct LibraryVersion {
    std::string Name;
    std::string Version; // "" = not known
    std::string Licence;
};

// The numbers of a version without leading zeros, joined by ".": "2.01.0100" is 2.1.100. A part that is no
// number counts as 0.
std::string VersionText(std::string_view version);

// The about box: the program's purpose, version and licence, and the libraries in it.
class frmAbout : public FittedDialog {
    Q_OBJECT

  public:
    // `version` is the program's, such as "1.2.3". The icon is that of the parent's window, or else of the
    // application.
    frmAbout(Language language, std::string_view version, const std::vector<LibraryVersion>& libraries,
             QWidget* parent = nullptr);

  private:
    void LoadLanguage(std::string_view version, const std::vector<LibraryVersion>& libraries);
    void FitToTexts();

    Language language_;
    QLabel* imgIcon;
    QLabel* lblDesignation;
    QLabel* lblVersionType;
    QLabel* lblVersion;
    QLabel* lblLicence;
    QPlainTextEdit* tbLicence;
    QLabel* lblLibraries;
    QPlainTextEdit* tbLibraries;
    QPushButton* cmdOK;
};
