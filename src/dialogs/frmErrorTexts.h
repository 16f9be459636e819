// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/FittedDialog.h"
#include "eventinfo/TakeOverErrorTexts.h"
#include "settings/Language.h"

#include <functional>
#include <string>

class DialogList;
class ElidedLabel;
class FieldNote;
class QLabel;
class QPushButton;

// Lets the person choose a folder or an archive with error texts of the control, and shows what taking them
// over into the person's own folder would do, before it is done.
class frmErrorTexts : public FittedDialog {
    Q_OBJECT

  public:
    // Searches a folder or an archive.
    using Search = std::function<ErrorTextPlan(const std::string& place)>;

    // `ownFolder` is shown as the place where the files go. The dialogs for a folder and for an archive open
    // in `folder` first.
    frmErrorTexts(Language language, const std::string& ownFolder, std::string folder, Search search,
                  QWidget* parent = nullptr);

    // Shows what was found in a place.
    void ShowFound(const std::string& place, const ErrorTextPlan& plan);

    // The folder that was shown last, with its last separator.
    const std::string& Folder() const { return folder_; }

  private:
    void LoadLanguage();
    void Choose(bool archive);

    Language language_;
    std::string folder_;
    Search search_;
    QLabel* lblWhere;
    QPushButton* cmdFolder;
    QPushButton* cmdArchive;
    ElidedLabel* lblPlace;
    QLabel* lblFound;
    DialogList* lvFound;
    FieldNote* lblNote;
    ElidedLabel* lblOwnFolder;
    QPushButton* cmdOK;
};
