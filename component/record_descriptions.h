#pragma once

// The records and enumerations of the public interface, described.

#include "amortix2/component/describe.h"
#include "amortix2/engine/records.h"

namespace amortix2 {

template <>
const RecordInfo DescribedRecord<tSchedule>::info;
template <>
const RecordInfo DescribedRecord<tLoanDesc>::info;
template <>
const RecordInfo DescribedRecord<tSavingsDesc>::info;
template <>
const RecordInfo DescribedRecord<tGoalDesc>::info;
template <>
const RecordInfo DescribedRecord<tCreditQualification>::info;

template <>
const EnumerationInfo DescribedEnumeration<specialConstants>::info;
template <>
const EnumerationInfo DescribedEnumeration<enumAmortixType>::info;
template <>
const EnumerationInfo DescribedEnumeration<enumLoanType>::info;
template <>
const EnumerationInfo DescribedEnumeration<enumSavingsType>::info;
template <>
const EnumerationInfo DescribedEnumeration<enumFrequencyType>::info;

}  // namespace amortix2
