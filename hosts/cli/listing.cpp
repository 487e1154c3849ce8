#include "amortix2/cli/listing.h"

#include <algorithm>
#include <vector>

#include "amortix2/cli/text_table.h"
#include "amortix2/json/description_json.h"
#include "amortix2/json/lookup.h"

namespace amortix2::cli {
namespace {

constexpr std::string_view kIndent = "      ";

using Rows = std::vector<std::vector<TextCell>>;

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

/// A row of texts, indented.
std::vector<TextCell> Row(const auto&... texts) { return {TextCell{}, TextCell{std::string(texts)}...}; }

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
    Rows rows;
    for (const FieldInfo& field : record->fields) {
      rows.push_back(Row(field.name, json::TypeText(*field.type), UnitName(field.unit), field.help));
    }
    AppendRows(out, rows);
  }
  for (const EnumerationInfo* enumeration : types.enumerations) {
    out.append("\n").append(enumeration->name).append("  ").append(enumeration->help).append("\n");
    Rows rows;
    for (const ConstantInfo& constant : enumeration->constants) {
      rows.push_back(Row(std::to_string(constant.value), constant.name, constant.help));
    }
    AppendRows(out, rows);
  }
}

std::string MemberListing(const ClassInfo& type, const MemberInfo& member) {
  std::string out(type.name);
  out.append(".").append(member.name).append("\n  ").append(member.help).append("\n\n");
  Rows rows;
  Types types;
  for (const ParameterInfo& parameter : member.parameters) {
    rows.push_back(Row(parameter.name, json::Direction(parameter), json::TypeText(*parameter.type),
                       UnitName(parameter.unit), parameter.help));
    types.Add(*parameter.type);
  }
  AppendRows(out, rows);
  if (member.result) out += "  returns " + json::TypeText(*member.result) + "\n";
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
    AppendClass(out, json::NeedClass(name));
  } else {
    const ClassInfo& type = json::NeedClass(name.substr(0, dot));
    out = MemberListing(type, json::NeedMember(type, name.substr(dot + 1)));
  }
  return out;
}

}  // namespace amortix2::cli
