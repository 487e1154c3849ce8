#include "amortix2/cli/text_table.h"

#include <algorithm>
#include <cmath>

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

std::size_t Decimals(const Variant& value) {
  return IsNumber(value.Type()) ? DecimalsOf(PlainText(value)) : 0;
}

/// Appends a cell to each row, the first of which is the header.
void AddColumn(std::vector<std::vector<TextCell>>& rows, const TextTable& table, std::size_t column) {
  std::size_t decimals = 0;
  Align align = Align::Right;
  for (std::int64_t row = table.rows.lower; row <= table.rows.upper; ++row) {
    const Variant value = table.cell(row, column);
    decimals = std::max(decimals, Decimals(value));
    if (!IsNumber(value.Type()) && value.Type() != VariantType::Empty) align = Align::Left;
  }
  rows.front().push_back({table.header[column], align});
  for (std::int64_t row = table.rows.lower; row <= table.rows.upper; ++row) {
    auto& cells = rows[static_cast<std::size_t>(row - table.rows.lower) + 1];
    cells.push_back({PlainText(table.cell(row, column), decimals), align});
  }
}

}  // namespace

std::string PlainText(const Variant& value, std::size_t decimals) {
  std::string text;
  switch (value.Type()) {
    case VariantType::Empty:
    case VariantType::Missing:
      break;
    case VariantType::Null:
      text = "Null";
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

void AppendTable(std::string& out, const TextTable& table) {
  std::vector<std::vector<TextCell>> rows{{{}}};
  for (std::int64_t row = table.rows.lower; row <= table.rows.upper; ++row) {
    rows.push_back({{std::to_string(row), Align::Right}});
  }
  for (std::size_t column = 0; column < table.header.size(); ++column) AddColumn(rows, table, column);
  if (std::ranges::all_of(table.header, &std::string::empty)) rows.erase(rows.begin());
  AppendRows(out, rows);
}

}  // namespace amortix2::cli
