// SPDX-License-Identifier: MIT
#pragma once

#include "rows/CsvLine.h"

#include <nlohmann/json.hpp>

#include <chrono>
#include <cstddef>
#include <functional>
#include <ostream>

// What a command of the machine's history prints as one line: names and values, in the order of the fields. A
// value is a text (UTF-8), a number, true or false, null, or an object of such values.
using Record = nlohmann::ordered_json;

// A time in seconds, with at most three decimals.
Record Seconds(std::chrono::milliseconds time);

// Writes `count` records as JSON Lines or as CSV; `record` gives one of them. In CSV null is an empty field,
// and the values of an object are fields named "object_value". `names` has the names of all fields, an
// object's, too; its values do not count.
void WriteRecords(std::size_t count, const std::function<Record(std::size_t)>& record, const Record& names,
                  const RowForm& form, std::ostream& stream);
