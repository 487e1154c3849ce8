#include "amortix2/cli/text_table.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/json/plain_text.h"

namespace amortix2::cli {
namespace {

/// Characters, not bytes.
std::size_t Width(std::string_view text) noexcept {
  return static_cast<std::size_t>(
      std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::size_t Decimals(const Variant& value) {
  return json::IsNumber(value.Type()) ? json::DecimalsOf(json::PlainText(value)) : 0;
}

/// The rows that are shown; nothing stands for those between.
std::vector<std::optional<std::int64_t>> ShownRows(Bounds bounds, Rows rows) {
  constexpr std::int64_t kLong = 36;
  constexpr std::int64_t kFirst = 13;  // a year's, and the row before
  constexpr std::int64_t kLast = 12;
  std::vector<std::optional<std::int64_t>> shown;
  const bool folds = rows == Rows::Folded && bounds.Count() > kLong;
  for (std::int64_t row = bounds.lower; row <= bounds.upper; ++row) {
    if (folds && row == bounds.lower + kFirst) {
      shown.emplace_back(std::nullopt);
      row = bounds.upper - kLast + 1;
    }
    shown.emplace_back(row);
  }
  return shown;
}

using ShownRow = std::optional<std::int64_t>;

/// How a column's cells stand.
struct Column {
  Align align = Align::Right;
  std::size_t decimals = 0;
};

Column LookAt(const json::ResultTable& table, std::size_t column, const std::vector<ShownRow>& shown) {
  Column look;
  for (const ShownRow& row : shown) {
    if (!row) continue;
    const Variant value = table.cell(*row, column);
    look.decimals = std::max(look.decimals, Decimals(value));
    if (!json::IsNumber(value.Type()) && IsGiven(value)) look.align = Align::Left;
  }
  return look;
}

TextCell Head(const json::ResultTable& table, std::int64_t row) {
  if (table.rowTitles.empty()) return {std::to_string(row), Align::Right};
  return {table.rowTitles[static_cast<std::size_t>(row - table.rows.lower)]};
}

std::vector<TextCell> TextsOf(const json::ResultTable& table, const std::vector<Column>& columns,
                              const ShownRow& row) {
  if (!row) return {{"..."}};
  std::vector<TextCell> cells{Head(table, *row)};
  for (std::size_t column = 0; column < columns.size(); ++column) {
    const Unit unit = table.unit(*row, column);
    // Where units differ by the row, each number has the decimals of its own.
    const std::size_t decimals = unit == Unit::None ? columns[column].decimals : 0;
    cells.push_back({json::PlainText(table.cell(*row, column), unit, decimals), columns[column].align});
  }
  return cells;
}

std::vector<TextCell> TitlesOf(const json::ResultTable& table, const std::vector<Column>& columns) {
  std::vector<TextCell> cells(1);
  for (std::size_t column = 0; column < columns.size(); ++column) {
    cells.push_back({table.columns[column], columns[column].align});
  }
  return cells;
}

}  // namespace

void AppendRows(std::string& out, std::size_t count, const RowAt& rowAt) {
  std::vector<std::size_t> widths;
  for (std::size_t row = 0; row < count; ++row) {
    const std::vector<TextCell> cells = rowAt(row);
    widths.resize(std::max(widths.size(), cells.size()));
    for (std::size_t i = 0; i < cells.size(); ++i) {
      if (cells[i].align != Align::Free) widths[i] = std::max(widths[i], Width(cells[i].text));
    }
  }
  for (std::size_t row = 0; row < count; ++row) {
    const std::vector<TextCell> cells = rowAt(row);
    for (std::size_t i = 0; i < cells.size(); ++i) {
      const auto& [text, align] = cells[i];
      const std::size_t blanks = widths[i] - std::min(widths[i], Width(text));
      if (i > 0) out += "  ";
      if (align == Align::Right) out.append(blanks, ' ');
      out += text;
      if (align != Align::Right) out.append(blanks, ' ');
    }
    out.erase(out.find_last_not_of(' ') + 1);
    out += '\n';
  }
}

void AppendTable(std::string& out, const json::ResultTable& table, Rows rows) {
  const std::vector<ShownRow> shown = ShownRows(table.rows, rows);
  std::vector<Column> columns;
  for (std::size_t column = 0; column < table.columns.size(); ++column) {
    columns.push_back(LookAt(table, column, shown));
  }
  const std::size_t titles = std::ranges::all_of(table.columns, &std::string::empty) ? 0 : 1;
  AppendRows(out, titles + shown.size(), [&](std::size_t row) {
    return row < titles ? TitlesOf(table, columns) : TextsOf(table, columns, shown[row - titles]);
  });
}

}  // namespace amortix2::cli
