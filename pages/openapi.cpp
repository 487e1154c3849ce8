#include "amortix2/pages/openapi.h"

#include <algorithm>
#include <utility>

#include "amortix2/automation/conversion.h"
#include "amortix2/component/description.h"
#include "amortix2/json/request_error.h"
#include "amortix2/json/strangers.h"
#include "amortix2/json/tree.h"
#include "amortix2/pages/calculation.h"
#include "amortix2/pages/home.h"

namespace amortix2::pages {
namespace {

using json::Tree;

Tree TextOf(std::string_view description) { return {{"type", "string"}, {"description", description}}; }

Tree Content(std::string_view type, Tree schema) { return {{type, {{"schema", std::move(schema)}}}}; }

Tree Component(const char* name) { return {{"$ref", "#/components/schemas/" + std::string(name)}}; }

Tree ChoiceTexts(std::span<const ChoiceInfo> choices) {
  Tree texts = Tree::array();
  for (const ChoiceInfo& choice : choices) texts.push_back(choice.text);
  return texts;
}

/// What the choices are, in a line: "1: Weekly; 2: Monthly".
std::string ChoicesInWords(std::span<const ChoiceInfo> choices) {
  std::string words;
  for (const ChoiceInfo& choice : choices) {
    if (!words.empty()) words += "; ";
    ((words += choice.text) += ": ") += choice.title;
  }
  return words;
}

Tree NumberSchema(const ParameterInfo& parameter) {
  Tree schema{{"type", parameter.range.step == 1 ? "integer" : "number"}};
  if (parameter.range.IsGiven()) {
    const bool mayBeZero = parameter.omitted != Omitted::Required;
    schema["minimum"] = mayBeZero ? std::min(parameter.range.least, 0.0) : parameter.range.least;
    schema["maximum"] = parameter.range.most;
  }
  return schema;
}

Tree SchemaOf(const ParameterInfo& parameter) {
  if (parameter.choices) return {{"type", "string"}, {"enum", ChoiceTexts(parameter.choices->choices)}};
  if (parameter.unit == Unit::Date) return {{"type", "string"}, {"format", "date"}};
  return IsNumber(parameter.unit) ? NumberSchema(parameter) : Tree{{"type", "string"}};
}

/// An example as its schema has it: a number, or a text.
Tree ExampleOf(const ParameterInfo& parameter, const Tree& schema) {
  if (schema["type"] == "string") return parameter.example;
  const auto number = ParseNumber(parameter.example);
  return number ? Tree(*number) : Tree();
}

Tree InQuery(std::string name, std::string_view description, bool isRequired, Tree schema) {
  return {{"name", std::move(name)},
          {"in", "query"},
          {"description", description},
          {"required", isRequired},
          {"schema", std::move(schema)}};
}

void AddSurvey(Tree& list, const ParameterInfo& parameter) {
  std::size_t number = 0;
  for (const QuestionInfo& question : parameter.questions) {
    const std::string words = std::string(question.text) + " " + ChoicesInWords(question.answers);
    list.push_back(InQuery(std::string(parameter.name) + "." + std::to_string(++number), words, true,
                           {{"type", "string"}, {"enum", ChoiceTexts(question.answers)}}));
  }
}

/// A list's example is the whole list, its schema that of a number.
void AddInput(Tree& list, const MemberInfo& member, const ParameterInfo& parameter) {
  std::string words = std::string(parameter.title) + ". " + std::string(parameter.help) + ".";
  if (const std::string_view unit = UnitName(parameter.unit); IsNumber(parameter.unit) && !unit.empty()) {
    words += " In: " + std::string(unit) + ".";
  }
  if (parameter.choices) words += " " + ChoicesInWords(parameter.choices->choices);
  const bool isRequired = parameter.omitted == Omitted::Required;
  if (ListOf(member, parameter)) {
    Tree input = InQuery(std::string(parameter.name), words, isRequired,
                         {{"type", "array"}, {"items", NumberSchema(parameter)}});
    if (auto example = json::ParseTree(parameter.example).tree) input["example"] = std::move(*example);
    list.push_back(std::move(input));
    return;
  }
  Tree schema = SchemaOf(parameter);
  Tree example = parameter.example.empty() ? Tree() : ExampleOf(parameter, schema);
  Tree input = InQuery(std::string(parameter.name), words, isRequired, std::move(schema));
  if (!example.is_null()) input["example"] = std::move(example);
  list.push_back(std::move(input));
}

void AddFind(Tree& list, const MemberInfo& member) {
  Tree inputs = Tree::array();
  for (const FindInfo& find : member.finds) {
    if (!find.input.empty()) inputs.push_back(find.input);
  }
  if (inputs.size() < 2) return;
  list.push_back(InQuery("find", "The input that is to be found from the others", false,
                         {{"type", "string"}, {"enum", inputs}}));
}

void AddFormat(Tree& list, const MemberInfo& member) {
  list.push_back(InQuery("format", "The answer's form, without it a page", false,
                         {{"type", "string"}, {"enum", {"csv", "json", "gif"}}}));
  Tree tables = Tree::array();
  for (const ParameterInfo& parameter : member.parameters) {
    if (parameter.IsResult() && parameter.table) tables.push_back(parameter.name);
  }
  tables.push_back("figures");
  list.push_back(InQuery("table",
                         "The table that is wanted as CSV, or the single figures; without it the schedule",
                         false, {{"type", "string"}, {"enum", tables}}));
  if (member.charts.empty()) return;
  list.push_back(InQuery("chart", "The chart that is wanted as GIF", false,
                         {{"type", "integer"}, {"minimum", 1}, {"maximum", member.charts.size()}}));
}

Tree PageOf(const MemberInfo& member) {
  Tree parameters = Tree::array();
  for (const ParameterInfo& parameter : member.parameters) {
    if (!parameter.IsInput()) continue;
    parameter.questions.empty() ? AddInput(parameters, member, parameter) : AddSurvey(parameters, parameter);
  }
  AddFind(parameters, member);
  AddFormat(parameters, member);
  Tree content = Content("text/html", {{"type", "string"}});
  content.update(Content("text/csv", {{"type", "string"}}));
  content.update(Content("application/json", Component("Reply")));
  if (!member.charts.empty()) content.update(Content("image/gif", Tree::object()));
  return {{"get",
           {{"operationId", member.address},
            {"tags", {GroupTitle(member.group)}},
            {"summary", member.title},
            {"description", member.help},
            {"parameters", std::move(parameters)},
            {"responses",
             {{"200", {{"description", "The answer"}, {"content", std::move(content)}}},
              {"400",
               {{"description", "An input that cannot be read"},
                {"content", Content("application/json", Component("Reply"))}}}}}}}};
}

Tree JsonOf(const char* id, const char* summary, Tree schema) {
  return {{"get",
           {{"operationId", id},
            {"summary", summary},
            {"responses",
             {{"200",
               {{"description", summary}, {"content", Content("application/json", std::move(schema))}}}}}}}};
}

Tree CallPath() {
  const auto reply = [](const char* description) {
    return Tree{{"description", description}, {"content", Content("application/json", Component("Reply"))}};
  };
  return {
      {"post",
       {{"operationId", "call"},
        {"summary", "One call"},
        {"description", "Calls a method by name, as the pages do."},
        {"requestBody", {{"required", true}, {"content", Content("application/json", Component("Call"))}}},
        {"responses",
         {{"200", reply("The results, or the error that the call raised")},
          {"400", reply("The request cannot be carried out")}}}}}};
}

Tree OpenCalls() {
  Tree calls = Tree::array();
  for (const auto& [type, member] : MembersInOrder()) {
    if (member->kind != MemberKind::Method) continue;
    const ClassInfo& owner = *type;
    const MemberInfo& method = *member;
    if (json::Try([&] { json::CheckOpen(owner, method); })) continue;
    calls.push_back(std::string(owner.name) + "." + std::string(method.name));
  }
  return calls;
}

Tree Schemas() {
  const Tree anything = Tree::object();
  const Tree call{{"type", "object"},
                  {"required", {"call"}},
                  {"additionalProperties", false},
                  {"properties",
                   {{"id", {{"description", "Comes back in the reply"}}},
                    {"call", {{"type", "string"}, {"enum", OpenCalls()}}},
                    {"args", {{"type", "object"}, {"description", "Values by the parameters' names"}}},
                    {"with", {{"type", "object"}, {"description", "Settings of a chart by their names"}}},
                    {"only", {{"type", "array"}, {"items", TextOf("The name of a result that is wanted")}}}}},
                  {"example",
                   {{"call", "Calculator.SimpleLoanCalculator"},
                    {"args", {{"vPurchaseAmt", 200000}, {"vPeriod", 360}, {"vIntRate", 6.5}}}}}};
  const Tree error{{"type", "object"},
                   {"required", {"number", "name"}},
                   {"properties",
                    {{"number", {{"type", "integer"}}},
                     {"name", {{"type", "string"}}},
                     {"message", {{"type", "string"}}},
                     {"text", TextOf("What went wrong, for a person")},
                     {"parameter", TextOf("The input that is at fault")}}}};
  const Tree note{{"type", "object"},
                  {"properties",
                   {{"code", {{"type", "string"}}},
                    {"parameter", {{"type", "string"}}},
                    {"text", {{"type", "string"}}}}}};
  const Tree reply{{"type", "object"},
                   {"properties",
                    {{"id", anything},
                     {"results", {{"type", "object"}, {"description", "Results by their names"}}},
                     {"return", anything},
                     {"response", {{"type", "string"}, {"contentEncoding", "base64"}}},
                     {"error", error},
                     {"notes", {{"type", "array"}, {"items", note}}}}}};
  return {{"Call", call}, {"Reply", reply}};
}

}  // namespace

std::string OpenApiJson() {
  Tree paths = Tree::object();
  for (const ClassMember& member : MembersInOrder()) {
    if (HasPage(member)) paths["/" + std::string(member.member->address)] = PageOf(*member.member);
  }
  paths["/call"] = CallPath();
  paths["/api"] = JsonOf("api", "All that can be called, with every parameter", {{"type", "object"}});
  paths["/openapi.json"] = JsonOf("openapi", "This description", {{"type", "object"}});
  return Tree{{"openapi", "3.1.0"},
              {"info",
               {{"title", "Amortix2"},
                {"version", AMORTIX2_VERSION},
                {"description",
                 "Calculators of personal finance. A page's inputs are read as people type them: $200,000, "
                 "6.5 %, 12/31/2026."}}},
              {"paths", std::move(paths)},
              {"components", {{"schemas", Schemas()}}}}
      .dump();
}

}  // namespace amortix2::pages
