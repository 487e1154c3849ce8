#include "amortix2/json/description_json.h"

#include <array>
#include <utility>

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

/// Adds a text that says something.
void Put(Tree& tree, const char* name, std::string_view text) {
  if (!text.empty()) tree[name] = text;
}

void PutUnit(Tree& tree, Unit unit) { Put(tree, "unit", UnitName(unit)); }

void PutList(Tree& tree, const char* name, Tree list) {
  if (!list.empty()) tree[name] = std::move(list);
}

void PutRange(Tree& tree, const char* name, const Range& range) {
  if (!range.IsGiven()) return;
  tree[name] = {{"least", range.least}, {"most", range.most}};
  if (range.step != 0) tree[name]["step"] = range.step;
}

Tree DescribeChoice(const ChoiceInfo& choice) {
  Tree tree{{"value", choice.text}, {"title", choice.title}};
  Put(tree, "help", choice.help);
  Put(tree, "constant", choice.name);
  return tree;
}

Tree DescribeQuestion(const QuestionInfo& question) {
  return {{"question", question.text}, {"answers", List(question.answers, DescribeChoice)}};
}

Tree DescribeHeading(const HeadingInfo& heading) {
  Tree tree{{"title", heading.title}};
  PutUnit(tree, heading.unit);
  return tree;
}

Tree DescribeAxis(const AxisInfo& axis) {
  Tree tree{{"title", axis.title}, {"centre", axis.centre}, {"step", axis.step}, {"steps", axis.steps}};
  PutUnit(tree, axis.unit);
  return tree;
}

Tree DescribeTable(const TableInfo& table) {
  Tree tree{{"title", table.title}, {"firstRow", table.firstRow}, {"firstColumn", table.firstColumn}};
  PutUnit(tree, table.unit);
  PutList(tree, "columns", List(table.columns, DescribeHeading));
  PutList(tree, "rows", List(table.rows, DescribeHeading));
  if (table.repeats) tree["repeats"] = true;
  if (table.rowAxis) tree["rowAxis"] = DescribeAxis(*table.rowAxis);
  if (table.columnAxis) tree["columnAxis"] = DescribeAxis(*table.columnAxis);
  return tree;
}

/// In the order of their enumerations.
constexpr std::array<std::string_view, 4> kRoles{"input", "result", "both", "not read"};
constexpr std::array<std::string_view, 6> kOmitted{"required", "zero", "today", "whole term", "find it", ""};

Tree DescribeParameter(const ParameterInfo& parameter) {
  Tree tree = Typed(parameter);
  tree["direction"] = Direction(parameter);
  tree["role"] = kRoles[static_cast<std::size_t>(parameter.role)];
  if (parameter.IsInput()) Put(tree, "omitted", kOmitted[static_cast<std::size_t>(parameter.omitted)]);
  PutRange(tree, "range", parameter.range);
  PutRange(tree, "limit", parameter.limit);
  Put(tree, "example", parameter.example);
  Put(tree, "echoes", parameter.echoes);
  if (parameter.choices) {
    tree["choices"] = List(parameter.choices->choices, DescribeChoice);
    Put(tree, "otherwise", parameter.choices->otherwise);
  }
  if (parameter.table) tree["table"] = DescribeTable(*parameter.table);
  PutList(tree, "questions", List(parameter.questions, DescribeQuestion));
  return tree;
}

Tree DescribeFind(const FindInfo& find) {
  Tree tree{{"figure", find.figure}};
  Put(tree, "input", find.input);
  return tree;
}

Tree DescribeMember(const MemberInfo& member) {
  Tree tree = Named(member);
  tree["kind"] = member.kind == MemberKind::Method ? "method" : "property";
  tree["group"] = GroupTitle(member.group);
  Put(tree, "address", member.address);
  PutList(tree, "finds", List(member.finds, DescribeFind));
  Put(tree, "horizon", member.horizon);
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
