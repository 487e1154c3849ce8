#include "amortix2/json/variant_writer.h"

#include <array>
#include <cstdlib>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/automation/date.h"
#include "amortix2/component/description.h"
#include "amortix2/json/json_text.h"

namespace amortix2::json {
namespace {

/// In the order of VariantType.
constexpr std::array<std::string_view, 12> kTypeNames{
    "Empty", "Null",   "Missing",  "Boolean", "Byte",   "Integer",
    "Long",  "Double", "Currency", "Date",    "String", "Array",
};
static_assert(kTypeNames.size() == static_cast<std::size_t>(VariantType::Array) + 1);

/// True when a reader that knows doubles only would lose digits: with its type, the amount is then a text.
bool NeedsText(Currency amount) {
  constexpr std::int64_t kExact = std::int64_t{1} << 53;
  return amount.scaled < -kExact || amount.scaled > kExact;
}

void AppendScalar(std::string& out, const Variant& value, Form form) {
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
      if (form == Form::WithTypes && NeedsText(value.GetCurrency())) return AppendText(out, ToText(value));
      out += ToText(value);
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

void AppendCells(std::string& out, std::span<const Variant> cells, Form form) {
  out += '[';
  AppendSeparated(out, cells, [&](const Variant& cell) { AppendVariant(out, cell, form); });
  out += ']';
}

void AppendValues(std::string& out, const Array& array, Form form) {
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

void AppendArray(std::string& out, const Array& array, Form form) {
  if (form == Form::Plain) return AppendValues(out, array, form);
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

void AppendVariant(std::string& out, const Variant& value, Form form) {
  if (value.Type() == VariantType::Array) return AppendArray(out, value.GetArray(), form);
  if (form == Form::Plain) return AppendScalar(out, value, form);
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

}  // namespace amortix2::json
