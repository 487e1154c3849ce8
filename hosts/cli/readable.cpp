#include "amortix2/cli/readable.h"

#include <algorithm>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/cli/text_table.h"
#include "amortix2/cli/typed_json.h"
#include "amortix2/cli/value_lines.h"

namespace amortix2::cli {
namespace {

/// What a block shows: a name, and what that is.
struct Title {
  std::string name;
  std::string_view help;
};

void AppendHeading(std::string& out, const Title& title, const std::string& extent) {
  if (!out.empty()) out += '\n';
  out += title.name;
  if (!title.help.empty()) out.append(": ").append(title.help);
  out += " (" + extent + ")\n";
}

std::string Range(Bounds bounds) {
  return std::to_string(bounds.lower) + " to " + std::to_string(bounds.upper);
}

/// Row 0 and column 0 of a result are often unused; what is empty there is left out.
void AppendGrid(std::string& out, const Title& title, const Array& array) {
  Bounds rows = array.Dimension(1);
  Bounds columns = array.Dimension(2);
  AppendHeading(out, title, "rows " + Range(rows) + ", columns " + Range(columns));
  const auto emptyCell = [&](std::int64_t row, std::int64_t column) {
    return array.At(row, column).Type() == VariantType::Empty;
  };
  const auto emptyColumn = [&] {
    for (std::int64_t row = rows.lower; row <= rows.upper; ++row) {
      if (!emptyCell(row, columns.lower)) return false;
    }
    return true;
  };
  const auto emptyRow = [&] {
    for (std::int64_t column = columns.lower; column <= columns.upper; ++column) {
      if (!emptyCell(rows.lower, column)) return false;
    }
    return true;
  };
  if (columns.Count() > 1 && emptyColumn()) ++columns.lower;
  if (rows.Count() > 1 && emptyRow()) ++rows.lower;
  TextTable table{{}, rows, true, [&](std::int64_t row, std::size_t column) {
                    return array.At(row, columns.lower + static_cast<std::int64_t>(column));
                  }};
  for (std::int64_t column = columns.lower; column <= columns.upper; ++column) {
    table.header.push_back(std::to_string(column));
  }
  AppendTable(out, table);
}

bool IsTextOrEmpty(const Variant& cell) {
  return cell.Type() == VariantType::String || cell.Type() == VariantType::Empty;
}

/// Lines of text stand as they are, other lists one element a line.
void AppendList(std::string& out, const Title& title, const Array& array) {
  const Bounds bounds = array.Dimension(1);
  AppendHeading(out, title, "elements " + Range(bounds));
  if (std::ranges::all_of(array.Cells(), IsTextOrEmpty)) {
    for (const Variant& cell : array.Cells()) {
      if (cell.Type() == VariantType::String) out.append(cell.GetString()).append("\n");
    }
  } else {
    AppendTable(out, {{""}, bounds, true, [&](std::int64_t row, std::size_t) { return array.At(row); }});
  }
}

void AppendArray(std::string& out, const Title& title, const Array& array) {
  if (array.Rank() == 1) {
    AppendList(out, title, array);
  } else {
    AppendGrid(out, title, array);
  }
}

bool IsRecords(const TypeInfo& type) noexcept { return type.kind == TypeKind::RecordArray; }

/// A record's fields are read only; the description has one way in for both.
void* FieldOf(const FieldInfo& field, const void* record) { return field.in(const_cast<void*>(record)); }

/// A list of lines: one row a record, one column a field.
void AppendSchedule(std::string& out, const Title& title, const TypeInfo& type, const void* records) {
  const Bounds bounds = type.bounds(records);
  AppendHeading(out, title, bounds.Count() == 0 ? "none" : "lines " + Range(bounds));
  if (bounds.Count() == 0) return;
  const auto fields = type.record->fields;
  TextTable table{{}, bounds, true, [&](std::int64_t row, std::size_t column) {
                    const void* record = type.at(const_cast<void*>(records), row);
                    return fields[column].type->read(FieldOf(fields[column], record));
                  }};
  for (const FieldInfo& field : fields) table.header.emplace_back(field.name);
  AppendTable(out, table);
}

/// The fields that are not zero.
std::vector<Line> FieldLines(const RecordInfo& record, const void* value) {
  std::vector<Line> lines;
  for (const FieldInfo& field : record.fields) {
    if (IsRecords(*field.type)) continue;
    Variant single = field.type->read(FieldOf(field, value));
    if (ToDouble(single) == 0) continue;
    lines.push_back({field.name, std::move(single), field.unit, field.title, field.type->enumeration});
  }
  return lines;
}

void AppendRecord(std::string& out, const Title& title, const RecordInfo& record, const void* value) {
  const std::vector<Line> lines = FieldLines(record, value);
  AppendHeading(out, title, std::string(record.name) + (lines.empty() ? ", all zero" : ""));
  AppendLines(out, lines);
  for (const FieldInfo& field : record.fields) {
    if (!IsRecords(*field.type)) continue;
    const Title list{title.name + "." + std::string(field.name), field.title};
    AppendSchedule(out, list, *field.type, FieldOf(field, value));
  }
}

void AppendRecords(std::string& out, const Title& title, const Value& value) {
  const Bounds bounds = value.Type().bounds(value.Get());
  if (bounds.Count() == 0) AppendHeading(out, title, "none");
  for (std::int64_t index = bounds.lower; index <= bounds.upper; ++index) {
    const void* record = value.Type().at(const_cast<void*>(value.Get()), index);
    AppendRecord(out, {title.name + "(" + std::to_string(index) + ")", {}}, *value.Type().record, record);
  }
}

const Array* ArrayIn(const Variant& value) {
  return value.Type() == VariantType::Array ? &value.GetArray() : nullptr;
}

void AppendBlock(std::string& out, const Title& title, const Value& value) {
  switch (value.Type().kind) {
    case TypeKind::Record:
      return AppendRecord(out, title, *value.Type().record, value.Get());
    case TypeKind::RecordArray:
      return AppendRecords(out, title, value);
    case TypeKind::Variant:
      if (const Array* array = ArrayIn(*static_cast<const Variant*>(value.Get()))) {
        AppendArray(out, title, *array);
      }
      return;
    default:
      return;
  }
}

/// True for a variant that is as the caller gave it, or left it: nothing came back in it.
bool IsUnchanged(const ParameterInfo& parameter, const Value& value, const Json::Fields& given) {
  if (value.Type().kind != TypeKind::Variant) return false;
  Value before = NewArgument(parameter);
  for (const Json::Field& field : given) {
    if (SameName(field.name, parameter.name)) ReadArgument(field.value, before);
  }
  return *static_cast<const Variant*>(before.Get()) == *static_cast<const Variant*>(value.Get());
}

}  // namespace

std::string ReadableAnswer(const Call& call, const Request& request) {
  std::vector<Line> lines;
  std::string blocks;
  const auto add = [&](const ParameterInfo& info, const Value& value) {
    AppendBlock(blocks, {std::string(info.name), info.title}, value);
    if (!value.Type().read) return;
    Variant single = value.Type().read(value.Get());
    if (ArrayIn(single)) return;
    lines.push_back({info.name, std::move(single), info.unit, info.title, value.Type().enumeration});
  };
  for (std::size_t i = 0; i < call.Arguments().size(); ++i) {
    const ParameterInfo& parameter = call.Method()->parameters[i];
    const Value& value = call.Arguments()[i];
    if (parameter.byReference && !IsUnchanged(parameter, value, request.arguments)) add(parameter, value);
  }
  ParameterInfo result;
  result.name = "returns";
  if (call.Result()) add(result, *call.Result());

  std::string out;
  AppendLines(out, lines);
  if (!out.empty() && !blocks.empty()) out += '\n';
  out += blocks;
  if (const std::size_t bytes = call.Response().size(); bytes > 0) {
    AppendHeading(out, {"page response", {}}, std::to_string(bytes) + " bytes");
  }
  return out;
}

}  // namespace amortix2::cli
