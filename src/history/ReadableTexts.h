// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/Stamp.h"
#include "settings/Language.h"

#include <chrono>
#include <optional>
#include <string>

// Times and numbers as a person reads them.

// "2010-01-04 12:45:02", with milliseconds where the stamp has some.
std::string ReadableText(const Stamp& stamp);

// "04.01.2010 08:00:00", as the list of the logbook shows it; with milliseconds where the stamp has them.
std::string LogbookText(const Stamp& stamp);

// "26:03:07": hours, minutes, seconds; "-" for no time.
std::string ClockText(const std::optional<std::chrono::milliseconds>& time);

// A number with so many decimals, behind a comma in German.
std::string DecimalText(double number, int decimals, Language language);
