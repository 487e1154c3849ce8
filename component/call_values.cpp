#include "amortix2/component/call_values.h"

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"

namespace amortix2 {
namespace {

const Variant kEmpty;
const Variant kUnseen;

const Variant* VariantIn(const Value& value) {
  return value.Type().kind == TypeKind::Variant ? static_cast<const Variant*>(value.Get()) : nullptr;
}

const Variant* CellOf(const Array& array, const Figure& figure) {
  if (array.Rank() != figure.indices || !array.Dimension(1).Contains(figure.row)) return nullptr;
  if (array.Rank() == 1) return &array.At(figure.row);
  const Bounds columns = array.Dimension(2);
  const std::int32_t column = figure.column == -1 ? columns.upper : figure.column;
  return columns.Contains(column) ? &array.At(figure.row, column) : nullptr;
}

const HeadingInfo* HeadingAt(std::span<const HeadingInfo> headings, std::int32_t first, std::int32_t index) {
  const std::int64_t place = std::int64_t{index} - first;
  const bool isThere = place >= 0 && place < static_cast<std::int64_t>(headings.size());
  return isThere ? &headings[static_cast<std::size_t>(place)] : nullptr;
}

}  // namespace

bool IsGiven(const Variant& value) {
  switch (value.Type()) {
    case VariantType::Empty:
    case VariantType::Null:
    case VariantType::Missing:
      return false;
    case VariantType::String:
      return value.GetString().find_first_not_of(" \t\r\n") != std::string_view::npos;
    default:
      return true;
  }
}

std::span<const Variant> ElementsOf(const Variant& value) {
  if (value.Type() == VariantType::Array) return value.GetArray().Cells();
  return {&value, IsGiven(value) ? std::size_t{1} : std::size_t{0}};
}

Inputs::Inputs(const MemberInfo& member, std::span<const Value> arguments) : member_(&member) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const ParameterInfo& parameter = member.parameters[i];
    const Variant* value = parameter.IsInput() ? VariantIn(arguments[i]) : nullptr;
    if (value && parameter.byReference) {
      // A chart's table is never looked at, and may be large.
      const bool isTable = value->Type() == VariantType::Array;
      value = isTable ? &kUnseen : &kept_.emplace_back(*value);
    }
    values_.push_back(value ? value : &kEmpty);
  }
}

const Variant& Inputs::At(std::string_view name) const {
  const ParameterInfo* parameter = FindParameter(*member_, name);
  return parameter ? At(static_cast<std::size_t>(parameter - member_->parameters.data())) : kEmpty;
}

bool Inputs::IsSeen(std::size_t place) const noexcept { return values_[place] != &kUnseen; }

double Inputs::Number(std::string_view name) const { return NumericOrZero(At(name)); }

const Variant* Results::Find(const Figure& figure) const {
  const ParameterInfo* parameter = FindParameter(*member_, figure.parameter);
  if (!parameter) return nullptr;
  const Variant* value = VariantIn(values_[static_cast<std::size_t>(parameter - member_->parameters.data())]);
  if (!value || figure.indices == 0) return value;
  return value->Type() == VariantType::Array ? CellOf(value->GetArray(), figure) : nullptr;
}

std::optional<double> Results::Number(std::string_view figure) const {
  const Variant* value = Find(ParseFigure(figure));
  if (!value || !IsGiven(*value) || !IsNumeric(*value)) return std::nullopt;
  return NumericOrZero(*value);
}

Unit UnitOf(const MemberInfo& member, const Figure& figure) {
  const ParameterInfo* parameter = FindParameter(member, figure.parameter);
  if (!parameter) return Unit::None;
  const TableInfo* table = parameter->table;
  if (!table || figure.indices == 0) return parameter->unit;
  const HeadingInfo* column = HeadingAt(table->columns, table->firstColumn, figure.column);
  const HeadingInfo* row = HeadingAt(table->rows, table->firstRow, figure.row);
  if (column && column->unit != Unit::None) return column->unit;
  return row && row->unit != Unit::None ? row->unit : table->unit;
}

}  // namespace amortix2
