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

/// Appends a cell to each row, the first of which is the header.
void AddColumn(std::vector<std::vector<TextCell>>& lines, const json::ResultTable& table, std::size_t column,
               const std::vector<ShownRow>& shown) {
  std::size_t decimals = 0;
  Align align = Align::Right;
  for (const ShownRow& row : shown) {
    if (!row) continue;
    const Variant value = table.cell(*row, column);
    decimals = std::max(decimals, Decimals(value));
    if (!json::IsNumber(value.Type()) && IsGiven(value)) align = Align::Left;
  }
  lines.front().push_back({table.columns[column], align});
  for (std::size_t i = 0; i < shown.size(); ++i) {
    if (!shown[i]) continue;
    const Unit unit = table.unit(*shown[i], column);
    // Where units differ by the row, each number has the decimals of its own.
    const bool isPlain = unit == Unit::None;
    lines[i + 1].push_back(
        {json::PlainText(table.cell(*shown[i], column), unit, isPlain ? decimals : 0), align});
  }
}

}  // namespace

void AppendRows(std::string& out, const std::vector<std::vector<TextCell>>& rows) {
  std::vector<std::size_t> widths;
  for (const auto& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (row[i].align != Align::Free) widths[i] = std::max(widths[i], Width(row[i].text));
    }
  }
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      const auto& [text, align] = row[i];
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
  std::vector<std::vector<TextCell>> lines{{{}}};
  for (const ShownRow& row : shown) {
    if (!row) {
      lines.push_back({{"..."}});
    } else if (table.rowTitles.empty()) {
      lines.push_back({{std::to_string(*row), Align::Right}});
    } else {
      lines.push_back({{table.rowTitles[static_cast<std::size_t>(*row - table.rows.lower)]}});
    }
  }
  for (std::size_t column = 0; column < table.columns.size(); ++column) {
    AddColumn(lines, table, column, shown);
  }
  if (std::ranges::all_of(table.columns, &std::string::empty)) lines.erase(lines.begin());
  AppendRows(out, lines);
}

}  // namespace amortix2::cli
