#include "amortix2/json/description_json.h"

#include "amortix2/json/tree.h"

namespace amortix2::json {
namespace {

/// Each item of a list, or what a pointer in the list points to, as `describe` makes it.
template <class Described>
Tree List(const auto& items, Tree (*describe)(const Described&)) {
  Tree list = Tree::array();
  for (const auto& item : items) {
    if constexpr (std::is_pointer_v<std::remove_cvref_t<decltype(item)>>) {
      list.push_back(describe(*item));
    } else {
      list.push_back(describe(item));
    }
  }
  return list;
}

Tree Named(const auto& item) { return {{"name", item.name}, {"title", item.title}, {"help", item.help}}; }

Tree Typed(const auto& item) {
  Tree typed = Named(item);
  typed["type"] = TypeText(*item.type);
  if (item.unit != Unit::None) typed["unit"] = UnitName(item.unit);
  return typed;
}

Tree DescribeParameter(const ParameterInfo& parameter) {
  Tree tree = Typed(parameter);
  tree["direction"] = Direction(parameter);
  return tree;
}

Tree DescribeMember(const MemberInfo& member) {
  Tree tree = Named(member);
  tree["kind"] = member.kind == MemberKind::Method ? "method" : "property";
  tree["parameters"] = List(member.parameters, DescribeParameter);
  if (member.result) tree["returns"] = TypeText(*member.result);
  return tree;
}

Tree DescribeClass(const ClassInfo& type) {
  Tree tree = Named(type);
  tree["members"] = List(type.members, DescribeMember);
  return tree;
}

Tree DescribeField(const FieldInfo& field) { return Typed(field); }

Tree DescribeRecord(const RecordInfo& record) {
  Tree tree = Named(record);
  tree["fields"] = List(record.fields, DescribeField);
  return tree;
}

Tree DescribeConstant(const ConstantInfo& constant) {
  Tree tree = Named(constant);
  tree["value"] = constant.value;
  return tree;
}

Tree DescribeEnumeration(const EnumerationInfo& enumeration) {
  Tree tree = Named(enumeration);
  tree["constants"] = List(enumeration.constants, DescribeConstant);
  return tree;
}

}  // namespace

std::string DescriptionJson() {
  return Tree{{"classes", List(Classes(), DescribeClass)},
              {"records", List(Records(), DescribeRecord)},
              {"enumerations", List(Enumerations(), DescribeEnumeration)}}
      .dump();
}

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

}  // namespace amortix2::json
