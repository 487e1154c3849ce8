#include "amortix2/cli/json_to_variant.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "amortix2/cli/currency_text.h"
#include "amortix2/cli/iso_date.h"
#include "amortix2/cli/json_fields.h"
#include "amortix2/cli/json_text.h"
#include "amortix2/cli/request_error.h"
#include "amortix2/cli/variant_to_json.h"

namespace amortix2::cli {
namespace {

[[noreturn]] void RaiseNotOfType(const Json& json, VariantType type) {
  std::string text;
  AppendJson(text, json);
  throw RequestError(std::string(Shortened(text)) + " is no " + std::string(TypeName(type)));
}

template <class Integer>
Integer ToWhole(const Json& json, VariantType type) {
  const auto number = json.Number();
  using Limits = std::numeric_limits<Integer>;
  if (!number || *number != std::trunc(*number) || *number < Limits::min() || *number > Limits::max()) {
    RaiseNotOfType(json, type);
  }
  return static_cast<Integer>(*number);
}

Currency ToCurrency(const Json& json) {
  constexpr std::int64_t kScale = 10000;
  constexpr double kLimit = 0x1p63;
  if (const std::string* text = json.Text()) {
    if (const auto amount = ParseCurrency(*text)) return *amount;
  } else if (const auto number = json.Number()) {
    if (std::abs(*number) * kScale < kLimit) {
      // Apart, since a double of so many digits does not hold their product.
      const double whole = std::trunc(*number);
      const double decimals = std::nearbyint((*number - whole) * kScale);
      return {static_cast<std::int64_t>(whole) * kScale + static_cast<std::int64_t>(decimals)};
    }
  }
  RaiseNotOfType(json, VariantType::Currency);
}

Date ToIsoDate(const Json& json) {
  if (const std::string* text = json.Text()) {
    if (const auto date = ParseIsoDate(*text)) return *date;
  }
  RaiseNotOfType(json, VariantType::Date);
}

/// The value of {"type": type, "value": json}.
Variant ToTyped(const Json& json, VariantType type) {
  switch (type) {
    case VariantType::Empty:
      if (json.IsNull()) return {};
      break;
    case VariantType::Null:
      if (json.IsNull()) return kNull;
      break;
    case VariantType::Missing:
      if (json.IsNull()) return kMissing;
      break;
    case VariantType::Boolean:
      if (const bool* boolean = json.Boolean()) return *boolean;
      break;
    case VariantType::Byte:
      return ToWhole<std::uint8_t>(json, type);
    case VariantType::Integer:
      return ToWhole<std::int16_t>(json, type);
    case VariantType::Long:
      return ToWhole<std::int32_t>(json, type);
    case VariantType::Double:
      if (const auto number = json.Number()) return *number;
      break;
    case VariantType::Currency:
      return ToCurrency(json);
    case VariantType::Date:
      return ToIsoDate(json);
    case VariantType::String:
      if (const std::string* text = json.Text()) return std::string_view(*text);
      break;
    case VariantType::Array:
      break;
  }
  RaiseNotOfType(json, type);
}

bool IsTable(const Json::Items& rows) {
  if (rows.empty() || !rows.front().Array()) return false;
  return std::ranges::all_of(rows, [width = rows.front().Array()->size()](const Json& row) {
    return row.Array() && row.Array()->size() == width;
  });
}

Variant ToList(const Json::Items& items, std::int64_t lower) {
  Array array(BoundsFrom(lower, items.size()));
  std::ranges::transform(items, array.Cells().begin(), ToVariant);
  return array;
}

Variant ToTable(const Json::Items& rows, std::int64_t rowLower, std::int64_t columnLower) {
  const std::size_t width = rows.empty() ? 0 : rows.front().Array()->size();
  Array array(BoundsFrom(rowLower, rows.size()), BoundsFrom(columnLower, width));
  auto cell = array.Cells().begin();
  for (const Json& row : rows) cell = std::ranges::transform(*row.Array(), cell, ToVariant).out;
  return array;
}

std::int64_t LowerBound(const Json& json) {
  if (!json.Integer()) throw RequestError("\"lower\" is a list of one or two whole numbers");
  return *json.Integer();
}

Variant ToArray(const Json* lower, const Json* values) {
  const Json::Items* items = values ? values->Array() : nullptr;
  if (!items) throw RequestError("an array needs its \"values\" as a JSON array");
  if (!lower) return ToVariant(*values);
  const Json::Items* bounds = lower->Array();
  if (!bounds || bounds->empty() || bounds->size() > 2) {
    throw RequestError("\"lower\" is a list of one or two whole numbers");
  }
  if (bounds->size() == 1) return ToList(*items, LowerBound(bounds->front()));
  if (!items->empty() && !IsTable(*items)) {
    throw RequestError("with two lower bounds, \"values\" is an array of equally long arrays");
  }
  return ToTable(*items, LowerBound(bounds->front()), LowerBound(bounds->back()));
}

Variant ToTypedObject(const Json::Fields& fields) {
  const auto [typeName, value, lower, values] =
      TakeFields(fields, "a value", {"type", "value", "lower", "values"});
  const auto type = !typeName           ? VariantType::Array
                    : !typeName->Text() ? std::nullopt
                                        : FindType(*typeName->Text());
  if (!type) {
    throw RequestError(
        "\"type\" is Empty, Null, Missing, Boolean, Byte, Integer, Long, Double, Currency, Date, "
        "String or Array");
  }
  if (*type == VariantType::Array && !value) return ToArray(lower, values);
  if (lower || values || *type == VariantType::Array) {
    throw RequestError("a value is {\"type\": ..., \"value\": ...} or {\"lower\": [...], \"values\": [...]}");
  }
  static const Json kNoValue;
  return ToTyped(value ? *value : kNoValue, *type);
}

Variant ToNumber(std::int64_t value) {
  using Limits = std::numeric_limits<std::int32_t>;
  if (value < Limits::min() || value > Limits::max()) return static_cast<double>(value);
  return static_cast<std::int32_t>(value);
}

}  // namespace

Variant ToVariant(const Json& json) {
  if (const bool* boolean = json.Boolean()) return *boolean;
  if (const std::int64_t* integer = json.Integer()) return ToNumber(*integer);
  if (const double* decimal = json.Decimal()) return *decimal;
  if (const std::string* text = json.Text()) return std::string_view(*text);
  if (const Json::Items* items = json.Array())
    return IsTable(*items) ? ToTable(*items, 0, 0) : ToList(*items, 0);
  if (const Json::Fields* fields = json.Object()) return ToTypedObject(*fields);
  return kNull;
}

Bounds BoundsFrom(std::int64_t lower, std::size_t count) {
  using Limits = std::numeric_limits<std::int32_t>;
  const bool lowerFits = lower > Limits::min() && lower <= Limits::max();
  const auto upper = lowerFits ? lower + static_cast<std::int64_t>(count) - 1 : 0;
  if (!lowerFits || upper > Limits::max()) throw RequestError("array bounds beyond 32 bits");
  return {static_cast<std::int32_t>(lower), static_cast<std::int32_t>(upper)};
}

}  // namespace amortix2::cli
