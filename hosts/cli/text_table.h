#pragma once

// Tables for a person to read, aligned by blanks.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/automation/variant.h"

namespace amortix2::cli {

enum class Align {
  Left,
  Right,
  Free,  ///< left, but however long it is, its column is not wider for it
};

struct TextCell {
  std::string text;
  Align align = Align::Left;
};

/// Appends rows, one a line, in columns that stand two blanks apart.
void AppendRows(std::string& out, const std::vector<std::vector<TextCell>>& rows);

struct TextTable {
  std::vector<std::string> header;  ///< one per column; no header line when all are empty
  Bounds rows;
  std::function<Variant(std::int64_t row, std::size_t column)> cell;
};

/// Appends the rows behind their indices. A column of numbers stands to the right, with equally many
/// decimals, any other to the left.
void AppendTable(std::string& out, const TextTable& table);

/// A number, date, text or flag as a person reads it, on one line; numbers with at least so many decimals,
/// and rounded to six.
std::string PlainText(const Variant& value, std::size_t decimals = 0);

}  // namespace amortix2::cli
