// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

class QDialog;
class QDialogButtonBox;

// OK (the default) and Cancel of a dialog, which accept and reject it; named cmdOK and cmdCancel.
QDialogButtonBox* OkAndCancel(Language language, QDialog& dialog);
