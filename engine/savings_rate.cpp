// The ending balance B(x) rises with the growth factor x, unless the plan opens with a debt, whose interest
// may outrun the deposits: B then falls, from some x on or everywhere. A bracket [low, high] with B(low) at
// or below the goal and B(high) above it closes either way; where the high end finds no such balance there is
// no answer. Interest that is too little for the withdrawals counts as a balance of minus infinity, whatever
// the goal, and one that leaves the doubles as an infinity of its balance's sign.
//
// Without interest, x = 1, most plans fall short. The high end is then twice the factor that simple interest
// on all payments would ask for,
//
//   x = ((goal / (D n + B0)) - 1) / n * 2 + 1,
//
// or, for withdrawals D from a balance that is to last, the factor (B0 - D) / B0 whose interest pays for
// them; if that is not enough its distance from 1 is doubled until it is. Two midpoints, then secant steps
// through the last two trials. A secant that leaves the bracket, or that joins balances of too different
// size, gives way to the midpoint. Rounding makes B a staircase on which secants can creep, so that from some
// round on only midpoints are taken.

#include "amortix2/engine/savings_rate.h"

#include <cmath>
#include <limits>
#include <vector>

#include "amortix2/engine/elementary.h"
#include "amortix2/engine/frequency.h"
#include "amortix2/engine/rounding.h"
#include "amortix2/engine/running_savings.h"
#include "amortix2/engine/savings_schedule.h"

namespace amortix2 {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// A growth factor and the ending balance that it leads to.
struct Point {
  double factor = 0;
  double balance = 0;
};

/// Tries growth factors on one plan, without dates and lines.
class SavingsTrials {
 public:
  explicit SavingsTrials(const tSavingsDesc& save)
      : save_(save),
        periods_(SavingsPeriods(save)),
        scale_(100 * PeriodsPerYear(save.paymentMode)),
        opening_(save),
        daysOfLines_(static_cast<std::size_t>(periods_.periods)) {
    if (CompoundingMode(save) == continuousMode) CountDays();
    if (AfterTaxFraction(save) == 0) TakeLinesOnce();
  }

  /// False when no rate raises the balance above the one without interest: all interest goes in taxes, or
  /// it is simple interest on a debt that is still one without it.
  bool CanRiseAbove(const Point& still) const {
    const double kept = AfterTaxFraction(save_);
    const bool isDebt = CompoundingMode(save_) == exactDaysMode && save_.startingBalance < 0 && kept > 0 &&
                        still.balance <= 0;
    return !isDebt && (kept != 0 || periods_.days != 0);
  }

  double AnnualPercent(double factor) const { return (factor - 1) * scale_; }

  Point Try(double factor) const { return {factor, EndingBalance(AnnualPercent(factor))}; }

  bool Passes(const Point& point) const { return point.balance > save_.endingBalance; }
  bool Meets(const Point& point) const {
    return std::isfinite(point.balance) && RoundToCents(point.balance) == RoundToCents(save_.endingBalance);
  }

  /// Distance of the first high end from 1, above 0.
  double FirstDistance() const {
    const double opening = save_.startingBalance;
    const double deposit = NetDeposit(save_);
    const double goal = save_.endingBalance;
    const int count = periods_.periods;
    const double distance = opening >= goal && deposit < 0
                                ? Divide(opening - deposit, opening) - 1
                                : Divide(Divide(goal, deposit * count + opening) - 1, count) * 2;
    return distance == 0 ? 1 : std::abs(distance);
  }

 private:
  void CountDays() {
    DateSteps dates = SavingsDates(save_, periods_.periods);
    Date previous = save_.startDate;
    for (std::int32_t& days : daysOfLines_) {
      const Date date = dates.Next();
      days = date.serial - previous.serial;
      previous = date;
    }
  }

  void RunLines(RunningSavings& running, const SavingsGrowth& growth) const {
    for (const std::int32_t days : daysOfLines_) {
      if (running.ranDry) return;
      running.NextLine(growth, days);
    }
  }

  /// Where no interest is left after tax, the lines are the same at every rate.
  void TakeLinesOnce() {
    try {
      RunLines(opening_, SavingsGrowth(save_, 0));
      daysOfLines_.clear();
    } catch (const AutomationError&) {  // each trial ends where this one did
      opening_ = RunningSavings(save_);
    }
  }

  double EndingBalance(double annualPercent) const {
    RunningSavings running = opening_;
    try {
      const SavingsGrowth growth(save_, annualPercent);
      RunLines(running, growth);
      if (running.ranDry) return -kInfinity;
      const Amount balance = running.balance;
      return Finite((periods_.days == 0 ? balance : balance + growth.OfDays(balance, periods_.days)).value);
    } catch (const AutomationError& error) {
      // A trial that overflows is an answer of the search, not its failure.
      if (error.Number() != ErrorNumber::Overflow) throw;
      const double balance = running.balance.value;
      if (balance != 0) return std::copysign(kInfinity, balance);
      // An infinite growth of nothing: it is the first deposit that later lines grow.
      const double deposit = NetDeposit(save_);
      return periods_.periods > 1 ? std::copysign(kInfinity, deposit) : deposit;
    }
  }

  const tSavingsDesc& save_;
  WholePeriods periods_;
  double scale_;
  RunningSavings opening_;                 // from which a trial's lines go on
  std::vector<std::int32_t> daysOfLines_;  // all 0 unless interest compounds continuously
};

/// The ends of the search, and its last two rounds.
class Bracket {
 public:
  Bracket(Point low, Point high) : low_(low), high_(high) {}

  double Midpoint() const { return low_.factor / 2 + high_.factor / 2; }
  bool IsClosed() const { return !IsInside(Midpoint()); }

  double NextFactor(double goal) const {
    constexpr int kMidpointsFirst = 2;
    constexpr int kSecantsUntil = 64;
    if (rounds_ < kMidpointsFirst || rounds_ >= kSecantsUntil) return Midpoint();
    constexpr double kLargestRatio = 16;  // of balances, as a logarithm
    const double ratio =
        NaturalLogarithm(std::abs(latest_.balance)) - NaturalLogarithm(std::abs(previous_.balance));
    const double secant = previous_.factor + (latest_.factor - previous_.factor) *
                                                 (goal - previous_.balance) /
                                                 (latest_.balance - previous_.balance);
    return std::abs(ratio) < kLargestRatio && IsInside(secant) ? secant : Midpoint();
  }

  void Add(const Point& point, bool isPast) {
    previous_ = latest_;
    latest_ = point;
    (isPast ? high_ : low_) = point;
    ++rounds_;
  }

  double Nearest(double goal) const {
    return high_.balance - goal < goal - low_.balance ? high_.factor : low_.factor;
  }

  int Rounds() const { return rounds_; }

 private:
  bool IsInside(double factor) const { return factor > low_.factor && factor < high_.factor; }

  Point low_, high_, latest_, previous_;
  int rounds_ = 0;
};

SavingsRate SearchBetween(const SavingsTrials& trials, Point low, Point high, double goal) {
  Bracket bracket(low, high);
  while (!bracket.IsClosed()) {
    const Point point = trials.Try(bracket.NextFactor(goal));
    bracket.Add(point, trials.Passes(point));
    if (trials.Meets(point)) return {trials.AnnualPercent(point.factor), bracket.Rounds()};
  }
  return {trials.AnnualPercent(bracket.Nearest(goal)), bracket.Rounds()};
}

}  // namespace

SavingsRate FindSavingsRate(const tSavingsDesc& save) {
  const SavingsTrials trials(save);
  const double goal = save.endingBalance;
  const Point still = trials.Try(1);
  if (trials.Meets(still)) return {};
  if (trials.Passes(still)) {
    const Point lost = trials.Try(0);
    return trials.Passes(lost) ? SavingsRate{} : SearchBetween(trials, lost, still, goal);
  }
  const double first = trials.FirstDistance();
  if (!trials.CanRiseAbove(still)) return {};
  for (double distance = first;; distance *= 2) {
    const double factor = 1 + distance;
    if (!std::isfinite(trials.AnnualPercent(factor))) return {};
    const Point high = trials.Try(factor);
    if (trials.Passes(high)) return SearchBetween(trials, still, high, goal);
  }
}

}  // namespace amortix2
