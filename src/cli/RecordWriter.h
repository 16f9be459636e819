// SPDX-License-Identifier: MIT
#pragma once

#include "cli/CsvLine.h"

#include <nlohmann/json.hpp>

#include <chrono>
#include <ostream>
#include <vector>

// What a command of the machine's history prints as one line: names and values, in the order of the fields. A
// value is a text (UTF-8), a number, true or false, null, or an object of such values.
using Record = nlohmann::ordered_json;

// A time in seconds, with at most three decimals.
Record Seconds(std::chrono::milliseconds time);

// Writes records as JSON Lines or as CSV. In CSV null is an empty field, and the values of an object are
// fields named "object_value". `names` has the names of all fields, an object's, too; its values do not
// count.
void WriteRecords(const std::vector<Record>& records, const Record& names, const RowForm& form,
                  std::ostream& stream);
