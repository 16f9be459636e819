// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

class QDialog;
class QDialogButtonBox;

// Makes a dialog's OK (the default) and Cancel, named cmdOK and cmdCancel, which accept and reject it.
QDialogButtonBox* OkAndCancel(Language language, QDialog& dialog);
