#pragma once

// What the savings calculators share.

#include <cstdint>

#include "amortix2/automation/conversion.h"
#include "amortix2/calculators/savings.h"

namespace amortix2::calculators {

/// Has the engine find what is marked unknown, and schedule the plan.
void SolveRecord(tSavingsDesc& plan);

/// The last day of a question's plan; the first valid day, which lies before any start, when it is looked
/// for. Raises InvalidProcedureCall for a term below 0.
Date EndOf(Date start, enumFrequencyType frequency, const std::optional<double>& periods,
           const std::optional<Date>& endDate);

/// The engine's record of what questions about saving and spending have in common. Raises as EndOf does.
template <class Question>
tSavingsDesc PlanOf(const Question& question) {
  tSavingsDesc plan;
  plan.typ = simpleSavings;
  plan.startDate = question.startDate;
  plan.paymentMode = question.frequency;
  plan.startingBalance = OrUnknown(question.balance);
  plan.intRate = OrUnknown(question.annualPercent);
  plan.endDate = EndOf(question.startDate, question.frequency, question.periods, question.endDate);
  return plan;
}

/// Rows of a plan's table after its opening row: one for each whole period between its dates, and one for
/// days that are left over.
std::int32_t RowsWithLeftover(Date start, enumFrequencyType frequency, Date end);

/// A number of enumFrequencyType. Raises Overflow beyond 16 bits.
inline enumFrequencyType FrequencyOf(double number) { return enumFrequencyType{ToInteger(number)}; }

/// The end of a plan of `periods` periods, of which 0 and less stand for a term that is looked for: day 0
/// then, which lies before the start of any plan of the last hundred years.
inline Date EndAfter(Date start, enumFrequencyType frequency, double periods) {
  return periods > 0 ? DateAfter(start, frequency, periods) : Date();
}

}  // namespace amortix2::calculators
