// A plan is laid out first: how many lines, how many days are left over, which goal ends it. Then one running
// balance writes the lines in turn. Everything is computed aside and put into the record at the end.

#include "amortix2/engine/savings_schedule.h"

#include <optional>
#include <utility>

#include "amortix2/automation/conversion.h"
#include "amortix2/engine/rounding.h"
#include "amortix2/engine/running_savings.h"
#include "amortix2/engine/savings_goal.h"
#include "amortix2/engine/schedule_parts.h"

namespace amortix2 {
namespace {

bool IsEndUnknown(const tSavingsDesc& save) { return save.endDate < save.startDate; }

tSchedule OpeningLine(const tSavingsDesc& save) {
  tSchedule line;
  line.lineDate = save.startDate;
  line.startingBalance = save.startingBalance;
  line.endingBalance = save.startingBalance;
  return line;
}

/// Every line of `save`, whose end, deposit and withdrawal are those that the plan runs with.
class SavingsSchedule {
 public:
  SavingsSchedule(const tSavingsDesc& save, WholePeriods periods, std::optional<double> goal)
      : save_(save), growth_(save, save.intRate), running_(save) {
    lines_.reserve(LineCount(periods));
    lines_.push_back(OpeningLine(save));
    WriteRegularLines(periods.periods);
    if (goal) StopAtGoal(*goal);
    if (periods.days != 0) WriteLeftoverLine(periods.days);
  }

  /// Raises Overflow when a total is not finite; `save` is unchanged then.
  void Store(tSavingsDesc& save) && {
    double interest = 0;
    double tax = 0;
    double payments = 0;
    for (const tSchedule& line : lines_) {
      interest += line.intCredited;
      tax += line.taxCharged;
      payments += line.payment;
    }
    Finite(interest);
    Finite(tax);
    Finite(payments);
    save.endingBalance = Finite(lines_.back().endingBalance);
    save.totIntCredited = interest;
    save.totTaxCharged = tax;
    save.totPayments = payments;
    save.schedule = std::move(lines_);
  }

 private:
  static std::size_t LineCount(WholePeriods periods) {
    return static_cast<std::size_t>(ToInteger(periods.periods)) + 1 + (periods.days != 0 ? 1 : 0);
  }

  void WriteRegularLines(std::int32_t count) {
    constexpr std::int32_t kPlainLines = 16;  // before whole cents are tried again
    DateSteps dates = SavingsDates(save_, count);
    for (std::int32_t i = 1; i <= count; ++i) {
      if (i % kPlainLines == 1) i += WriteCertainLines(count + 1 - i, dates);
      if (i > count) break;
      const Amount before = running_.balance;
      const Date date = dates.Next();
      running_.NextLine(growth_, date.serial - lines_.back().lineDate.serial);
      tSchedule& line = lines_.emplace_back();
      line.lineDate = date;
      line.startingBalance = before.value;
      line.intRate = growth_.AfterTaxRate();
      line.payment = running_.deposit.value;
      line.intCredited = RoundToCents(running_.grown - before).value;
      line.endingBalance = running_.balance.value;
    }
  }

  [[gnu::noinline, gnu::flatten]] int WriteCertainLines(int most, DateSteps& dates) {
    const double factor = growth_.LineFactor();
    if (factor == 0) return 0;
    const double rate = growth_.AfterTaxRate();
    const double deposit = running_.deposit.value;
    return WriteWholeCents(lines_, running_.balance, deposit, factor, dates, most,
                           [=](tSchedule& line, double interest) {
                             line.intRate = rate;
                             line.payment = deposit;
                             line.intCredited = interest;
                           });
  }

  /// A last line that interest and deposit carry across the goal ends on it.
  void StopAtGoal(double goal) {
    tSchedule& last = lines_.back();
    const double deposit = NetDeposit(save_);
    const double begun = last.startingBalance;
    const double ended = last.endingBalance;
    const bool isCrossed = deposit > 0   ? begun <= goal && ended > goal
                           : deposit < 0 ? begun >= goal && ended < goal
                                         : false;
    if (!isCrossed) return;
    last.payment = WithoutMinusZero(last.payment + goal - ended);
    last.endingBalance = goal;
  }

  void WriteLeftoverLine(std::int32_t days) {
    const Date date = AddDays(lines_.back().lineDate, days);
    tSchedule& line = lines_.emplace_back();
    line.lineDate = date;
    const Amount interest = growth_.OfDays(running_.balance, days);
    line.startingBalance = running_.balance.value;
    line.intRate = save_.intRate;
    line.intCredited = interest.value;
    line.taxCharged = WithoutMinusZero(save_.taxRate / 100 * line.intCredited);
    line.endingBalance = (running_.balance + interest).value;
  }

  const tSavingsDesc& save_;
  SavingsGrowth growth_;
  RunningSavings running_;
  std::vector<tSchedule> lines_;
};

}  // namespace

WholePeriods SavingsPeriods(const tSavingsDesc& save) {
  if (IsEndUnknown(save)) return {};
  return CountWholePeriods(save.startDate, save.paymentMode, save.endDate);
}

DateSteps SavingsDates(const tSavingsDesc& save, std::int32_t count) {
  // A plan's lines of these two lie a year apart, unlike AdvanceDate's steps.
  const bool isYearly = save.paymentMode == exactDaysMode || save.paymentMode == continuousMode;
  return {save.startDate, StepOf(isYearly ? annualMode : save.paymentMode), count};
}

void BuildSavingsSchedule(tSavingsDesc& save) {
  if (!IsEndUnknown(save)) {
    SavingsSchedule(save, SavingsPeriods(save), {}).Store(save);
    return;
  }
  const SavingsGoal found = FindGoal(save);
  tSavingsDesc plan = save;
  plan.deposit = found.deposit;
  plan.withdrawal = found.withdrawal;
  plan.endDate = AdvanceDate(save.startDate, save.paymentMode, found.lines);
  SavingsSchedule(plan, {.periods = found.lines}, found.goal).Store(plan);
  save = std::move(plan);
}

}  // namespace amortix2
