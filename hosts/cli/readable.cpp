#include "amortix2/cli/readable.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/component/answer.h"
#include "amortix2/component/invocation.h"
#include "amortix2/json/plain_text.h"

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
  const bool plain = line.unit == Unit::Text || line.unit == Unit::Currency ||
                     line.unit == Unit::MonthlyCurrency || line.unit == Unit::Date;
  return plain ? std::string_view{} : UnitName(line.unit);
}

std::string About(const Line& line) {
  std::string about(line.title);
  if (const auto note = Note(line); !note.empty()) about.append(" (").append(note).append(")");
  return about;
}

/// A text may be long and is its own meaning, so that nothing stands behind it.
void AppendLines(std::string& out, const std::vector<Line>& lines) {
  AppendRows(out, lines.size(), [&](std::size_t row) {
    const Line& line = lines[row];
    const TextCell name{std::string(line.name)};
    if (line.value.Type() == VariantType::String) {
      return std::vector<TextCell>{name, {json::PlainText(line.value), Align::Free}};
    }
    return std::vector<TextCell>{name, {json::PlainText(line.value, line.unit), Align::Right}, {About(line)}};
  });
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

bool IsTextOrEmpty(const Variant& cell) {
  return cell.Type() == VariantType::String || cell.Type() == VariantType::Empty;
}

/// Lines of text stand as they are.
void AppendText(std::string& out, const Array& array) {
  for (const Variant& cell : array.Cells()) {
    if (cell.Type() == VariantType::String) out.append(cell.GetString()).append("\n");
  }
}

bool IsRecords(const TypeInfo& type) noexcept { return type.kind == TypeKind::RecordArray; }

/// A list of lines: one row a record, one column a field.
void AppendSchedule(std::string& out, const Title& title, const TypeInfo& type, const void* records,
                    Rows rows) {
  const Bounds bounds = type.bounds(records);
  AppendHeading(out, title, bounds.Count() == 0 ? "none" : "lines " + Range(bounds));
  if (bounds.Count() > 0) AppendTable(out, json::TableOf(type, records), rows);
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

void AppendRecord(std::string& out, const Title& title, const RecordInfo& record, const void* value,
                  Rows rows) {
  const std::vector<Line> lines = FieldLines(record, value);
  AppendHeading(out, title, std::string(record.name) + (lines.empty() ? ", all zero" : ""));
  AppendLines(out, lines);
  ForEachField(record, value, [&](const FieldInfo& field, const void* place) {
    if (!IsRecords(*field.type)) return;
    AppendSchedule(out, {title.name + "." + std::string(field.name), field.title}, *field.type, place, rows);
  });
}

void AppendRecords(std::string& out, const Title& title, const Value& value, Rows rows) {
  const Bounds bounds = value.Type().bounds(value.Get());
  if (bounds.Count() == 0) AppendHeading(out, title, "none");
  ForEachRecord(value.Type(), value.Get(), [&](std::int64_t index, const void* record) {
    AppendRecord(out, {title.name + "(" + std::to_string(index) + ")", {}}, *value.Type().record, record,
                 rows);
  });
}

const Array* ArrayIn(const Variant& value) {
  return value.Type() == VariantType::Array ? &value.GetArray() : nullptr;
}

/// The answer of one call, as it is put together.
class Answer {
 public:
  Answer(const json::Execution& execution, Rows rows) : execution_(execution), rows_(rows) {}

  void Add(const ParameterInfo& info, const Value& value) {
    const Title title{std::string(info.name), info.title};
    if (value.Type().kind == TypeKind::Record) {
      AppendRecord(blocks_, title, *value.Type().record, value.Get(), rows_);
    } else if (IsRecords(value.Type())) {
      AppendRecords(blocks_, title, value, rows_);
    } else if (value.Type().kind == TypeKind::Variant) {
      const auto& variant = *static_cast<const Variant*>(value.Get());
      if (const Array* array = ArrayIn(variant)) return AddArray(info, title, *array);
    }
    if (!value.Type().read) return;
    Variant single = value.Type().read(value.Get());
    lines_.push_back({info.name, std::move(single), info.unit, info.title, value.Type().enumeration});
  }

  /// Leaves nothing behind.
  std::string Take(const std::string& sentence) {
    std::string out = sentence.empty() ? "" : sentence + "\n";
    const auto separate = [&] { out += out.empty() ? "" : "\n"; };
    if (!lines_.empty()) {
      separate();
      AppendLines(out, lines_);
    }
    if (!blocks_.empty()) separate();
    // The blocks may be large: they are moved, and what stands before them is put there.
    return std::move(blocks_.insert(0, out));
  }

 private:
  void AddArray(const ParameterInfo& info, const Title& title, const Array& array) {
    const bool isText = array.Rank() == 1 && std::ranges::all_of(array.Cells(), IsTextOrEmpty);
    const json::ResultTable table = json::TableOf(*execution_.Given(), info, array);
    AppendHeading(
        blocks_, title,
        (array.Rank() == 1 ? "elements " : "rows ") + Range(isText ? array.Dimension(1) : table.rows));
    if (isText) {
      AppendText(blocks_, array);
    } else if (array.Rank() == 1) {
      json::ResultTable list = table;
      list.columns = {""};
      AppendTable(blocks_, list, rows_);
    } else {
      AppendTable(blocks_, table, rows_);
    }
  }

  const json::Execution& execution_;
  Rows rows_;
  std::vector<Line> lines_;
  std::string blocks_;
};

}  // namespace

std::string ReadableAnswer(const json::Execution& execution, const Shown& shown) {
  const Invocation& call = *execution.Call();
  Answer answer(execution, shown.rows);
  for (std::size_t i = 0; i < call.Arguments().size(); ++i) {
    const ParameterInfo& parameter = call.Member().parameters[i];
    const bool isShown = parameter.byReference && parameter.name != shown.elsewhere;
    if (isShown && execution.Wants(parameter.name) && !execution.IsUnchanged(i)) {
      answer.Add(parameter, call.Arguments()[i]);
    }
  }
  ParameterInfo result;
  result.name = "returns";
  if (call.Result() && execution.Wants("return")) answer.Add(result, *call.Result());

  const bool isWhole = shown.sentence;
  std::string out = answer.Take(
      isWhole ? AnswerSentence(*execution.Given(), Results(call.Member(), call.Arguments())) : std::string());
  const std::size_t bytes = execution.Response().size();
  if (bytes > 0 && execution.Wants("response") && shown.elsewhere != "response") {
    AppendHeading(out, {"page response", {}}, std::to_string(bytes) + " bytes; --out FILE writes them");
  }
  return out;
}

}  // namespace amortix2::cli
