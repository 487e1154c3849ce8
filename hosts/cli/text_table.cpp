#include "amortix2/cli/text_table.h"

#include <algorithm>
#include <cmath>

#include "amortix2/cli/json_text.h"
#include "amortix2/cli/variant_to_json.h"

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
  AppendNumber(out, rounded ? std::nearbyint(value * 1e6) / 1e6 : value);
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

struct Column {
  std::size_t decimals = 0;
  std::size_t width = 0;
  bool numbers = true;  // texts stand to the left
};

Column Measure(const TextTable& table, std::size_t index) {
  Column column;
  for (std::int64_t row = table.rows.lower; row <= table.rows.upper; ++row) {
    const Variant value = table.cell(row, index);
    column.decimals = std::max(column.decimals, Decimals(value));
    if (!IsNumber(value.Type()) && value.Type() != VariantType::Empty) column.numbers = false;
  }
  column.width = Width(table.header[index]);
  for (std::int64_t row = table.rows.lower; row <= table.rows.upper; ++row) {
    column.width = std::max(column.width, Width(PlainText(table.cell(row, index), column.decimals)));
  }
  return column;
}

void AppendAligned(std::string& out, std::string_view text, std::size_t width, bool right) {
  const std::size_t blanks = width - std::min(width, Width(text));
  if (right) out.append(blanks, ' ');
  out += text;
  if (!right) out.append(blanks, ' ');
}

void EndLine(std::string& out) {
  out.erase(out.find_last_not_of(' ') + 1);
  out += '\n';
}

}  // namespace

std::size_t Decimals(const Variant& value) {
  return IsNumber(value.Type()) ? DecimalsOf(PlainText(value)) : 0;
}

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
      AppendVariant(text, value, JsonForm::Plain);
      if (IsNumber(value.Type())) Pad(text, decimals);
  }
  return text;
}

void AppendTable(std::string& out, const TextTable& table) {
  std::vector<Column> columns;
  for (std::size_t i = 0; i < table.header.size(); ++i) columns.push_back(Measure(table, i));
  const std::size_t labels =
      std::max(std::to_string(table.rows.lower).size(), std::to_string(table.rows.upper).size());

  const auto appendLine = [&](const std::string& label, const auto& text) {
    if (table.rowNumbers) AppendAligned(out, label, labels, true);
    for (std::size_t i = 0; i < columns.size(); ++i) {
      out += "  ";
      AppendAligned(out, text(i), columns[i].width, columns[i].numbers);
    }
    EndLine(out);
  };
  if (std::ranges::any_of(table.header, [](const std::string& name) { return !name.empty(); })) {
    appendLine("", [&](std::size_t i) { return table.header[i]; });
  }
  for (std::int64_t row = table.rows.lower; row <= table.rows.upper; ++row) {
    appendLine(std::to_string(row),
               [&](std::size_t i) { return PlainText(table.cell(row, i), columns[i].decimals); });
  }
}

}  // namespace amortix2::cli
