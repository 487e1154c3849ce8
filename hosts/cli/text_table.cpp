#include "amortix2/cli/text_table.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <utility>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/json/json_text.h"
#include "amortix2/json/variant_writer.h"

namespace amortix2::cli {
namespace {

bool IsNumber(VariantType type) noexcept {
  return type >= VariantType::Byte && type <= VariantType::Currency;
}

/// Characters, not bytes.
std::size_t Width(std::string_view text) noexcept {
  return static_cast<std::size_t>(
      std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

/// A double to six decimals at most: enough for any amount or rate, and too few for the noise that binary
/// fractions leave in differences. Small numbers keep their digits.
void AppendRounded(std::string& out, double value) {
  constexpr double kSmall = 1e-3;
  constexpr double kLarge = 1e9;
  const double size = std::abs(value);
  const bool rounded = size >= kSmall && size < kLarge;
  json::AppendNumber(out, rounded ? std::nearbyint(value * 1e6) / 1e6 : value);
}

/// The decimals of a number's text; nothing for "1e+20", which is left as it is.
std::size_t DecimalsOf(std::string_view number) noexcept {
  const std::size_t point = number.find('.');
  if (point == std::string_view::npos || number.find('e') != std::string_view::npos) return 0;
  return number.size() - point - 1;
}

void Pad(std::string& number, std::size_t decimals) {
  if (number.find('e') != std::string::npos || decimals == 0) return;
  if (number.find('.') == std::string::npos) number += '.';
  number.append(decimals - std::min(decimals, DecimalsOf(number)), '0');
}

/// The decimals of a unit's numbers; nothing where they have as many as they need.
std::optional<int> DecimalsOf(Unit unit) noexcept {
  switch (unit) {
    case Unit::Currency:
    case Unit::MonthlyCurrency:
      return 2;
    case Unit::Percent:
    case Unit::AnnualPercent:
    case Unit::PercentagePoints:
      return 3;
    default:
      return std::nullopt;
  }
}

/// Nothing for a number so large that its decimals say nothing.
std::optional<std::string> Fixed(double value, int decimals) {
  constexpr double kLarge = 1e15;
  if (!(std::abs(value) < kLarge)) return std::nullopt;
  std::array<char, 32> digits;
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, decimals)
          .ptr;
  std::string text(digits.data(), end);
  if (text.find_first_of("123456789") == std::string::npos && text.starts_with('-')) text.erase(0, 1);
  return text;
}

std::size_t Decimals(const Variant& value) {
  return IsNumber(value.Type()) ? DecimalsOf(PlainText(value)) : 0;
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
void AddColumn(std::vector<std::vector<TextCell>>& lines, const ResultTable& table, std::size_t column,
               const std::vector<ShownRow>& shown) {
  std::size_t decimals = 0;
  Align align = Align::Right;
  for (const ShownRow& row : shown) {
    if (!row) continue;
    const Variant value = table.cell(*row, column);
    decimals = std::max(decimals, Decimals(value));
    if (!IsNumber(value.Type()) && IsGiven(value)) align = Align::Left;
  }
  lines.front().push_back({table.columns[column], align});
  for (std::size_t i = 0; i < shown.size(); ++i) {
    if (!shown[i]) continue;
    const Unit unit = table.unit(*shown[i], column);
    // Where units differ by the row, each number has the decimals of its own.
    const bool isPlain = unit == Unit::None;
    lines[i + 1].push_back({PlainText(table.cell(*shown[i], column), unit, isPlain ? decimals : 0), align});
  }
}

}  // namespace

std::string PlainText(const Variant& value, Unit unit, std::size_t decimals) {
  std::string text;
  if (const auto fixed = DecimalsOf(unit); fixed && IsNumber(value.Type())) {
    if (auto number = Fixed(NumericOrZero(value), *fixed)) return std::move(*number);
  }
  switch (value.Type()) {
    case VariantType::Empty:
    case VariantType::Missing:
    case VariantType::Null:
      break;
    case VariantType::Boolean:
      text = value.GetBoolean() ? "True" : "False";
      break;
    case VariantType::Date:
      text = View(FormatIso(value.GetDate()));
      break;
    case VariantType::String:
      text = value.GetString();
      std::ranges::replace_if(
          text, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }, ' ');
      break;
    case VariantType::Double:
      AppendRounded(text, value.GetDouble());
      Pad(text, decimals);
      break;
    default:
      json::AppendVariant(text, value, json::Form::Plain);
      if (IsNumber(value.Type())) Pad(text, decimals);
  }
  return text;
}

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

void AppendTable(std::string& out, const ResultTable& table, Rows rows) {
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
