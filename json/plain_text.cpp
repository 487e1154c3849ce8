#include "amortix2/json/plain_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <utility>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/number_format.h"
#include "amortix2/json/json_text.h"
#include "amortix2/json/variant_writer.h"

namespace amortix2::json {
namespace {

/// A double to six decimals at most: enough for any amount or rate, and too few for the noise that binary
/// fractions leave in differences. Small numbers keep their digits.
void AppendRounded(std::string& out, double value) {
  constexpr double kSmall = 1e-3;
  constexpr double kLarge = 1e9;
  const double size = std::abs(value);
  const bool rounded = size >= kSmall && size < kLarge;
  AppendNumber(out, rounded ? std::nearbyint(value * 1e6) / 1e6 : value);
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
  DropMinusOfZero(text);
  return text;
}

}  // namespace

bool IsNumber(VariantType type) noexcept {
  return type >= VariantType::Byte && type <= VariantType::Currency;
}

std::size_t DecimalsOf(std::string_view number) noexcept {
  const std::size_t point = number.find('.');
  if (point == std::string_view::npos || number.find('e') != std::string_view::npos) return 0;
  return number.size() - point - 1;
}

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
      AppendVariant(text, value, Form::Plain);
      if (IsNumber(value.Type())) Pad(text, decimals);
  }
  return text;
}

}  // namespace amortix2::json
