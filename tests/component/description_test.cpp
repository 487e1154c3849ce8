// The description as a table: what every host takes for granted.

#include "amortix2/component/description.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <map>
#include <set>
#include <string>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/error.h"
#include "amortix2/automation/text_scanner.h"

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

void ForEachParameter(const std::function<void(const MemberInfo&, const ParameterInfo&)>& look) {
  ForEachMember([&](const ClassInfo&, const MemberInfo& member) {
    for (const ParameterInfo& parameter : member.parameters) {
      SCOPED_TRACE(std::string(parameter.name));
      look(member, parameter);
    }
  });
}

std::string Lower(std::string_view name) {
  std::string lower(name);
  for (char& c : lower) c = ToLower(c);
  return lower;
}

/// Names are identifiers and differ by more than their case.
template <class Items>
void ExpectGoodNames(const Items& items) {
  std::set<std::string> seen;
  for (const auto& item : items) {
    EXPECT_TRUE(IsLetter(item.name.empty() ? '0' : item.name.front())) << item.name;
    for (const char c : item.name) EXPECT_TRUE(IsLetter(c) || IsDigit(c)) << item.name;
    EXPECT_TRUE(seen.insert(Lower(item.name)).second) << item.name;
    EXPECT_GE(item.help.size(), 3u) << item.name;
  }
}

bool HoldsNumber(TypeKind kind) {
  return kind == TypeKind::Double || kind == TypeKind::Byte || kind == TypeKind::Integer ||
         kind == TypeKind::Long || kind == TypeKind::Enumeration;
}

TEST(Description, NamesAreIdentifiersUniqueWhateverTheirCase) {
  std::set<std::string> owners;
  for (const ClassInfo* type : Classes()) {
    EXPECT_TRUE(owners.insert(Lower(type->name)).second) << type->name;
    ExpectGoodNames(type->members);
  }
  for (const RecordInfo* record : Records()) {
    EXPECT_TRUE(owners.insert(Lower(record->name)).second) << record->name;
    ExpectGoodNames(record->fields);
  }
  // Constants of all enumerations share one name space in type libraries.
  std::set<std::string> constants;
  for (const EnumerationInfo* enumeration : Enumerations()) {
    EXPECT_TRUE(owners.insert(Lower(enumeration->name)).second) << enumeration->name;
    ExpectGoodNames(enumeration->constants);
    for (const ConstantInfo& constant : enumeration->constants) {
      EXPECT_TRUE(constants.insert(Lower(constant.name)).second) << constant.name;
    }
  }
  ForEachMember([](const ClassInfo&, const MemberInfo& member) { ExpectGoodNames(member.parameters); });
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

TEST(Description, OptionalParametersAreVariantsAtTheEnd) {
  ForEachMember([](const ClassInfo&, const MemberInfo& member) {
    bool optional = false;
    for (const ParameterInfo& parameter : member.parameters) {
      EXPECT_FALSE(optional && !parameter.optional) << parameter.name;
      optional = parameter.optional;
      EXPECT_TRUE(!optional || parameter.type->kind == TypeKind::Variant) << parameter.name;
    }
  });
}

TEST(Description, ResultsGoBothWaysAndInputsOneWay) {
  // Names of arguments that come back; the grid's own inputs and the comparison by target term pass theirs
  // through.
  const auto isResult = [](std::string_view name) {
    for (const std::string_view part : {"vRes", "vTot", "vGrid", "vDet", "vNewDet", "vCurrDet", "vStrat"}) {
      if (name.starts_with(part)) return true;
    }
    return false;
  };
  ForEachParameter([&](const MemberInfo& member, const ParameterInfo& parameter) {
    EXPECT_TRUE(!isResult(parameter.name) || parameter.byReference);
    EXPECT_TRUE(!parameter.type->record || parameter.byReference);
    EXPECT_TRUE(member.kind != MemberKind::PropertyPut || !parameter.byReference);
  });
}

TEST(Description, EveryNumberHasAUnit) {
  ForEachParameter([](const MemberInfo&, const ParameterInfo& parameter) {
    const TypeKind kind = parameter.type->kind;
    const bool isRead = parameter.help != "Accepted and not read";
    const bool mayBeNumber = HoldsNumber(kind) || (kind == TypeKind::Variant && isRead);
    EXPECT_TRUE(!mayBeNumber || parameter.unit != Unit::None);
    EXPECT_TRUE(kind != TypeKind::Enumeration || parameter.unit == Unit::Code);
  });
  for (const RecordInfo* record : Records()) {
    for (const FieldInfo& field : record->fields) {
      EXPECT_TRUE(!HoldsNumber(field.type->kind) || field.unit != Unit::None) << field.name;
      EXPECT_TRUE(field.type->kind != TypeKind::Date || field.unit == Unit::Date) << field.name;
    }
  }
}

TEST(Description, PropertiesTakeOneValueAndReturnNothing) {
  ForEachMember([](const ClassInfo&, const MemberInfo& member) {
    if (member.kind != MemberKind::PropertyPut) return;
    EXPECT_EQ(member.parameters.size(), 1u);
    EXPECT_EQ(member.result, nullptr);
  });
}

/// Writes to every field of a record and reads all back: no two fields share a place.
TEST(Description, FieldsKeepTheirOwnValues) {
  for (const RecordInfo* record : Records()) {
    const auto isOf = [&](const TypeInfo& type) { return type.record == record; };
    const TypeInfo* arrays = nullptr;
    ForEachParameter([&](const MemberInfo&, const ParameterInfo& parameter) {
      const TypeInfo& type = *parameter.type;
      if (isOf(type) && type.kind == TypeKind::RecordArray) arrays = &type;
      if (!type.record) return;
      for (const FieldInfo& field : type.record->fields) {
        if (isOf(*field.type)) arrays = field.type;
      }
    });
    if (!arrays) continue;
    Value list(*arrays);
    arrays->resize(list.Get(), {0, 0});
    void* const one = arrays->at(list.Get(), 0);
    EXPECT_THROW(arrays->at(list.Get(), 1), AutomationError);
    for (std::size_t i = 0; i < record->fields.size(); ++i) {
      const FieldInfo& field = record->fields[i];
      if (field.type->write) field.type->write(field.in(one), static_cast<double>(i + 1));
    }
    for (std::size_t i = 0; i < record->fields.size(); ++i) {
      const FieldInfo& field = record->fields[i];
      if (!field.type->read) continue;
      EXPECT_EQ(ToDouble(field.type->read(field.in(one))), static_cast<double>(i + 1)) << field.name;
    }
  }
}

TEST(Description, ACallNeedsAllItsArguments) {
  class SomeDay final : public Clock {
    Date Today() const override { return {}; }
  };
  const SomeDay clock;
  ForEachMember([&](const ClassInfo& type, const MemberInfo& member) {
    Object object(type, clock);
    if (member.parameters.empty()) return;
    EXPECT_THROW(member.call(object.Get(), {}, nullptr), AutomationError);
  });
}

/// Clients compiled against the type library call by number: a member keeps its own for ever.
TEST(Description, DispatchNumbersNeverChange) {
  std::map<std::string, std::vector<std::string>> pinned;
  std::ifstream file(AMORTIX2_DISPATCH_ORDER);
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line.front() == '#') continue;
    const std::size_t dot = line.find('.');
    pinned[line.substr(0, dot)].push_back(line.substr(dot + 1));
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
