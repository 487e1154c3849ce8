#pragma once

// Savings plans for tests and benchmarks that sweep over thousands of them.

#include "amortix2/engine/frequency.h"
#include "amortix2/engine/records.h"
#include "random.h"

namespace amortix2 {

class RandomSavings {
 public:
  explicit RandomSavings(Random& random) : random_(random) {}

  std::int32_t Below(std::int32_t limit) { return static_cast<std::int32_t>(random_.Below(limit)); }
  /// 0 to `largest`, in cents.
  double Money(std::int32_t largest) { return Below(largest * 100 + 1) / 100.0; }

  /// A plan as a person would make one: any compounding frequency but simple interest, whole periods, a goal.
  tSavingsDesc Sensible() {
    constexpr enumFrequencyType kModes[] = {sameasother,   weeklyMode,    biweeklyMode,   monthlyMode,
                                            bimonthlyMode, quarterlyMode, semiannualMode, annualMode};
    tSavingsDesc plan;
    plan.startDate = Date{36000 + Below(20000)};
    plan.paymentMode = kModes[Below(8)];
    plan.endDate = AdvanceDate(plan.startDate, plan.paymentMode, 1 + Below(60));
    plan.startingBalance = Below(4) == 0 ? 0 : Money(20000);
    plan.deposit = 1 + Money(1000);
    plan.withdrawal = Below(4) == 0 ? Money(300) : 0;
    plan.intRate = Below(1500) / 100.0;
    plan.taxRate = Below(3) == 0 ? Below(60) : 0;
    plan.endingBalance = Money(100000);
    return plan;
  }

  /// A plan of any frequencies, any span with a whole period in it, rates on both sides of 0 and any tax.
  tSavingsDesc OfEveryModeAndSpan() {
    tSavingsDesc plan = Sensible();
    plan.paymentMode = enumFrequencyType{Below(12)};
    plan.compoundingMode = enumFrequencyType{Below(3) == 0 ? Below(12) : 0};
    plan.endDate = AdvanceDate(plan.startDate, plan.paymentMode, 1 + Below(80));
    if (Below(2) == 0) plan.endDate = AddDays(plan.endDate, Below(400));
    plan.intRate = Below(2000) / 100.0 - 3;
    return plan;
  }

  /// Anything: goals below the deposits, losses, empty and tiny terms, spans with days left over, unknown
  /// ends, every frequency, amounts of any size.
  tSavingsDesc Wild() {
    tSavingsDesc plan = Sensible();
    plan.paymentMode = enumFrequencyType{Below(12)};
    plan.compoundingMode = enumFrequencyType{Below(3) == 0 ? Below(12) : 0};
    plan.endDate = Date{plan.startDate.serial + Below(4000) - 100};
    for (double* field : {&plan.startingBalance, &plan.deposit, &plan.withdrawal, &plan.endingBalance}) {
      constexpr double kOdd[] = {0, -1, 0.01, 1e-300, 1e17, 1e300, -1e300, 333.333, -12345};
      if (Below(4) == 0) *field = kOdd[Below(9)];
    }
    return plan;
  }

 private:
  Random& random_;
};

}  // namespace amortix2
