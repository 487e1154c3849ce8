#include "amortix2/json/typed_value.h"

#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/component/invocation.h"
#include "amortix2/json/json_text.h"
#include "amortix2/json/lookup.h"
#include "amortix2/json/request_error.h"
#include "amortix2/json/variant_reader.h"

namespace amortix2::json {
namespace {

constexpr std::int32_t kParameterStart = 1;
constexpr std::int32_t kFieldStart = 0;

void Read(const Tree& tree, const TypeInfo& type, void* value, std::int32_t start);

void ReadRecord(const Tree& tree, const RecordInfo& record, void* value) {
  const Fields* fields = FieldsOf(tree);
  if (!fields) throw RequestError("a " + std::string(record.name) + " is given as an object of its fields");
  std::vector<bool> given(record.fields.size());
  for (const auto& [name, fieldTree] : *fields) {
    const std::size_t place = PlaceOfField(record, name);
    if (given[place]) {
      throw RequestError("the field " + Quoted(name) + " of a " + std::string(record.name) +
                         " is given twice");
    }
    given[place] = true;
    const FieldInfo& info = record.fields[place];
    Read(fieldTree, *info.type, PlaceOf(info, value), kFieldStart);
  }
}

struct RecordList {
  std::int64_t lower;
  const Items& items;
};

RecordList RecordsOf(const Tree& tree, const RecordInfo& record, std::int32_t start) {
  const Tree* values = &tree;
  std::int64_t lower = start;
  if (const Fields* fields = FieldsOf(tree)) {
    const auto [lowerBounds, list] = TakeFields(*fields, "an array of records", {"lower", "values"});
    const Items* bounds = lowerBounds ? ItemsOf(*lowerBounds) : nullptr;
    if (!list || !bounds || bounds->size() != 1 || !IntegerOf(bounds->front())) {
      throw RequestError("an array of records with a lower bound is {\"lower\": [1], \"values\": [...]}");
    }
    values = list;
    lower = *IntegerOf(bounds->front());
  }
  const Items* items = ItemsOf(*values);
  if (!items) throw RequestError("records of " + std::string(record.name) + " are given as an array");
  return {lower, *items};
}

void ReadRecords(const Tree& tree, const TypeInfo& type, void* value, std::int32_t start) {
  const auto [lower, items] = RecordsOf(tree, *type.record, start);
  // A record takes as much of an array's limit as its fields would as cells.
  if (items.size() > static_cast<std::size_t>(kLargestArray) / type.record->fields.size()) {
    Raise(ErrorNumber::OutOfMemory);
  }
  type.resize(value, BoundsFrom(lower, items.size()));
  auto item = items.begin();
  ForEachRecord(type, value, [&](std::int64_t, void* place) { ReadRecord(*item++, *type.record, place); });
}

/// A text is a date here when it reads YYYY-MM-DD; other texts are left to the component's own conversion.
Variant ToSingle(const Tree& tree, TypeKind kind) {
  if (kind == TypeKind::Date && TextOf(tree)) {
    if (const auto date = ParseIsoDate(*TextOf(tree))) return *date;
  }
  return ToVariant(tree);
}

void Read(const Tree& tree, const TypeInfo& type, void* value, std::int32_t start) {
  switch (type.kind) {
    case TypeKind::Record:
      return ReadRecord(tree, *type.record, value);
    case TypeKind::RecordArray:
      return ReadRecords(tree, type, value, start);
    case TypeKind::ScriptingContext:
      throw RequestError("the page's context is given by the host");
    default:
      type.write(value, ToSingle(tree, type.kind));
  }
}

void Append(std::string& out, const TypeInfo& type, const void* value, Form form, std::int32_t start);

void AppendRecord(std::string& out, const RecordInfo& record, const void* value) {
  ObjectWriter object(out);
  ForEachField(record, value, [&](const FieldInfo& field, const void* place) {
    Append(object.Field(field.name), *field.type, place, Form::Plain, kFieldStart);
  });
  object.Close();
}

void AppendRecords(std::string& out, const TypeInfo& type, const void* value, std::int32_t start) {
  const Bounds bounds = type.bounds(value);
  const bool shifted = bounds.lower != start;
  if (shifted) out.append(R"({"lower":[)").append(std::to_string(bounds.lower)).append(R"(],"values":)");
  out += '[';
  ForEachRecord(type, value, [&](std::int64_t index, const void* record) {
    if (index > bounds.lower) out += ',';
    AppendRecord(out, *type.record, record);
  });
  out += ']';
  if (shifted) out += '}';
}

void Append(std::string& out, const TypeInfo& type, const void* value, Form form, std::int32_t start) {
  switch (type.kind) {
    case TypeKind::Record:
      return AppendRecord(out, *type.record, value);
    case TypeKind::RecordArray:
      return AppendRecords(out, type, value, start);
    case TypeKind::ScriptingContext:
      out += "null";
      return;
    default:
      WithVariant(type, value, [&](const Variant& variant) {
        AppendVariant(out, variant, type.kind == TypeKind::Variant ? form : Form::Plain);
      });
  }
}

}  // namespace

void ReadArgument(const Tree& tree, Value& argument) {
  Read(tree, argument.Type(), argument.Get(), kParameterStart);
}

void AppendArgument(std::string& out, const Value& argument, Form form) {
  Append(out, argument.Type(), argument.Get(), form, kParameterStart);
}

}  // namespace amortix2::json
