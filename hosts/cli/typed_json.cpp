#include "amortix2/cli/typed_json.h"

#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/cli/iso_date.h"
#include "amortix2/cli/json_fields.h"
#include "amortix2/cli/json_text.h"
#include "amortix2/cli/json_to_variant.h"
#include "amortix2/cli/names.h"
#include "amortix2/cli/request_error.h"

namespace amortix2::cli {
namespace {

constexpr std::int32_t kParameterStart = 1;
constexpr std::int32_t kFieldStart = 0;

void Read(const Json& json, const TypeInfo& type, void* value, std::int32_t start);

void ReadRecord(const Json& json, const RecordInfo& record, void* value) {
  const Json::Fields* fields = json.Object();
  if (!fields) throw RequestError("a " + std::string(record.name) + " is given as an object of its fields");
  std::vector<bool> given(record.fields.size());
  for (const Json::Field& field : *fields) {
    const std::size_t place = PlaceOfField(record, field.name);
    if (given[place]) {
      throw RequestError("the field " + Quoted(field.name) + " of a " + std::string(record.name) +
                         " is given twice");
    }
    given[place] = true;
    const FieldInfo& info = record.fields[place];
    Read(field.value, *info.type, info.in(value), kFieldStart);
  }
}

/// A record takes as much of an array's limit as its fields would as cells.
void CheckSize(std::size_t count, const RecordInfo& record) {
  if (count > static_cast<std::size_t>(kLargestArray) / record.fields.size()) Raise(ErrorNumber::OutOfMemory);
}

void ReadRecords(const Json& json, const TypeInfo& type, void* value, std::int32_t start) {
  const Json* values = &json;
  std::int64_t lower = start;
  if (const Json::Fields* fields = json.Object()) {
    const auto [lowerBounds, list] = TakeFields(*fields, "an array of records", {"lower", "values"});
    const Json::Items* bounds = lowerBounds ? lowerBounds->Array() : nullptr;
    if (!list || !bounds || bounds->size() != 1 || !bounds->front().Integer()) {
      throw RequestError("an array of records with a lower bound is {\"lower\": [1], \"values\": [...]}");
    }
    values = list;
    lower = *bounds->front().Integer();
  }
  const Json::Items* items = values->Array();
  if (!items) throw RequestError("records of " + std::string(type.record->name) + " are given as an array");
  CheckSize(items->size(), *type.record);
  const Bounds bounds = BoundsFrom(lower, items->size());
  type.resize(value, bounds);
  std::int64_t index = bounds.lower;
  for (const Json& item : *items) ReadRecord(item, *type.record, type.at(value, index++));
}

/// A text is a date here when it reads YYYY-MM-DD; other texts are left to the component's own conversion.
Variant ToScalar(const Json& json, TypeKind kind) {
  if (kind == TypeKind::Date && json.Text()) {
    if (const auto date = ParseIsoDate(*json.Text())) return *date;
  }
  return ToVariant(json);
}

void Read(const Json& json, const TypeInfo& type, void* value, std::int32_t start) {
  switch (type.kind) {
    case TypeKind::Record:
      return ReadRecord(json, *type.record, value);
    case TypeKind::RecordArray:
      return ReadRecords(json, type, value, start);
    case TypeKind::ScriptingContext:
      throw RequestError("the page's context is given by the host");
    default:
      type.write(value, ToScalar(json, type.kind));
  }
}

void Append(std::string& out, const TypeInfo& type, const void* value, JsonForm form, std::int32_t start);

void AppendRecord(std::string& out, const RecordInfo& record, const void* value) {
  out += '{';
  AppendSeparated(out, record.fields, [&](const FieldInfo& field) {
    AppendText(out, field.name);
    out += ':';
    Append(out, *field.type, field.in(const_cast<void*>(value)), JsonForm::Plain, kFieldStart);
  });
  out += '}';
}

void AppendRecords(std::string& out, const TypeInfo& type, const void* value, std::int32_t start) {
  const Bounds bounds = type.bounds(value);
  const bool shifted = bounds.lower != start;
  if (shifted) out.append(R"({"lower":[)").append(std::to_string(bounds.lower)).append(R"(],"values":)");
  out += '[';
  for (std::int64_t index = bounds.lower; index <= bounds.upper; ++index) {
    if (index > bounds.lower) out += ',';
    AppendRecord(out, *type.record, type.at(const_cast<void*>(value), index));
  }
  out += ']';
  if (shifted) out += '}';
}

void Append(std::string& out, const TypeInfo& type, const void* value, JsonForm form, std::int32_t start) {
  switch (type.kind) {
    case TypeKind::Variant:
      return AppendVariant(out, *static_cast<const Variant*>(value), form);
    case TypeKind::Record:
      return AppendRecord(out, *type.record, value);
    case TypeKind::RecordArray:
      return AppendRecords(out, type, value, start);
    case TypeKind::ScriptingContext:
      out += "null";
      return;
    default:
      AppendVariant(out, type.read(value), JsonForm::Plain);
  }
}

}  // namespace

Value NewArgument(const ParameterInfo& parameter) {
  Value argument(*parameter.type);
  if (parameter.optional) parameter.type->write(argument.Get(), kMissing);
  if (parameter.type->kind == TypeKind::RecordArray) {
    parameter.type->resize(argument.Get(), {kParameterStart, kParameterStart - 1});
  }
  return argument;
}

void ReadArgument(const Json& json, Value& argument) {
  Read(json, argument.Type(), argument.Get(), kParameterStart);
}

void AppendArgument(std::string& out, const Value& argument, JsonForm form) {
  Append(out, argument.Type(), argument.Get(), form, kParameterStart);
}

}  // namespace amortix2::cli
