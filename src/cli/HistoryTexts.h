// SPDX-License-Identifier: MIT
#pragma once

#include "cli/HistoryOptions.h"
#include "cli/RecordWriter.h"
#include "history/ErrorKey.h"
#include "history/ReadableTexts.h"
#include "logbook/Stamp.h"

#include <chrono>
#include <optional>
#include <string>

// Values of the machine's history as records have them.

Record IsoOrNull(const std::optional<Stamp>& stamp);
Record TextOrNull(const std::optional<std::string>& text);
Record SecondsOrNull(const std::optional<std::chrono::milliseconds>& time);

// The keys of errors with the facilities of the language files. Reports a mistake in their table.
ErrorKeys ReadErrorKeys(const HistoryOptions& options);
