#include "amortix2/cli/readable.h"

#include <algorithm>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/cli/text_table.h"

namespace amortix2::cli {
namespace {

/// A single value: its name, the value, and what that is.
struct Line {
  std::string_view name;
  Variant value;
  Unit unit;
  std::string_view title;
  const EnumerationInfo* enumeration = nullptr;  ///< of a value that is a code
};

/// What stands in parentheses behind the title: the unit, or the name that a code has.
std::string_view Note(const Line& line) {
  if (line.enumeration) {
    const auto constant =
        std::ranges::find(line.enumeration->constants, line.value.GetLong(), &ConstantInfo::value);
    return constant == line.enumeration->constants.end() ? std::string_view{} : constant->name;
  }
  const bool plain = line.unit == Unit::Text || line.unit == Unit::Currency || line.unit == Unit::Date;
  return plain ? std::string_view{} : UnitName(line.unit);
}

std::string About(const Line& line) {
  std::string about(line.title);
  if (const auto note = Note(line); !note.empty()) about.append(" (").append(note).append(")");
  return about;
}

/// A text may be long and is its own meaning, so that nothing stands behind it.
void AppendLines(std::string& out, const std::vector<Line>& lines) {
  std::vector<std::vector<TextCell>> rows;
  for (const Line& line : lines) {
    const bool money = line.unit == Unit::Currency || line.unit == Unit::MonthlyCurrency;
    auto& row = rows.emplace_back();
    row.push_back({std::string(line.name)});
    if (line.value.Type() == VariantType::String) {
      row.push_back({PlainText(line.value), Align::Free});
    } else {
      row.push_back({PlainText(line.value, money ? 2 : 0), Align::Right});
      row.push_back({About(line)});
    }
  }
  AppendRows(out, rows);
}

/// What a block shows: a name, and what that is.
struct Title {
  std::string name;
  std::string_view words;
};

void AppendHeading(std::string& out, const Title& title, const std::string& extent) {
  if (!out.empty()) out += '\n';
  out += title.name;
  if (!title.words.empty()) out.append(": ").append(title.words);
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
  TextTable table{{}, rows, [&](std::int64_t row, std::size_t column) {
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
    AppendTable(out, {{""}, bounds, [&](std::int64_t row, std::size_t) { return array.At(row); }});
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

/// A list of lines: one row a record, one column a field.
void AppendSchedule(std::string& out, const Title& title, const TypeInfo& type, const void* records) {
  const Bounds bounds = type.bounds(records);
  AppendHeading(out, title, bounds.Count() == 0 ? "none" : "lines " + Range(bounds));
  if (bounds.Count() == 0) return;
  const auto fields = type.record->fields;
  TextTable table{{}, bounds, [&](std::int64_t row, std::size_t column) {
                    const FieldInfo& field = fields[column];
                    return field.type->read(PlaceOf(field, PlaceAt(type, records, row)));
                  }};
  for (const FieldInfo& field : fields) table.header.emplace_back(field.name);
  AppendTable(out, table);
}

/// The fields that are not zero.
std::vector<Line> FieldLines(const RecordInfo& record, const void* value) {
  std::vector<Line> lines;
  ForEachField(record, value, [&](const FieldInfo& field, const void* place) {
    if (IsRecords(*field.type)) return;
    Variant single = field.type->read(place);
    if (ToDouble(single) == 0) return;
    lines.push_back({field.name, std::move(single), field.unit, field.title, field.type->enumeration});
  });
  return lines;
}

void AppendRecord(std::string& out, const Title& title, const RecordInfo& record, const void* value) {
  const std::vector<Line> lines = FieldLines(record, value);
  AppendHeading(out, title, std::string(record.name) + (lines.empty() ? ", all zero" : ""));
  AppendLines(out, lines);
  ForEachField(record, value, [&](const FieldInfo& field, const void* place) {
    if (!IsRecords(*field.type)) return;
    AppendSchedule(out, {title.name + "." + std::string(field.name), field.title}, *field.type, place);
  });
}

void AppendRecords(std::string& out, const Title& title, const Value& value) {
  const Bounds bounds = value.Type().bounds(value.Get());
  if (bounds.Count() == 0) AppendHeading(out, title, "none");
  ForEachRecord(value.Type(), value.Get(), [&](std::int64_t index, const void* record) {
    AppendRecord(out, {title.name + "(" + std::to_string(index) + ")", {}}, *value.Type().record, record);
  });
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

}  // namespace

std::string ReadableAnswer(const json::Execution& execution) {
  const Invocation& call = *execution.Call();
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
    const ParameterInfo& parameter = call.Member().parameters[i];
    if (parameter.byReference && !execution.IsUnchanged(i)) add(parameter, call.Arguments()[i]);
  }
  ParameterInfo result;
  result.name = "returns";
  if (call.Result()) add(result, *call.Result());

  std::string out;
  AppendLines(out, lines);
  if (!out.empty() && !blocks.empty()) out += '\n';
  out += blocks;
  if (const std::size_t bytes = execution.Response().size(); bytes > 0) {
    AppendHeading(out, {"page response", {}}, std::to_string(bytes) + " bytes");
  }
  return out;
}

}  // namespace amortix2::cli
