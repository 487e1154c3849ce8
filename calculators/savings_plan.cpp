#include "amortix2/calculators/savings_plan.h"

#include <cmath>
#include <utility>

#include "amortix2/calculators/work.h"
#include "amortix2/engine/frequency.h"
#include "amortix2/engine/savings_detail.h"

namespace amortix2::calculators {

tSavingsDesc NewPlan(Date startDate, const Variant& vFreq) {
  tSavingsDesc plan;
  plan.typ = simpleSavings;
  plan.startDate = startDate;
  plan.paymentMode = enumFrequencyType{ToInteger(NumericOrZero(vFreq))};
  return plan;
}

Date DateAfter(const tSavingsDesc& plan, enumFrequencyType frequency, double periods) {
  return AdvanceDate(plan.startDate, frequency, ToLong(std::floor(periods)));
}

void Solve(tSavingsDesc& plan) {
  Work work = Work::ForSavings();
  tSavingsDesc& record = work.savings.At(1);
  record = std::move(plan);
  work.Solve(SavingsCalculator);
  plan = std::move(record);
}

std::int32_t RowsWithLeftover(const tSavingsDesc& plan) {
  const WholePeriods count = CountWholePeriods(plan.startDate, plan.paymentMode, plan.endDate);
  return count.periods + (count.days != 0 ? 1 : 0);
}

Array PlanDetail(const tSavingsDesc& plan, std::int32_t lastRow) {
  Array detail = Table(lastRow);
  LoadSaveDetArray(plan, 1, ToInteger(lastRow), detail);
  return detail;
}

}  // namespace amortix2::calculators
