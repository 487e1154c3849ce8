#pragma once

// Tables for a person to read: columns aligned, numbers to the right and with equally many decimals, texts to
// the left.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/automation/variant.h"

namespace amortix2::cli {

struct TextTable {
  std::vector<std::string> header;  ///< one per column; no header line when all are empty
  Bounds rows;
  bool rowNumbers = true;  ///< each line begins with its row's index
  std::function<Variant(std::int64_t row, std::size_t column)> cell;
};

void AppendTable(std::string& out, const TextTable& table);

/// A number, date, text or flag as a person reads it, on one line; numbers with at least so many decimals,
/// and rounded to six.
std::string PlainText(const Variant& value, std::size_t decimals = 0);

/// How many decimals a number's text has; 0 for anything else.
std::size_t Decimals(const Variant& value);

}  // namespace amortix2::cli
