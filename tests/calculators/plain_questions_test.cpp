// The plain functions and the methods of Calculator, on random questions: the same doubles and dates in
// every figure and line, or the same error.

#include <optional>
#include <random>
#include <vector>

#include "amortix2/automation/conversion.h"
#include "amortix2/calculators/comparisons.h"
#include "amortix2/calculators/leases.h"
#include "amortix2/calculators/savings.h"
#include "automation/raises.h"
#include "calculators/ask.h"
#include "sweep.h"

namespace amortix2 {
namespace {

using Numbers = std::vector<double>;

double Serial(Date date) { return date.serial; }

/// A result's numbers, a table's row after row; dates by their day, empty cells left out.
void Append(Numbers& numbers, const Variant& result) {
  if (result.Type() == VariantType::Array) {
    for (const Variant& cell : result.GetArray().Cells()) Append(numbers, cell);
  } else if (IsDate(result)) {
    numbers.push_back(Serial(ToDate(result)));
  } else if (result.Type() != VariantType::Empty) {
    numbers.push_back(ToDouble(result));
  }
}

Numbers And(Numbers numbers, const Schedule& lines, bool hasRates = false) {
  for (const tSchedule& line : lines) {
    for (const double cell : {Serial(line.lineDate), line.payment, line.startingBalance - line.endingBalance,
                              line.intCharged, line.endingBalance})
      numbers.push_back(cell);
    if (hasRates) numbers.push_back(line.intRate);
  }
  return numbers;
}

/// Row 0 has a date and a balance alone.
Numbers AndSavings(Numbers numbers, const Schedule& lines) {
  for (const tSchedule& line : lines) {
    numbers.push_back(Serial(line.lineDate));
    if (&line != &lines.front())
      for (const double cell : {line.payment, line.intCredited, line.payment + line.intCredited})
        numbers.push_back(cell);
    numbers.push_back(line.endingBalance);
  }
  return numbers;
}

Numbers FiguresOf(const LoanAnswer& a) {
  return And({a.amount, a.payment, a.months, a.annualPercent, a.totalPayments, a.totalInterest}, a.schedule);
}

Numbers FiguresOf(const MortgageAnswer& a) {
  return And({a.loan.amount, a.loan.payment, a.propertyTax, a.fees}, a.loan.schedule);
}

/// The grid's rows, column 3 being a less b times `sign`.
Numbers Grid(const ComparedLoan& a, const ComparedLoan& b, double sign, bool areOffers) {
  Numbers grid;
  const auto add = [&](double x, double y) { grid.insert(grid.end(), {x, y, sign * (x - y)}); };
  add(a.payment, b.payment);
  add(a.upFrontCost, b.upFrontCost);
  add(a.months, b.months);
  add(a.costInTodaysMoney, b.costInTodaysMoney);
  if (areOffers) add(a.annualPercentageRate, b.annualPercentageRate);
  return grid;
}

Numbers FiguresOf(const LoanComparison& c) {
  return And(And(Grid(c.current, c.proposed, 1, false), c.current.schedule), c.proposed.schedule);
}

/// Random questions. No value is 0, which would stand for the unknown.
class PlainQuestions : public testing::Test {
 protected:
  static int Cases() { return amortix2::Cases(60, 20000); }

  /// The method's inputs are given in its order.
  template <class Plain>
  void Check(const Plain& plain, std::string_view method, const std::vector<Variant>& inputs) {
    Numbers expected, actual;
    const auto error = ErrorOf([&] { expected = plain(); });
    const Answer answer = Ask(method, inputs);
    if (!error) {
      for (std::size_t i = inputs.size(); i < answer.values.size(); ++i) Append(actual, answer.values[i]);
      ++answered_;
    }
    EXPECT_EQ(answer.error, error.value_or(ErrorNumber{})) << method;
    EXPECT_EQ(actual, expected) << method;
  }
  void TearDown() override { EXPECT_GT(answered_, Cases() / 2) << "mostly errors"; }

  int Below(int count) { return std::uniform_int_distribution(0, count - 1)(random_); }
  double Count(int most) { return Below(most) + 1; }
  double Amount(int most) { return Count(most * 100) / 100; }
  double Percent(int most) { return Count(most * 8) / 8; }
  enumFrequencyType Frequency() { return enumFrequencyType{weeklyMode + Below(7)}; }

  PurchaseLoan Purchase(double price) {
    return {.price = price,
            .downPayment = Amount(100000),
            .months = Count(400),
            .annualPercent = Percent(12),
            .points = Percent(3),
            .fees = Amount(900)};
  }
  RateChanges Changes() { return {Count(60), Percent(3), Count(24), Percent(2), Percent(15)}; }

  /// Leaves out one of the quantities.
  template <class... Quantities>
  void LeaveOneOut(Quantities&... quantities) {
    std::optional<double>* const all[] = {&quantities...};
    all[Below(sizeof...(Quantities))]->reset();
  }

 private:
  std::mt19937 random_{20260131};
  int answered_ = 0;
};

/// 0 for the quantity that is asked for.
double Given(const std::optional<double>& quantity) { return quantity.value_or(0); }

TEST_F(PlainQuestions, Loans) {
  for (int i = 0; i < Cases(); ++i) {
    LoanQuestion q{Amount(300000), 2000 + Amount(3000), Count(400), Percent(9), kToday, simpleLoan};
    if (i % 2 == 0) q.type = creditCard;
    LeaveOneOut(q.amount, q.payment, q.months, q.annualPercent);
    Check([&] { return FiguresOf(Solve(q)); }, "SimpleLoanCalculator",
          {q.type == creditCard ? "C" : "", Given(q.amount), Given(q.payment), Given(q.months),
           Given(q.annualPercent)});
  }
}

TEST_F(PlainQuestions, Purchases) {
  for (int i = 0; i < Cases(); ++i) {
    PurchaseQuestion q{Purchase(Amount(500000)), StartBefore(kToday), {}};
    q.closingDate = Date(q.startDate.serial - Below(30));
    auto& [price, down, months, rate, points, fees, changes] = q.loan;
    points = fees = 0;
    const BalloonQuestion balloon{q.loan, Count(200), kToday};
    changes = Changes();
    Check(
        [&] {
          LoanAnswer a = Solve(q);
          a.schedule[0].lineDate = *q.closingDate;
          return FiguresOf(a);
        },
        "AdjustablePayment",
        {"", price, down, months, rate, *q.closingDate, kToday, changes.cap, changes.firstIncrease,
         changes.laterIncrease, changes.firstPayment, changes.everyMonths});
    Check(
        [&] {
          const BalloonAnswer a = Solve(balloon);
          Numbers numbers =
              And({a.amount, a.payment, a.balloon, a.amount, a.totalPayments, a.totalInterest}, a.schedule);
          numbers[numbers.size() - 3] = a.lastPrincipal;
          return numbers;
        },
        "BalloonLoanPaymentCalculator", {price, down, kToday, months, balloon.paymentsBefore, rate});
  }
}

TEST_F(PlainQuestions, Mortgages) {
  for (int i = 0; i < Cases(); ++i) {
    const HomeCosts home{Percent(2), Amount(90), Amount(90)};
    const Debts debts{Amount(90), Amount(90), Amount(90), Amount(90)};
    const double budget = 800 + Amount(2000), down = Amount(50000), months = Count(400), rate = Percent(9);
    const QualificationQuestion q{budget * 40, debts, home, down, months, rate, kToday};
    const AffordabilityQuestion a{budget, home, down, months, rate, kToday};
    Check([&] { return FiguresOf(Solve(q)); }, "MortgageQualificationCalculator",
          {q.annualIncome, debts.creditCard, debts.car, debts.childSupport, debts.other,
           home.propertyTaxPercent, home.insurance, home.dues, down, months, rate});
    Check([&] { return FiguresOf(Solve(a)); }, "HomeAffordabilityCalculator",
          {budget, home.propertyTaxPercent, home.insurance, home.dues, down, months, rate});
  }
}

TEST_F(PlainQuestions, Leases) {
  for (int i = 0; i < Cases(); ++i) {
    LeaseQuestion q{
        15000 + Amount(20000), 300 + Amount(900), Percent(9), Amount(9000), Count(60), Count(4), kToday,
        Frequency(),           Frequency()};
    LeaveOneOut(q.amount, q.payment, q.residual);
    Check(
        [&] {
          const LeaseAnswer a = Solve(q);
          return And({a.amount, a.payment, a.payments, a.annualPercent, static_cast<double>(a.prepaid),
                      a.residual, a.totalPayments, a.totalInterest},
                     a.schedule);
        },
        "SimpleLeaseCalculator",
        {"", Given(q.amount), Given(q.payment), q.payments, Given(q.annualPercent), q.prepaid,
         Given(q.residual), kToday, std::int32_t{q.paymentFrequency}, std::int32_t{q.interestFrequency}});
  }
}

TEST_F(PlainQuestions, Comparisons) {
  for (int i = 0; i < Cases(); ++i) {
    const CurrentLoan loan{Amount(200000), 1000 + Amount(3000), Percent(9)};
    const NewLoan next{Count(400), Percent(9), Percent(3), Amount(900)};
    const Outlook future{Percent(40), Percent(8), Count(400)};
    const double extra = Amount(300);
    const Date later(kToday.serial + Below(900));
    Check(
        [&] {
          return FiguresOf(Compare(RefinancingQuestion{loan, next, future, kToday}));
        },
        "RefinancingCalculator",
        {loan.balance, loan.payment, loan.annualPercent, next.annualPercent, next.points, next.fees,
         next.months, future.taxPercent, future.growthPercent, future.monthsKept});
    Check(
        [&] {
          return FiguresOf(Compare(PrepaymentQuestion{loan, extra, future, kToday}));
        },
        "PrePayCalculator",
        {loan.balance, loan.payment, loan.annualPercent, extra, future.taxPercent, future.growthPercent,
         future.monthsKept});
    Check(
        [&] {
          return FiguresOf(Compare(BiWeeklyQuestion{loan, later, next.fees, future, kToday}));
        },
        "BiWeeklyComparison",
        {loan.balance, loan.payment, loan.annualPercent, kToday, next.fees, later, future.taxPercent,
         future.growthPercent, future.monthsKept});
  }
}

TEST_F(PlainQuestions, Offers) {
  for (int i = 0; i < Cases(); ++i) {
    const double price = 150000 + Amount(300000);
    OfferQuestion q{Purchase(price), Purchase(price), {Percent(40), 0, Count(400)}, kToday};
    const bool isAdjustable = i % 2 == 0;
    std::vector<Variant> inputs{price, q.outlook.taxPercent, q.outlook.monthsKept};
    for (PurchaseLoan* offer : {&q.first, &q.second}) {
      for (const double input :
           {offer->downPayment, offer->months, offer->annualPercent, offer->points, offer->fees})
        inputs.emplace_back(input);
      if (!isAdjustable) continue;
      const auto [delay, increase, unused1, unused2, cap] = offer->changes = Changes();
      offer->changes.everyMonths = delay;
      offer->changes.laterIncrease = increase;
      for (const double input : {increase, delay, cap}) inputs.emplace_back(input);
    }
    Check(
        [&] {
          const auto [first, second] = Compare(q);
          Numbers numbers = Grid(first, second, isAdjustable ? 1 : -1, true);
          return And(And(numbers, second.schedule, isAdjustable), first.schedule, isAdjustable);
        },
        isAdjustable ? "ARMComparison" : "PointsAdvisor", inputs);
  }
}

TEST_F(PlainQuestions, Savings) {
  for (int i = 0; i < Cases(); ++i) {
    RetirementQuestion r{.isTaxedOnWithdrawal = i % 2 == 0, .taxPercent = Percent(40)};
    SavingsQuestion& q = r.plan;
    q = {.balance = Amount(9000),
         .deposit = 10 + Amount(300),
         .annualPercent = Percent(9),
         .endingBalance = 20000 + Amount(90000),
         .periods = Count(40),
         .frequency = Frequency(),
         .taxPercent = Percent(40),
         .startDate = kToday};
    LeaveOneOut(q.balance, q.deposit, q.annualPercent, q.endingBalance, q.periods);
    Check(
        [&] {
          const SavingsAnswer a = Solve(q);
          return AndSavings({a.balance, a.deposit, a.endingBalance, Serial(a.endDate), a.annualPercent},
                            a.schedule);
        },
        "SimpleSavingsCalculator",
        {kToday, Given(q.balance), Given(q.deposit), std::int32_t{q.frequency}, Given(q.endingBalance),
         Given(q.periods), Given(q.annualPercent), q.taxPercent});
    Check(
        [&] {
          const auto& [plan, afterTax] = Solve(r);
          return AndSavings({plan.balance, plan.deposit, plan.endingBalance, afterTax, Serial(plan.endDate),
                             plan.annualPercent},
                            plan.schedule);
        },
        "IRACalculator",
        {kToday, r.isTaxedOnWithdrawal ? "T" : "", Given(q.balance), Given(q.deposit), Given(q.endingBalance),
         Given(q.periods), Given(q.annualPercent), r.taxPercent});
  }
}

TEST_F(PlainQuestions, Spending) {
  for (int i = 0; i < Cases(); ++i) {
    SpendingQuestion q{Amount(90000), 500 + Amount(900), Percent(6), Count(200), {}, Frequency(), kToday};
    LeaveOneOut(q.balance, q.withdrawal, q.annualPercent, q.periods);
    Check(
        [&] {
          const SpendingAnswer a = Solve(q);
          const double periods = a.lastsForEver ? -1 : static_cast<double>(a.schedule.size()) - 1;
          return AndSavings({a.balance, a.withdrawal, a.annualPercent, periods}, a.schedule);
        },
        "SpendingCalculator",
        {kToday, Given(q.balance), Given(q.withdrawal), Given(q.annualPercent), std::int32_t{q.frequency},
         Given(q.periods)});
  }
}

TEST(PlainQuestion, NamesTheSecondQuantityLeftOut) {
  const auto argumentOf = [](const auto& question) -> std::string {
    try {
      Solve(question);
    } catch (const AutomationError& error) {
      return std::string(error.Argument());
    }
    return "answered";
  };
  EXPECT_EQ(argumentOf(LoanQuestion{.amount = 1000}), "months");
  EXPECT_EQ(argumentOf(LeaseQuestion{.payment = 400, .residual = 1}), "annualPercent");
  EXPECT_EQ(argumentOf(SavingsQuestion{.balance = 0, .deposit = 1, .endingBalance = 9}), "periods");
  EXPECT_EQ(argumentOf(SpendingQuestion{.balance = 1, .withdrawal = 1, .periods = -1}), "periods");
}

}  // namespace
}  // namespace amortix2
