// The plain functions and the methods of Calculator, on random questions: the same results of the same types
// to the last bit, or the same error.

#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "amortix2/calculators/comparison_results.h"
#include "amortix2/calculators/leases.h"
#include "amortix2/calculators/savings.h"
#include "amortix2/calculators/tables.h"
#include "amortix2/component/invocation.h"
#include "property.h"
#include "support.h"

namespace amortix2 {
namespace {

using namespace calculators;
using Values = std::vector<Variant>;
using Numbers = std::vector<double>;

std::int32_t Last(const Schedule& lines) { return static_cast<std::int32_t>(lines.size()) - 1; }

// An answer's members as the method hands them back.

Values ResultsOf(const LoanAnswer& a) {
  return {a.amount,
          a.payment,
          a.months,
          a.annualPercent,
          a.totalPayments,
          a.totalInterest,
          LoanTable(a.schedule, Last(a.schedule))};
}

Values ResultsOf(const MortgageAnswer& a) {
  return {a.loan.amount, a.loan.payment, a.propertyTax, a.fees, ResultsOf(a.loan).back()};
}

Values ResultsOf(const LeaseAnswer& a) {
  return {a.amount,
          a.payment,
          a.payments,
          a.annualPercent,
          static_cast<std::int16_t>(a.prepaid),
          a.residual,
          a.totalPayments,
          a.totalInterest,
          LoanTable(a.schedule, Last(a.schedule))};
}

Values ResultsOf(const LoanComparison& c) {
  return {ComparisonGrid(c.current, c.proposed, Difference::FirstLessSecond, false), TermTable(c.current),
          LoanTable(c.proposed.schedule, Last(c.proposed.schedule))};
}

Values ResultsOf(const SavingsAnswer& a) {
  return {a.balance, a.deposit,       a.endingBalance,
          a.endDate, a.annualPercent, SavingsTable(a.schedule, Last(a.schedule))};
}

Values ResultsOf(const SpendingAnswer& a) {
  const auto periods = static_cast<std::int16_t>(a.lastsForEver ? -1 : Last(a.schedule));
  return {a.balance, a.withdrawal, a.annualPercent, periods, SavingsTable(a.schedule, Last(a.schedule))};
}

/// Random questions. No value is 0, which would stand for the unknown.
class PlainQuestions : public testing::Test {
 protected:
  /// Tries body(i) many times, i 0 or 1.
  template <class Body>
  void Try(const Body& body) {
    ForAll(Cases(60, 20000), [&](Random& random) {
      random_ = &random;
      body(Below(2));
    });
  }

  /// `plain` gives the results; the method's inputs stand in its order.
  template <class Plain>
  void Check(std::string_view method, const Values& inputs, const Plain& plain) {
    ++asked_;
    Values expected, actual;
    const auto error = ErrorOf([&] { expected = plain(); });
    Object calculator(*FindClass("Calculator"), kClock);
    Invocation call(*FindMember(calculator.Class(), method));
    const auto value = [&](std::size_t i) { return static_cast<Variant*>(call.Arguments()[i].Get()); };
    for (std::size_t i = 0; i < inputs.size(); ++i) *value(i) = inputs[i];
    EXPECT_EQ(ErrorOf([&] { call.Call(calculator); }), error) << method;
    if (error) return;
    for (std::size_t i = inputs.size(); i < call.Arguments().size(); ++i) actual.push_back(*value(i));
    EXPECT_TRUE(actual == expected) << method;
    ++answered_;
  }
  void TearDown() override { EXPECT_GT(answered_, asked_ / 2) << "mostly errors"; }

  int Below(int count) { return static_cast<int>(random_->Below(count)); }
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
  Random* random_ = nullptr;
  int asked_ = 0;
  int answered_ = 0;
};

/// 0 for the quantity that is asked for.
double Given(const std::optional<double>& quantity) { return quantity.value_or(0); }

TEST_F(PlainQuestions, Loans) {
  Try([&](int i) {
    LoanQuestion q{Amount(300000), 2000 + Amount(3000), Count(400), Percent(9), kToday, simpleLoan};
    if (i == 0) q.type = creditCard;
    LeaveOneOut(q.amount, q.payment, q.months, q.annualPercent);
    Check("SimpleLoanCalculator",
          {q.type == creditCard ? "C" : "", Given(q.amount), Given(q.payment), Given(q.months),
           Given(q.annualPercent)},
          [&] { return ResultsOf(Solve(q)); });

    PurchaseQuestion p{Purchase(Amount(500000)), StartBefore(kToday), {}};
    p.closingDate = Date(p.startDate.serial - Below(30));
    auto& [price, down, months, rate, points, fees, c] = p.loan;
    points = fees = 0;
    const BalloonQuestion balloon{p.loan, Count(200), kToday};
    c = Changes();
    Check("AdjustablePayment",
          {"", price, down, months, rate, *p.closingDate, kToday, c.cap, c.firstIncrease, c.laterIncrease,
           c.firstPayment, c.everyMonths},
          [&] {
            const LoanAnswer a = Solve(p);
            Values results = ResultsOf(a);
            results.back() = LoanTable(a.schedule, Last(a.schedule), kDetailColumns, p.closingDate);
            return results;
          });
    Check("BalloonLoanPaymentCalculator", {price, down, kToday, months, balloon.paymentsBefore, rate},
          [&]() -> Values {
            const BalloonAnswer a = Solve(balloon);
            Array table = LoanTable(a.schedule, Last(a.schedule));
            table.At(Last(a.schedule), 3) = a.lastPrincipal;
            table.At(Last(a.schedule), 5) = std::int16_t{0};
            return {a.amount, a.payment, a.balloon, a.amount, a.totalPayments, a.totalInterest, table};
          });

    const HomeCosts home{Percent(2), Amount(90), Amount(90)};
    const Debts d{Amount(90), Amount(90), Amount(90), Amount(90)};
    const AffordabilityQuestion a{800 + Amount(2000), home, Amount(50000), Count(400), Percent(9), kToday};
    const QualificationQuestion income{a.monthlyBudget * 40, d,     home, a.downPayment, a.months,
                                       a.annualPercent,      kToday};
    Check("MortgageQualificationCalculator",
          {income.annualIncome, d.creditCard, d.car, d.childSupport, d.other, home.propertyTaxPercent,
           home.insurance, home.dues, a.downPayment, a.months, a.annualPercent},
          [&] { return ResultsOf(Solve(income)); });
    Check("HomeAffordabilityCalculator",
          {a.monthlyBudget, home.propertyTaxPercent, home.insurance, home.dues, a.downPayment, a.months,
           a.annualPercent},
          [&] { return ResultsOf(Solve(a)); });

    LeaseQuestion l{
        15000 + Amount(20000), 300 + Amount(900), Percent(9), Amount(9000), Count(60), Count(4), kToday,
        Frequency(),           Frequency()};
    LeaveOneOut(l.amount, l.payment, l.residual);
    Check("SimpleLeaseCalculator",
          {"", Given(l.amount), Given(l.payment), l.payments, Given(l.annualPercent), l.prepaid,
           Given(l.residual), kToday, std::int32_t{l.paymentFrequency}, std::int32_t{l.interestFrequency}},
          [&] { return ResultsOf(Solve(l)); });
  });
}

TEST_F(PlainQuestions, Comparisons) {
  Try([&](int i) {
    const CurrentLoan loan{Amount(200000), 1000 + Amount(3000), Percent(9)};
    const NewLoan next{Count(400), Percent(9), Percent(3), Amount(900)};
    const Outlook future{Percent(40), Percent(8), Count(400)};
    const double extra = Amount(300);
    const Date later(kToday.serial + Below(900));
    Check("RefinancingCalculator",
          {loan.balance, loan.payment, loan.annualPercent, next.annualPercent, next.points, next.fees,
           next.months, future.taxPercent, future.growthPercent, future.monthsKept},
          [&] {
            return ResultsOf(Compare(RefinancingQuestion{loan, next, future, kToday}));
          });
    Check("PrePayCalculator",
          {loan.balance, loan.payment, loan.annualPercent, extra, future.taxPercent, future.growthPercent,
           future.monthsKept},
          [&] {
            return ResultsOf(Compare(PrepaymentQuestion{loan, extra, future, kToday}));
          });
    Check("BiWeeklyComparison",
          {loan.balance, loan.payment, loan.annualPercent, kToday, next.fees, later, future.taxPercent,
           future.growthPercent, future.monthsKept},
          [&] {
            return ResultsOf(Compare(BiWeeklyQuestion{loan, later, next.fees, future, kToday}));
          });

    const double price = 150000 + Amount(300000);
    OfferQuestion q{Purchase(price), Purchase(price), {Percent(40), 0, Count(400)}, kToday};
    const bool isAdjustable = i == 0;
    Values inputs{price, q.outlook.taxPercent, q.outlook.monthsKept};
    for (PurchaseLoan* offer : {&q.first, &q.second}) {
      Numbers terms{offer->downPayment, offer->months, offer->annualPercent, offer->points, offer->fees};
      if (isAdjustable) {
        RateChanges& changes = offer->changes = Changes();
        changes.everyMonths = changes.firstPayment;
        changes.laterIncrease = changes.firstIncrease;
        terms.insert(terms.end(), {changes.firstIncrease, changes.firstPayment, changes.cap});
      }
      inputs.insert(inputs.end(), terms.begin(), terms.end());
    }
    Check(isAdjustable ? "ARMComparison" : "PointsAdvisor", inputs, [&]() -> Values {
      const auto [first, second] = Compare(q);
      const auto difference = isAdjustable ? Difference::FirstLessSecond : Difference::SecondLessFirst;
      const auto columns = isAdjustable ? kDetailColumnsWithRate : kDetailColumns;
      return {ComparisonGrid(first, second, difference, true), TermTable(second, columns),
              TermTable(first, columns)};
    });
  });
}

TEST_F(PlainQuestions, Savings) {
  Try([&](int i) {
    RetirementQuestion r{.isTaxedOnWithdrawal = i == 0, .taxPercent = Percent(40)};
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
    Check("SimpleSavingsCalculator",
          {kToday, Given(q.balance), Given(q.deposit), std::int32_t{q.frequency}, Given(q.endingBalance),
           Given(q.periods), Given(q.annualPercent), q.taxPercent},
          [&] { return ResultsOf(Solve(q)); });
    Check("IRACalculator",
          {kToday, r.isTaxedOnWithdrawal ? "T" : "", Given(q.balance), Given(q.deposit),
           Given(q.endingBalance), Given(q.periods), Given(q.annualPercent), r.taxPercent},
          [&]() -> Values {
            const auto& [plan, afterTax] = Solve(r);
            Values results = ResultsOf(plan);
            Array grid(Bounds{0, 6});
            for (int k = 0; k < 5; ++k) grid.At(k < 3 ? k + 1 : k + 2) = results[static_cast<std::size_t>(k)];
            grid.At(4) = afterTax;
            return {grid, results.back()};
          });

    SpendingQuestion s{Amount(90000), 500 + Amount(900), Percent(6), Count(200), {}, Frequency(), kToday};
    LeaveOneOut(s.balance, s.withdrawal, s.annualPercent, s.periods);
    Check("SpendingCalculator",
          {kToday, Given(s.balance), Given(s.withdrawal), Given(s.annualPercent), std::int32_t{s.frequency},
           Given(s.periods)},
          [&] { return ResultsOf(Solve(s)); });
  });
}

// What a question does not say is what an argument of 0 says.
TEST_F(PlainQuestions, WhatIsNotSaidIsZero) {
  const PurchaseLoan home{.price = 1000, .months = 12};
  const CurrentLoan loan{.balance = 1000, .payment = 100};
  const auto check = [&](std::string_view method, Values inputs, std::size_t count, const auto& plain) {
    inputs.resize(count);
    Check(method, inputs, plain);
  };
  check("AdjustablePayment", {"", 1000, 0, 12}, 12,
        [&] { return ResultsOf(Solve(PurchaseQuestion{.loan = home, .startDate = kToday})); });
  check("HomeAffordabilityCalculator", {500, 0, 0, 0, 0, 12}, 7, [] {
    return ResultsOf(Solve(AffordabilityQuestion{.monthlyBudget = 500, .months = 12, .startDate = kToday}));
  });
  check("HomeAffordabilityCalculator", {0, 0, 0, 0, 500, 12}, 7, [] {
    return ResultsOf(Solve(AffordabilityQuestion{.downPayment = 500, .months = 12, .startDate = kToday}));
  });
  check("MortgageQualificationCalculator", {36, 0, 0, 0, 0, 0, 0, 0, 0, 12}, 11, [] {
    return ResultsOf(Solve(QualificationQuestion{.annualIncome = 36, .months = 12, .startDate = kToday}));
  });
  check("RefinancingCalculator", {1000, 100, 0, 0, 0, 0, 12}, 10, [&] {
    const RefinancingQuestion question{.current = loan, .proposed = {.months = 12}, .startDate = kToday};
    return ResultsOf(Compare(question));
  });
  check("PrePayCalculator", {1000, 100}, 7,
        [&] { return ResultsOf(Compare(PrepaymentQuestion{.current = loan, .startDate = kToday})); });
  check("BiWeeklyComparison", {1000, 100}, 9,
        [&] { return ResultsOf(Compare(BiWeeklyQuestion{.current = loan, .startDate = kToday})); });
  check("PointsAdvisor", {1000, 0, 0, 0, 12, 0, 0, 0, 0, 12}, 13, [&]() -> Values {
    const auto [first, second] = Compare(OfferQuestion{.first = home, .second = home, .startDate = kToday});
    return {ComparisonGrid(first, second, Difference::SecondLessFirst, true), TermTable(second),
            TermTable(first)};
  });
  check("SimpleLeaseCalculator", {"", 1000, 100, 1, 6, 0, 0, Variant(), 4, 4}, 10, [] {
    return ResultsOf(
        Solve(LeaseQuestion{.amount = 1000, .payment = 100, .annualPercent = 6, .startDate = kToday}));
  });
  check("SimpleSavingsCalculator", {kToday, 1000, 0, 4, 0, 12, 3}, 8, [] {
    return ResultsOf(Solve(SavingsQuestion{
        .balance = 1000, .deposit = 0, .annualPercent = 3, .periods = 12, .startDate = kToday}));
  });
  check("SpendingCalculator", {kToday, 1000, 100, 3, 4}, 6, [] {
    return ResultsOf(
        Solve(SpendingQuestion{.balance = 1000, .withdrawal = 100, .annualPercent = 3, .startDate = kToday}));
  });
  EXPECT_EQ(Solve(SavingsQuestion{.balance = 1, .deposit = 0, .annualPercent = 3, .periods = 1}).startDate,
            MakeDate(2000, 1, 1));
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
