#include "amortix2/json/variant_reader.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/text_scanner.h"
#include "amortix2/json/json_text.h"
#include "amortix2/json/request_error.h"
#include "amortix2/json/variant_writer.h"

namespace amortix2::json {
namespace {

[[noreturn]] void RaiseNotOfType(const Tree& tree, VariantType type) {
  std::string text;
  AppendTree(text, tree);
  throw RequestError(std::string(Shortened(text)) + " is no " + std::string(TypeName(type)));
}

template <class Integer>
Integer ToWhole(const Tree& tree, VariantType type) {
  const auto number = NumberOf(tree);
  using Limits = std::numeric_limits<Integer>;
  if (!number || *number != std::trunc(*number) || *number < Limits::min() || *number > Limits::max()) {
    RaiseNotOfType(tree, type);
  }
  return static_cast<Integer>(*number);
}

/// An optional minus sign, digits, and at most four decimals, all of which count: a double would lose some.
std::optional<Currency> ParseCurrency(std::string_view text) {
  constexpr std::size_t kDecimals = 4;
  TextScanner scanner(text);
  const bool negative = scanner.Take('-');
  std::string digits(scanner.TakeWhile(IsDigit));
  if (digits.empty()) return std::nullopt;
  const std::string_view decimals = scanner.Take('.') ? scanner.TakeWhile(IsDigit) : std::string_view{};
  if (decimals.size() > kDecimals || !scanner.AtEnd()) return std::nullopt;
  digits += decimals;
  digits.append(kDecimals - decimals.size(), '0');
  if (negative) digits.insert(0, 1, '-');
  Currency amount;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), amount.scaled);
  return read.ec == std::errc{} ? std::optional(amount) : std::nullopt;
}

Currency ToCurrency(const Tree& tree) {
  constexpr std::int64_t kScale = 10000;
  constexpr double kLimit = 0x1p63;
  if (const std::string* text = TextOf(tree)) {
    if (const auto amount = ParseCurrency(*text)) return *amount;
  } else if (const auto number = NumberOf(tree)) {
    if (std::abs(*number) * kScale < kLimit) {
      // Apart, since a double of so many digits does not hold their product.
      const double whole = std::trunc(*number);
      const double decimals = std::nearbyint((*number - whole) * kScale);
      return {static_cast<std::int64_t>(whole) * kScale + static_cast<std::int64_t>(decimals)};
    }
  }
  RaiseNotOfType(tree, VariantType::Currency);
}

Date ToIsoDate(const Tree& tree) {
  if (const std::string* text = TextOf(tree)) {
    if (const auto date = ParseIsoDate(*text)) return *date;
  }
  RaiseNotOfType(tree, VariantType::Date);
}

/// The value of {"type": type, "value": json}.
Variant ToTyped(const Tree& tree, VariantType type) {
  switch (type) {
    case VariantType::Empty:
      if (tree.is_null()) return {};
      break;
    case VariantType::Null:
      if (tree.is_null()) return kNull;
      break;
    case VariantType::Missing:
      if (tree.is_null()) return kMissing;
      break;
    case VariantType::Boolean:
      if (const bool* boolean = BooleanOf(tree)) return *boolean;
      break;
    case VariantType::Byte:
      return ToWhole<std::uint8_t>(tree, type);
    case VariantType::Integer:
      return ToWhole<std::int16_t>(tree, type);
    case VariantType::Long:
      return ToWhole<std::int32_t>(tree, type);
    case VariantType::Double:
      if (const auto number = NumberOf(tree)) return *number;
      break;
    case VariantType::Currency:
      return ToCurrency(tree);
    case VariantType::Date:
      return ToIsoDate(tree);
    case VariantType::String:
      if (const std::string* text = TextOf(tree)) return std::string_view(*text);
      break;
    case VariantType::Array:
      break;
  }
  RaiseNotOfType(tree, type);
}

bool IsTable(const Items& rows) {
  if (rows.empty() || !ItemsOf(rows.front())) return false;
  return std::ranges::all_of(rows, [width = ItemsOf(rows.front())->size()](const Tree& row) {
    return ItemsOf(row) && ItemsOf(row)->size() == width;
  });
}

Variant ToList(const Items& items, std::int64_t lower) {
  Array array(BoundsFrom(lower, items.size()));
  std::ranges::transform(items, array.Cells().begin(), ToVariant);
  return array;
}

Variant ToTable(const Items& rows, std::int64_t rowLower, std::int64_t columnLower) {
  const std::size_t width = rows.empty() ? 0 : ItemsOf(rows.front())->size();
  Array array(BoundsFrom(rowLower, rows.size()), BoundsFrom(columnLower, width));
  auto cell = array.Cells().begin();
  for (const Tree& row : rows) cell = std::ranges::transform(*ItemsOf(row), cell, ToVariant).out;
  return array;
}

std::int64_t LowerBound(const Tree& tree) {
  if (!IntegerOf(tree)) throw RequestError("\"lower\" is a list of one or two whole numbers");
  return *IntegerOf(tree);
}

Variant ToArray(const Tree* lower, const Tree* values) {
  const Items* items = values ? ItemsOf(*values) : nullptr;
  if (!items) throw RequestError("an array needs its \"values\" as a JSON array");
  if (!lower) return ToVariant(*values);
  const Items* bounds = ItemsOf(*lower);
  if (!bounds || bounds->empty() || bounds->size() > 2) {
    throw RequestError("\"lower\" is a list of one or two whole numbers");
  }
  if (bounds->size() == 1) return ToList(*items, LowerBound(bounds->front()));
  if (!items->empty() && !IsTable(*items)) {
    throw RequestError("with two lower bounds, \"values\" is an array of equally long arrays");
  }
  return ToTable(*items, LowerBound(bounds->front()), LowerBound(bounds->back()));
}

Variant ToTypedObject(const Fields& fields) {
  const auto [typeName, value, lower, values] =
      TakeFields(fields, "a value", {"type", "value", "lower", "values"});
  std::optional<VariantType> type = VariantType::Array;
  if (typeName) type = TextOf(*typeName) ? FindType(*TextOf(*typeName)) : std::nullopt;
  if (!type) {
    throw RequestError(
        "\"type\" is Empty, Null, Missing, Boolean, Byte, Integer, Long, Double, Currency, Date, "
        "String or Array");
  }
  if (*type == VariantType::Array && !value) return ToArray(lower, values);
  if (lower || values || *type == VariantType::Array) {
    throw RequestError("a value is {\"type\": ..., \"value\": ...} or {\"lower\": [...], \"values\": [...]}");
  }
  static const Tree kNoValue;
  return ToTyped(value ? *value : kNoValue, *type);
}

Variant ToNumber(std::int64_t value) {
  if (std::in_range<std::int32_t>(value)) return static_cast<std::int32_t>(value);
  return static_cast<double>(value);
}

}  // namespace

Variant ToVariant(const Tree& tree) {
  if (const bool* boolean = BooleanOf(tree)) return *boolean;
  if (const std::int64_t* integer = IntegerOf(tree)) return ToNumber(*integer);
  if (const auto number = NumberOf(tree)) return *number;
  if (const std::string* text = TextOf(tree)) return std::string_view(*text);
  if (const Items* items = ItemsOf(tree)) return IsTable(*items) ? ToTable(*items, 0, 0) : ToList(*items, 0);
  if (const Fields* fields = FieldsOf(tree)) return ToTypedObject(*fields);
  return kNull;
}

std::optional<Date> ParseIsoDate(std::string_view text) {
  const auto date = ParseDate(text);
  return date && View(FormatIso(*date)) == text ? date : std::nullopt;
}

Bounds BoundsFrom(std::int64_t lower, std::size_t count) {
  using Limits = std::numeric_limits<std::int32_t>;
  const bool lowerFits = lower > Limits::min() && lower <= Limits::max();
  const auto upper = lowerFits ? lower + static_cast<std::int64_t>(count) - 1 : 0;
  if (!lowerFits || upper > Limits::max()) throw RequestError("array bounds beyond 32 bits");
  return {static_cast<std::int32_t>(lower), static_cast<std::int32_t>(upper)};
}

}  // namespace amortix2::json
