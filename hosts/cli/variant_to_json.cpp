#include "amortix2/cli/variant_to_json.h"

#include <array>
#include <cstdlib>

#include "amortix2/automation/array.h"
#include "amortix2/automation/date.h"
#include "amortix2/cli/currency_text.h"
#include "amortix2/cli/json_text.h"
#include "amortix2/component/description.h"

namespace amortix2::cli {
namespace {

/// In the order of VariantType.
constexpr std::array<std::string_view, 12> kTypeNames{
    "Empty", "Null",   "Missing",  "Boolean", "Byte",   "Integer",
    "Long",  "Double", "Currency", "Date",    "String", "Array",
};
static_assert(kTypeNames.size() == static_cast<std::size_t>(VariantType::Array) + 1);

/// A number as long as a double carries it exactly, else text.
void AppendCurrency(std::string& out, Currency amount) {
  constexpr std::int64_t kExact = std::int64_t{1} << 53;
  const bool exact = amount.scaled >= -kExact && amount.scaled <= kExact;
  if (!exact) out += '"';
  out += CurrencyText(amount);
  if (!exact) out += '"';
}

void AppendScalar(std::string& out, const Variant& value, JsonForm form) {
  switch (value.Type()) {
    case VariantType::Boolean:
      out += value.GetBoolean() ? "true" : "false";
      break;
    case VariantType::Byte:
      AppendNumber(out, std::int64_t{value.GetByte()});
      break;
    case VariantType::Integer:
      AppendNumber(out, std::int64_t{value.GetInteger()});
      break;
    case VariantType::Long:
      AppendNumber(out, std::int64_t{value.GetLong()});
      break;
    case VariantType::Double:
      AppendNumber(out, value.GetDouble());
      break;
    case VariantType::Currency:
      if (form == JsonForm::WithTypes) {
        AppendCurrency(out, value.GetCurrency());
      } else {
        out += CurrencyText(value.GetCurrency());
      }
      break;
    case VariantType::Date:
      AppendText(out, View(FormatIso(value.GetDate())));
      break;
    case VariantType::String:
      AppendText(out, value.GetString());
      break;
    default:
      out += "null";
  }
}

void AppendCells(std::string& out, std::span<const Variant> cells, JsonForm form) {
  out += '[';
  AppendSeparated(out, cells, [&](const Variant& cell) { AppendVariant(out, cell, form); });
  out += ']';
}

void AppendValues(std::string& out, const Array& array, JsonForm form) {
  if (array.Rank() == 1) return AppendCells(out, array.Cells(), form);
  const auto width = static_cast<std::size_t>(array.Dimension(2).Count());
  const auto rows = static_cast<std::size_t>(array.Dimension(1).Count());
  out += '[';
  for (std::size_t row = 0; row < rows; ++row) {
    if (row > 0) out += ',';
    AppendCells(out, array.Cells().subspan(row * width, width), form);
  }
  out += ']';
}

void AppendArray(std::string& out, const Array& array, JsonForm form) {
  if (form == JsonForm::Plain) return AppendValues(out, array, form);
  out += R"({"type":"Array","lower":[)";
  AppendNumber(out, std::int64_t{array.Dimension(1).lower});
  if (array.Rank() == 2) {
    out += ',';
    AppendNumber(out, std::int64_t{array.Dimension(2).lower});
  }
  out += R"(],"values":)";
  AppendValues(out, array, form);
  out += '}';
}

}  // namespace

void AppendVariant(std::string& out, const Variant& value, JsonForm form) {
  if (value.Type() == VariantType::Array) return AppendArray(out, value.GetArray(), form);
  if (form == JsonForm::Plain) return AppendScalar(out, value, form);
  out += R"({"type":")";
  out += TypeName(value.Type());
  out += R"(","value":)";
  AppendScalar(out, value, form);
  out += '}';
}

std::string_view TypeName(VariantType type) noexcept { return kTypeNames[static_cast<std::size_t>(type)]; }

std::optional<VariantType> FindType(std::string_view name) noexcept {
  for (std::size_t i = 0; i < kTypeNames.size(); ++i) {
    if (SameName(kTypeNames[i], name)) return static_cast<VariantType>(i);
  }
  return std::nullopt;
}

}  // namespace amortix2::cli
