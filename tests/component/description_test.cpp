// The description as a table: what every host takes for granted.

#include "amortix2/component/description.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <map>
#include <set>
#include <sstream>
#include <string>

#include "amortix2/automation/text_scanner.h"
#include "amortix2/component/describe_parameters.h"
#include "amortix2/component/description_checks.h"

namespace amortix2 {
namespace {

void ForEachMember(const std::function<void(const ClassInfo&, const MemberInfo&)>& look) {
  for (const ClassInfo* type : Classes()) {
    for (const MemberInfo& member : type->members) {
      SCOPED_TRACE(std::string(type->name) + "." + std::string(member.name));
      look(*type, member);
    }
  }
}

std::string Lower(std::string_view name) {
  std::string lower(name);
  for (char& c : lower) c = ToLower(c);
  return lower;
}

/// Names that stand side by side in a type library, and addresses in one site; the compiler compares those
/// within a class, a record or an enumeration.
TEST(Description, NamesAndAddressesAreUniqueWhateverTheirCase) {
  std::set<std::string> owners;
  std::set<std::string> constants;
  std::set<std::string> addresses;
  const auto add = [](std::set<std::string>& names, std::string_view name) {
    EXPECT_TRUE(names.insert(Lower(name)).second) << name;
  };
  for (const RecordInfo* record : Records()) add(owners, record->name);
  for (const EnumerationInfo* enumeration : Enumerations()) {
    add(owners, enumeration->name);
    for (const ConstantInfo& constant : enumeration->constants) add(constants, constant.name);
  }
  for (const ClassInfo* type : Classes()) add(owners, type->name);
  for (const ClassMember& member : MembersInOrder()) {
    if (!member.member->address.empty()) add(addresses, member.member->address);
  }
}

TEST(Description, MembersAreShownByGroups) {
  const std::span<const ClassMember> members = MembersInOrder();
  EXPECT_TRUE(
      std::ranges::is_sorted(members, {}, [](const ClassMember& member) { return member.member->group; }));
  EXPECT_EQ(members.front().member->name, "SimpleLoanCalculator");
  EXPECT_EQ(members.back().member->name, "AssetAllocation");
  EXPECT_EQ(GroupTitle(Group::Survey), "Survey");
}

TEST(Description, ChoicesAreFoundByValueTitleOrConstant) {
  const ChoicesInfo& choices =
      *FindParameter(*FindMember(*FindClass("Calculator"), "DepositCalculator"), "vFreq")->choices;
  for (const char* text : {"4", "monthly", "MonthlyMode"})
    EXPECT_EQ(FindChoice(choices, text)->title, "Monthly");
  EXPECT_EQ(FindChoice(choices, "sameasother"), nullptr);
  EXPECT_EQ(choices.choices.size(), 10u);
}

// ---- What does not compile, tried while the program runs: the same checks throw the same sentences.

const HeadingInfo kSmallColumns[] = {{"First"}, {"Second"}};
const TableInfo kSmallTable{
    .title = "Small", .firstRow = 1, .columns = std::span<const HeadingInfo>(kSmallColumns)};

TEST(Description, BrokenDescriptionsAreRefused) {
  using describing::MemberChecks;
  const Param input = Input("vIn", "In", Unit::Currency, "An input").Span(0, 10).Example("5");
  const Param asked = input.Find();
  const Param result = Result("vOut", "Out", Unit::Currency, "A result");
  const Param table = Result("vTable", "Table", Unit::Table, "A table").Of(kSmallTable);
  const std::string_view usual = "It is {vOut}.";
  struct Row {
    std::vector<Param> parameters;
    std::string_view figure, sentence, refusal;
  };
  const ChoiceInfo twice[] = {{"A", "One", {}}, {"a", "Two", {}}};
  const ChoicesInfo doubled{.title = "Letters", .choices = twice, .otherwise = {}, .enumeration = nullptr};
  const Row rows[] = {
      {{input, result}, "vOut", usual, ""},
      {{input, result, table}, "vTable(1,1)", usual, ""},
      {{input.Titled(""), result}, "vOut", usual, "a parameter has no title"},
      {{input.NoExample(), result}, "vOut", usual, "a required input has no example"},
      {{input.Example("11"), result}, "vOut", usual, "an example lies outside its range"},
      {{input.Example("5x"), result}, "vOut", usual, "the example of a number is no plain number"},
      {{input.In(Unit::Date), result}, "vOut", usual, "the example of a date is no ISO date"},
      {{input.Span(10, 0), result}, "vOut", usual, "the least of a range lies above its most"},
      {{input.Limit(2, 20), result}, "vOut", usual, "a range leaves its limit"},
      {{input.Of(doubled), result}, "vOut", usual, "a choice stands twice"},
      {{input.In(Unit::Code), result}, "vOut", usual, "a code names no choices"},
      {{input, result.Echoes("vOther")}, "vOut", usual, "a name is that of no input"},
      {{input.Of(kSmallTable), result}, "vOut", usual, "a single value has a table's description"},
      {{asked, result}, "vOut", usual, "an input that may be found is found by nothing"},
      {{input, result}, "vIn", usual, "a figure is no result"},
      {{input, result}, "vOut", "It is {vIn}.", "a figure is no result"},
      {{input, result}, "vOut", "It is {vOut.", "a sentence's place is not closed"},
      {{input, result}, "vOut", "", "a quantity that can be found has no sentence"},
      {{input, result, table}, "vTable(1,3)", usual, "a table has no such column"},
      {{input, result, table}, "vTable(one,1)", usual, "a figure's index is no number"},
  };
  for (const Row& row : rows) {
    std::vector<ParameterInfo> parameters(row.parameters.begin(), row.parameters.end());
    for (ParameterInfo& parameter : parameters) parameter.byReference = parameter.role == Role::Result;
    FindInfo find{.figure = row.figure, .sentences = {}};
    if (!row.sentence.empty()) find.sentences = {{row.sentence}};
    MemberInfo member{};
    member.title = member.help = "A member";
    member.finds = {&find, 1};
    std::string refusal;
    try {
      MemberChecks(parameters).Run(member);
    } catch (const char* text) {
      refusal = text;
    }
    EXPECT_EQ(refusal, row.refusal);
  }
}

TEST(Description, EverythingIsFoundByItsNameInAnyCase) {
  ForEachMember([](const ClassInfo& type, const MemberInfo& member) {
    EXPECT_EQ(FindClass(Lower(type.name)), &type);
    EXPECT_EQ(FindMember(type, Lower(member.name)), &member);
    EXPECT_EQ(FindMember(type, std::string(member.name) + "x"), nullptr);
    for (const ParameterInfo& parameter : member.parameters) {
      EXPECT_EQ(FindParameter(member, Lower(parameter.name)), &parameter);
    }
  });
  EXPECT_EQ(FindClass(""), nullptr);
}

/// Clients compiled against the type library call by number: a member keeps its own for ever.
TEST(Description, DispatchNumbersNeverChange) {
  std::map<std::string, std::vector<std::string>> pinned;
  std::ifstream file(AMORTIX2_DISPATCH_ORDER);
  for (std::string line; std::getline(file, line);) {
    std::istringstream words(line);
    std::string type;
    words >> type;
    for (std::string member; type != "#" && words >> member;) pinned[type].push_back(member);
  }
  EXPECT_EQ(pinned.size(), Classes().size());
  for (const ClassInfo* type : Classes()) {
    std::vector<std::string> members;
    for (const MemberInfo& member : type->members) members.emplace_back(member.name);
    EXPECT_EQ(members, pinned[std::string(type->name)])
        << type->name << ": new members go to the end of their class, and here to the end of the file";
  }
}

}  // namespace
}  // namespace amortix2
