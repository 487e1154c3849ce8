#include "amortix2/component/description.h"

#include <algorithm>
#include <array>
#include <vector>

#include "amortix2/component/classes.h"
#include "amortix2/component/gif_record_descriptions.h"
#include "amortix2/component/names.h"
#include "amortix2/component/record_descriptions.h"

namespace amortix2 {
namespace {

constexpr std::array<const RecordInfo*, 7> kRecords{
    &kRecordInfo<tSchedule>,
    &kRecordInfo<tLoanDesc>,
    &kRecordInfo<tSavingsDesc>,
    &kRecordInfo<tGoalDesc>,
    &kRecordInfo<tCreditQualification>,
    &kRecordInfo<GifHeader>,
    &kRecordInfo<ImageBlock>,
};

constexpr std::array<const EnumerationInfo*, 5> kEnumerations{
    &kEnumerationInfo<specialConstants>,  &kEnumerationInfo<enumAmortixType>,
    &kEnumerationInfo<enumLoanType>,      &kEnumerationInfo<enumSavingsType>,
    &kEnumerationInfo<enumFrequencyType>,
};

constexpr std::array kUnitNames{
    "",
    "text",
    "0 or not 0",
    "count",
    "code",
    "currency",
    "currency a month",
    "percent",
    "annual percent",
    "percentage points",
    "days",
    "months",
    "years",
    "periods",
    "date",
    "pixels",
    "table",
    "list",
};
static_assert(kUnitNames.size() == static_cast<std::size_t>(Unit::List) + 1);

constexpr std::array<std::string_view, kGroups> kGroupTitles{
    "Loans", "Leases", "Mortgages", "Comparisons", "Savings", "Retirement", "Records", "Charts", "Survey",
};

template <class Items>
auto Find(const Items& items, std::string_view name) noexcept -> decltype(&*items.begin()) {
  for (const auto& item : items) {
    if (SameName(item.name, name)) return &item;
  }
  return nullptr;
}

}  // namespace

std::string_view UnitName(Unit unit) noexcept { return kUnitNames[static_cast<std::size_t>(unit)]; }

std::string_view GroupTitle(Group group) noexcept { return kGroupTitles[static_cast<std::size_t>(group)]; }

std::span<const RecordInfo* const> Records() noexcept { return kRecords; }

std::span<const EnumerationInfo* const> Enumerations() noexcept { return kEnumerations; }

bool SameName(std::string_view a, std::string_view b) noexcept { return describing::Same(a, b); }

std::span<const ClassMember> MembersInOrder() {
  static const std::vector<ClassMember> kMembers = [] {
    std::vector<ClassMember> members;
    for (const ClassInfo* type : Classes()) {
      for (const MemberInfo* member : type->inOrder) members.push_back({type, member});
    }
    std::ranges::stable_sort(members, {}, [](const ClassMember& member) { return member.member->group; });
    return members;
  }();
  return kMembers;
}

const ClassInfo* FindClass(std::string_view name) noexcept {
  for (const ClassInfo* type : Classes()) {
    if (SameName(type->name, name)) return type;
  }
  return nullptr;
}

const MemberInfo* FindMember(const ClassInfo& type, std::string_view name) noexcept {
  return Find(type.members, name);
}

const ParameterInfo* FindParameter(const MemberInfo& member, std::string_view name) noexcept {
  return Find(member.parameters, name);
}

const FieldInfo* FindField(const RecordInfo& record, std::string_view name) noexcept {
  return Find(record.fields, name);
}

const ChoiceInfo* FindChoice(const ChoicesInfo& choices, std::string_view text) noexcept {
  for (const ChoiceInfo& choice : choices.choices) {
    const bool isNamed = !choice.name.empty() && SameName(choice.name, text);
    if (SameName(choice.text, text) || SameName(choice.title, text) || isNamed) return &choice;
  }
  return nullptr;
}

}  // namespace amortix2
