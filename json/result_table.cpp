#include "amortix2/json/result_table.h"

#include <algorithm>
#include <cmath>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/component/invocation.h"
#include "amortix2/json/csv.h"
#include "amortix2/json/plain_text.h"
#include "amortix2/json/request_error.h"

namespace amortix2::json {
namespace {

Unit UnitAt(std::span<const HeadingInfo> headings, std::int64_t place) {
  const bool isThere = place >= 0 && place < std::ssize(headings);
  return isThere ? headings[static_cast<std::size_t>(place)].unit : Unit::None;
}

/// Titles of one axis of an array, from the first that is described on.
class Titles {
 public:
  Titles(const Inputs& inputs, std::span<const HeadingInfo> headings, const AxisInfo* axis, bool repeats)
      : headings_(headings), axis_(axis) {
    if (axis) {
      centre_ = inputs.Number(axis->centre);
      step_ = inputs.Number(axis->step);
      steps_ = inputs.Number(axis->steps);
    }
    if (!repeats || inputs.Member().lists.empty()) return;
    const ListInfo& list = *inputs.Member().lists.begin();
    items_ = std::ssize(ElementsOf(inputs.At(*list.inputs.begin())));
  }

  bool AreGiven() const { return axis_ || !headings_.empty(); }

  /// `place` counts from 0. Behind the columns of a list's items stand those of all of them together.
  std::string At(std::int64_t place, std::int64_t index) const {
    if (axis_) return PlainText(centre_ + (static_cast<double>(place) - steps_) * step_, axis_->unit);
    const HeadingInfo* heading = HeadingAt(place);
    if (!heading) return std::to_string(index);
    if (items_ == 0) return std::string(heading->title);
    const std::int64_t item = place / std::ssize(headings_);
    return std::string(heading->title) + (item < items_ ? " " + std::to_string(item + 1) : ", all");
  }

  Unit UnitOf(std::int64_t place) const {
    const HeadingInfo* heading = HeadingAt(place);
    return heading ? heading->unit : Unit::None;
  }

 private:
  const HeadingInfo* HeadingAt(std::int64_t place) const {
    const std::int64_t count = std::ssize(headings_);
    if (count == 0 || (place >= count && items_ == 0)) return nullptr;
    return &headings_[static_cast<std::size_t>(place % count)];
  }

  std::span<const HeadingInfo> headings_;
  const AxisInfo* axis_;
  double centre_ = 0;
  double step_ = 0;
  double steps_ = 0;
  std::int64_t items_ = 0;  // of the list for each of which the headings stand again; 0: they do not
};

/// Where a dimension begins: where the description says, unless the array begins later.
std::int32_t FirstOf(Bounds bounds, const TableInfo* table, std::int32_t TableInfo::*first) {
  return table ? std::max(bounds.lower, std::min(table->*first, bounds.upper)) : bounds.lower;
}

ResultTable ListTable(const ParameterInfo& parameter, const Array& array) {
  const TableInfo* table = parameter.table;
  const auto headings = table ? table->rows : std::span<const HeadingInfo>();
  ResultTable result;
  result.rows = array.Dimension(1);
  result.rows.lower = FirstOf(result.rows, table, &TableInfo::firstRow);
  result.columns.emplace_back(parameter.title);
  const std::int64_t first = result.rows.lower;
  for (std::int64_t row = first; !headings.empty() && row <= result.rows.upper; ++row) {
    const std::int64_t place = row - first;
    const bool isTitled = place < std::ssize(headings);
    result.rowTitles.emplace_back(isTitled ? headings[static_cast<std::size_t>(place)].title : "");
  }
  result.cell = [&array](std::int64_t row, std::size_t) { return array.At(row); };
  result.unit = [headings, first, all = table ? table->unit : Unit::None](std::int64_t row, std::size_t) {
    const Unit unit = UnitAt(headings, row - first);
    return unit == Unit::None ? all : unit;
  };
  return result;
}

/// A cell as CSV has it.
std::string CsvText(const Variant& value) {
  return value.Type() == VariantType::String ? std::string(value.GetString()) : PlainText(value);
}

std::string CsvOf(const ResultTable& table) {
  std::string out;
  const bool hasTitles = !table.rowTitles.empty();
  CsvRecord record;
  if (hasTitles) record.push_back(table.corner);
  record.insert(record.end(), table.columns.begin(), table.columns.end());
  AppendCsv(out, record);
  for (std::int64_t row = table.rows.lower; row <= table.rows.upper; ++row) {
    record.clear();
    if (hasTitles) record.push_back(table.rowTitles[static_cast<std::size_t>(row - table.rows.lower)]);
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
      record.push_back(CsvText(table.cell(row, column)));
    }
    AppendCsv(out, record);
  }
  return out;
}

std::string ValueAsCsv(const Inputs& inputs, const ParameterInfo& parameter, const Value& value) {
  if (value.Type().kind == TypeKind::RecordArray) return CsvOf(TableOf(value.Type(), value.Get()));
  if (!value.Type().read) throw RequestError(std::string(parameter.name) + " is a record, no table");
  const Variant single = value.Type().read(value.Get());
  if (single.Type() == VariantType::Array) return CsvOf(TableOf(inputs, parameter, single.GetArray()));
  std::string out;
  AppendCsv(out, {std::string(parameter.title)});
  AppendCsv(out, {CsvText(single)});
  return out;
}

}  // namespace

ResultTable TableOf(const Inputs& inputs, const ParameterInfo& parameter, const Array& array) {
  if (array.Rank() == 1) return ListTable(parameter, array);
  const TableInfo* table = parameter.table;
  const bool repeats = table && table->repeats;
  Bounds rows = array.Dimension(1);
  Bounds columns = array.Dimension(2);
  rows.lower = FirstOf(rows, table, &TableInfo::firstRow);
  columns.lower = FirstOf(columns, table, &TableInfo::firstColumn);

  const Titles columnTitles(inputs, table ? table->columns : std::span<const HeadingInfo>(),
                            table ? table->columnAxis : nullptr, repeats);
  const Titles rowTitles(inputs, table ? table->rows : std::span<const HeadingInfo>(),
                         table ? table->rowAxis : nullptr, false);
  ResultTable result;
  result.rows = rows;
  for (std::int64_t column = columns.lower; column <= columns.upper; ++column) {
    result.columns.push_back(columnTitles.At(column - columns.lower, column));
  }
  for (std::int64_t row = rows.lower; rowTitles.AreGiven() && row <= rows.upper; ++row) {
    result.rowTitles.push_back(rowTitles.At(row - rows.lower, row));
  }
  if (table) result.corner = table->rowAxis ? table->rowAxis->title : table->title;
  result.cell = [&array, first = columns.lower](std::int64_t row, std::size_t column) {
    return array.At(row, first + static_cast<std::int64_t>(column));
  };
  result.unit = [=, first = rows.lower, all = table ? table->unit : Unit::None](std::int64_t row,
                                                                                std::size_t column) {
    const Unit ofColumn = columnTitles.UnitOf(static_cast<std::int64_t>(column));
    if (ofColumn != Unit::None) return ofColumn;
    const Unit ofRow = rowTitles.UnitOf(row - first);
    return ofRow == Unit::None ? all : ofRow;
  };
  return result;
}

ResultTable TableOf(const TypeInfo& records, const void* value) {
  ResultTable result;
  const auto fields = records.record->fields;
  for (const FieldInfo& field : fields) result.columns.emplace_back(field.title);
  result.rows = records.bounds(value);
  result.cell = [fields, &records, value](std::int64_t row, std::size_t column) {
    const FieldInfo& field = fields[column];
    if (!field.type->read) return Variant();
    return field.type->read(PlaceOf(field, PlaceAt(records, value, row)));
  };
  result.unit = [fields](std::int64_t, std::size_t column) { return fields[column].unit; };
  return result;
}

std::string ResultAsCsv(const Execution& execution, std::string_view name) {
  const Invocation& call = *execution.Call();
  const ParameterInfo* parameter = FindParameter(call.Member(), name);
  if (parameter && parameter->byReference) {
    const auto place = static_cast<std::size_t>(parameter - call.Member().parameters.data());
    return ValueAsCsv(*execution.Given(), *parameter, call.Arguments()[place]);
  }
  if (!call.Result()) throw RequestError(Quoted(name) + " is no result that can be a table");
  ParameterInfo result;
  result.name = "return";
  result.title = "Returned";
  return ValueAsCsv(*execution.Given(), result, *call.Result());
}

}  // namespace amortix2::json
