#pragma once

// What a call left in one of its results as a table with titles, whatever it is (a table, a list, records, a
// single value), for the readable answer and for CSV. Refers to the value and to what the call was given.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "amortix2/component/call_values.h"
#include "amortix2/json/execution.h"

namespace amortix2::json {

struct ResultTable {
  std::string corner;                  ///< above the rows' titles
  std::vector<std::string> columns;    ///< their titles, or indices
  std::vector<std::string> rowTitles;  ///< one a row; empty where rows have indices alone
  Bounds rows{1, 0};
  std::function<Variant(std::int64_t row, std::size_t column)> cell;
  std::function<Unit(std::int64_t row, std::size_t column)> unit;
};

/// Row 0 and column 0 of an array are often unused; what the description does not speak of and is empty there
/// is left out.
ResultTable TableOf(const Inputs& inputs, const ParameterInfo& parameter, const Array& array);

/// A line for each record.
ResultTable TableOf(const TypeInfo& records, const void* value);

/// The result of this name ("return" too) as CSV: a header of titles, then numbers rounded to six
/// decimals and without marks for thousands. Raises RequestError for a record, which is no table.
std::string ResultAsCsv(const Execution& execution, std::string_view name);

}  // namespace amortix2::json
