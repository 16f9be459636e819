// SPDX-License-Identifier: MIT
#pragma once

#include "list/LogbookModel.h"

#include <utility>

// Puts these rows into the model's list, which is `list`.
inline void SetRows(LogbookModel& model, LogbookRows& list, LogbookRows rows) {
    model.ChangeRows([&] { list = std::move(rows); });
}
