// SPDX-License-Identifier: MIT
#pragma once

#include "cli/HistoryOptions.h"
#include "cli/RecordWriter.h"
#include "history/ErrorKey.h"
#include "logbook/Stamp.h"

#include <chrono>
#include <optional>
#include <string>

// Values of the machine's history as records and texts have them.

Record IsoOrNull(const std::optional<Stamp>& stamp);
Record TextOrNull(const std::optional<std::string>& text);
Record SecondsOrNull(const std::optional<std::chrono::milliseconds>& time);

// "2010-01-04 12:45:02", with milliseconds where the stamp has some.
std::string ReadableText(const Stamp& stamp);

// "26:03:07": hours, minutes, seconds; "-" for no time.
std::string ClockText(const std::optional<std::chrono::milliseconds>& time);

// A number with so many decimals, behind a comma in German.
std::string DecimalText(double number, int decimals, Language language);

// The keys of errors with the facilities of the language files. Reports a mistake in their table.
ErrorKeys ReadErrorKeys(const HistoryOptions& options);
