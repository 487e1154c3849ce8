#pragma once

// Tables for a person to read, aligned by blanks.

#include <string>
#include <vector>

#include "amortix2/automation/variant.h"
#include "amortix2/cli/result_table.h"
#include "amortix2/component/meaning.h"

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

enum class Rows {
  All,
  Folded,  ///< of a long table the beginning and the end
};

/// Appends the rows behind their titles or indices, and above them the columns' titles unless all are empty.
/// A column of numbers stands to the right, any other to the left.
void AppendTable(std::string& out, const ResultTable& table, Rows rows);

/// A number, date, text or flag as a person reads it, on one line: money with two decimals, rates with three,
/// other numbers with at least so many decimals and at most six.
std::string PlainText(const Variant& value, Unit unit = Unit::None, std::size_t decimals = 0);

}  // namespace amortix2::cli
