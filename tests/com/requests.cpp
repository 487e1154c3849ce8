// Random requests over every member that scripts can call, one line of JSON each, for the two hosts whose
// replies the differential test compares. Arguments are those of the description's examples, their numbers
// moved about, and now and then anything at all.
//
//   com_requests COUNT

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "amortix2/automation/conversion.h"
#include "amortix2/component/description.h"
#include "amortix2/json/json_text.h"
#include "amortix2/json/tree.h"
#include "amortix2/json/variant_reader.h"
#include "amortix2/json/variant_writer.h"
#include "json/random_values.h"

namespace amortix2::json {
namespace {

SeededRandom randomSource(20010131);
RandomValues randomValues(randomSource);

Variant Plausible(std::string_view example) {
  if (example.starts_with('[')) return ToVariant(*ParseTree(example).tree);
  const std::optional<double> number = ParseNumber(example);
  if (!number || randomValues.Pick(4) == 0) return example;
  return *number * static_cast<double>(randomValues.Pick(150)) / 100;
}

Variant ValueFor(const ParameterInfo& parameter, std::int64_t oddOfHundred) {
  if (parameter.type->kind == TypeKind::String || parameter.example == "chart.gif")
    return std::string_view("chart" + std::to_string(randomValues.Pick(9)) + ".gif");
  if (randomValues.Pick(100) < oddOfHundred) {
    const Variant any = randomValues.Any();
    return any == kMissing ? kNull : any;  // which COM does not take for a value
  }
  const bool isTable = parameter.unit == Unit::Table && parameter.name != "vPal";
  if (isTable && randomValues.Pick(2) == 0) return randomValues.AnyArray(0);
  return parameter.example.empty() ? Variant() : Plausible(parameter.example);
}

void AppendSettings(std::string& out, const ClassInfo& type) {
  ObjectWriter settings(out);
  for (const MemberInfo& member : type.members) {
    const bool isProperty = member.kind == MemberKind::PropertyPut;
    if ((!isProperty && !member.name.starts_with("Set")) || randomValues.Pick(6) > 0) continue;
    std::string values;
    AppendSeparated(values, member.parameters, [&](const ParameterInfo& parameter) {
      AppendVariant(values, ValueFor(parameter, 20), Form::WithTypes);
    });
    settings.Field(member.name) += isProperty ? values : "[" + values + "]";
  }
  settings.Close();
}

std::string Request(int number, const ClassInfo& type, const MemberInfo& member) {
  std::string out;
  ObjectWriter request(out);
  AppendNumber(request.Field("id"), std::int64_t{number});
  AppendText(request.Field("call"), std::string(type.name) + "." + std::string(member.name));
  AppendSettings(request.Field("with"), type);
  ObjectWriter arguments(request.Field("args"));
  const std::int64_t odd = 8 * randomValues.Pick(3);
  for (const ParameterInfo& parameter : member.parameters) {
    if (parameter.optional && randomValues.Pick(2) == 0) break;
    AppendVariant(arguments.Field(parameter.name), ValueFor(parameter, odd), Form::WithTypes);
  }
  arguments.Close();
  request.Close();
  return out;
}

bool ScriptsCanCall(const MemberInfo& member) {
  return member.kind == MemberKind::Method &&
         std::ranges::none_of(member.parameters, [](const ParameterInfo& parameter) {
           return parameter.type->record != nullptr || parameter.type->kind == TypeKind::ScriptingContext;
         });
}

}  // namespace
}  // namespace amortix2::json

int main(int, char** arguments) {
  const int count = std::atoi(arguments[1]);
  for (int i = 0; i < count;) {
    for (const amortix2::ClassInfo* type : amortix2::Classes()) {
      for (const amortix2::MemberInfo& member : type->members) {
        if (amortix2::json::ScriptsCanCall(member))
          std::puts(amortix2::json::Request(i++, *type, member).c_str());
      }
    }
  }
}
