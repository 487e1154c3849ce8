#include "amortix2/component/description.h"

#include <array>

#include "amortix2/component/classes.h"
#include "amortix2/component/describe.h"
#include "amortix2/component/gif_record_descriptions.h"
#include "amortix2/component/record_descriptions.h"

namespace amortix2 {
namespace {

constexpr std::array<const RecordInfo*, 7> kRecords{
    &DescribedRecord<tSchedule>::info,
    &DescribedRecord<tLoanDesc>::info,
    &DescribedRecord<tSavingsDesc>::info,
    &DescribedRecord<tGoalDesc>::info,
    &DescribedRecord<tCreditQualification>::info,
    &DescribedRecord<GifHeader>::info,
    &DescribedRecord<ImageBlock>::info,
};

constexpr std::array<const EnumerationInfo*, 5> kEnumerations{
    &DescribedEnumeration<specialConstants>::info,  &DescribedEnumeration<enumAmortixType>::info,
    &DescribedEnumeration<enumLoanType>::info,      &DescribedEnumeration<enumSavingsType>::info,
    &DescribedEnumeration<enumFrequencyType>::info,
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

template <class Items>
auto Find(const Items& items, std::string_view name) noexcept -> decltype(&*items.begin()) {
  for (const auto& item : items) {
    if (SameName(item.name, name)) return &item;
  }
  return nullptr;
}

}  // namespace

std::string_view UnitName(Unit unit) noexcept { return kUnitNames[static_cast<std::size_t>(unit)]; }

std::span<const RecordInfo* const> Records() noexcept { return kRecords; }

std::span<const EnumerationInfo* const> Enumerations() noexcept { return kEnumerations; }

bool SameName(std::string_view a, std::string_view b) noexcept { return describing::Same(a, b); }

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

}  // namespace amortix2
