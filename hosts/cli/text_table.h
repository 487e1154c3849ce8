#pragma once

// Tables for a person to read, aligned by blanks.

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "amortix2/json/result_table.h"

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

/// A row's cells. It is asked twice for each row, once for the columns' widths, so that no large table stands
/// in memory as texts.
using RowAt = std::function<std::vector<TextCell>(std::size_t row)>;

/// Appends rows, one a line, in columns that stand two blanks apart.
void AppendRows(std::string& out, std::size_t count, const RowAt& rowAt);

enum class Rows {
  All,
  Folded,  ///< of a long table the beginning and the end
};

/// Appends the rows behind their titles or indices, and above them the columns' titles unless all are empty.
/// A column of numbers stands to the right, any other to the left.
void AppendTable(std::string& out, const json::ResultTable& table, Rows rows);

}  // namespace amortix2::cli
