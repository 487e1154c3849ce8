#include "amortix2/cli/listing.h"

#include <algorithm>
#include <vector>

#include "amortix2/cli/names.h"
#include "amortix2/cli/text_table.h"

namespace amortix2::cli {
namespace {

constexpr std::string_view kIndent = "      ";

std::string TypeText(const TypeInfo& type) {
  switch (type.kind) {
    case TypeKind::Variant:
      return "Variant";
    case TypeKind::Double:
      return "Double";
    case TypeKind::Byte:
      return "Byte";
    case TypeKind::Integer:
      return "Integer";
    case TypeKind::Long:
      return "Long";
    case TypeKind::String:
      return "String";
    case TypeKind::Date:
      return "Date";
    case TypeKind::Enumeration:
      return std::string(type.enumeration->name);
    case TypeKind::Record:
      return std::string(type.record->name);
    case TypeKind::RecordArray:
      return "array of " + std::string(type.record->name);
    case TypeKind::ScriptingContext:
      break;
  }
  return "page context";
}

std::string_view Direction(const ParameterInfo& parameter) {
  if (parameter.byReference) return "in/out";
  return parameter.optional ? "in, optional" : "in";
}

/// The names of the parameters of one direction after a label, broken into lines.
void AppendNames(std::string& out, std::string_view label, const MemberInfo& member, bool byReference) {
  constexpr std::size_t kLineWidth = 100;
  std::string line;
  for (const ParameterInfo& parameter : member.parameters) {
    if (parameter.byReference != byReference) continue;
    std::string name(parameter.name);
    if (parameter.optional) name.insert(0, 1, '[').append("]");
    if (line.empty()) line.append(kIndent).append(label);
    if (line.size() + 1 + name.size() > kLineWidth) {
      out += line + "\n";
      line.assign(kIndent.size() + label.size(), ' ');
    }
    line += " " + name;
  }
  if (!line.empty()) out += line + "\n";
}

void AppendMember(std::string& out, const MemberInfo& member) {
  const bool property = member.kind == MemberKind::PropertyPut;
  out.append("\n  ").append(member.name).append(property ? "  (property, write-only)\n" : "\n");
  out.append(kIndent).append(member.help).append("\n");
  if (property) return;
  AppendNames(out, "in    ", member, false);
  AppendNames(out, "in/out", member, true);
}

void AppendClass(std::string& out, const ClassInfo& type) {
  if (!out.empty()) out += "\n\n";
  out.append(type.name).append("\n  ").append(type.help).append("\n");
  for (const MemberInfo& member : type.members) AppendMember(out, member);
}

/// Rows of texts as a table without a header.
void AppendRows(std::string& out, const std::vector<std::vector<std::string>>& rows) {
  const auto cell = [&](std::int64_t row, std::size_t column) {
    return Variant(std::string_view(rows[static_cast<std::size_t>(row)][column]));
  };
  const Bounds bounds{0, static_cast<std::int32_t>(rows.size()) - 1};
  AppendTable(out, {std::vector<std::string>(rows.empty() ? 0 : rows.front().size()), bounds, false, cell});
}

/// The records and enumerations that a member's parameters are made of, each once, in the order met.
struct Types {
  std::vector<const RecordInfo*> records;
  std::vector<const EnumerationInfo*> enumerations;

  void Add(const TypeInfo& type) {
    AddOnce(enumerations, type.enumeration);
    if (!AddOnce(records, type.record)) return;
    for (const FieldInfo& field : type.record->fields) Add(*field.type);
  }

 private:
  template <class Item>
  static bool AddOnce(std::vector<const Item*>& items, const Item* item) {
    if (!item || std::ranges::find(items, item) != items.end()) return false;
    items.push_back(item);
    return true;
  }
};

void AppendTypes(std::string& out, const Types& types) {
  for (const RecordInfo* record : types.records) {
    out.append("\n").append(record->name).append("  ").append(record->help).append("\n");
    std::vector<std::vector<std::string>> rows;
    for (const FieldInfo& field : record->fields) {
      rows.push_back({std::string(field.name), TypeText(*field.type), std::string(UnitName(field.unit)),
                      std::string(field.help)});
    }
    AppendRows(out, rows);
  }
  for (const EnumerationInfo* enumeration : types.enumerations) {
    out.append("\n").append(enumeration->name).append("  ").append(enumeration->help).append("\n");
    std::vector<std::vector<std::string>> rows;
    for (const ConstantInfo& constant : enumeration->constants) {
      rows.push_back(
          {std::to_string(constant.value), std::string(constant.name), std::string(constant.help)});
    }
    AppendRows(out, rows);
  }
}

std::string MemberListing(const ClassInfo& type, const MemberInfo& member) {
  std::string out(type.name);
  out.append(".").append(member.name).append("\n  ").append(member.help).append("\n\n");
  std::vector<std::vector<std::string>> rows;
  Types types;
  for (const ParameterInfo& parameter : member.parameters) {
    rows.push_back({std::string(parameter.name), std::string(Direction(parameter)), TypeText(*parameter.type),
                    std::string(UnitName(parameter.unit)), std::string(parameter.help)});
    types.Add(*parameter.type);
  }
  AppendRows(out, rows);
  if (member.result) out += "  returns " + TypeText(*member.result) + "\n";
  AppendTypes(out, types);
  return out;
}

}  // namespace

std::string Listing(std::string_view name) {
  std::string out;
  const std::size_t dot = name.find('.');
  if (name.empty()) {
    for (const ClassInfo* type : Classes()) AppendClass(out, *type);
  } else if (dot == std::string_view::npos) {
    AppendClass(out, NeedClass(name));
  } else {
    const ClassInfo& type = NeedClass(name.substr(0, dot));
    out = MemberListing(type, NeedMember(type, name.substr(dot + 1)));
  }
  return out;
}

}  // namespace amortix2::cli
