// Plain questions that their methods put otherwise (leases, savings, spending and retirement), at random: the
// same results of the same types to the last bit, or the same error. The other methods hand their question on
// as it is.

#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "amortix2/calculators/comparisons.h"
#include "amortix2/calculators/leases.h"
#include "amortix2/calculators/left_out_tables.h"
#include "amortix2/calculators/rent_or_buy.h"
#include "amortix2/calculators/savings.h"
#include "amortix2/calculators/tables.h"
#include "component/described_request.h"
#include "property.h"
#include "support.h"

namespace amortix2 {
namespace {

using namespace calculators;
using Values = std::vector<Variant>;

std::int32_t Last(const Schedule& lines) { return static_cast<std::int32_t>(lines.size()) - 1; }

const Variant kResult;  // what tables are made for

// An answer's members as the method hands them back.

Values ResultsOf(const LeaseAnswer& a) {
  return {a.amount,
          a.payment,
          a.payments,
          a.annualPercent,
          static_cast<std::int16_t>(a.prepaid),
          a.residual,
          a.totalPayments,
          a.totalInterest,
          LoanTable(kResult, a.schedule, Last(a.schedule))};
}

Values ResultsOf(const SavingsAnswer& a) {
  return {a.balance, a.deposit,       a.endingBalance,
          a.endDate, a.annualPercent, SavingsTable(kResult, a.schedule, Last(a.schedule))};
}

Values ResultsOf(const SpendingAnswer& a) {
  const auto periods = static_cast<std::int16_t>(a.lastsForEver ? -1 : Last(a.schedule));
  return {a.balance, a.withdrawal, a.annualPercent, periods,
          SavingsTable(kResult, a.schedule, Last(a.schedule))};
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

TEST_F(PlainQuestions, Leases) {
  Try([&](int) {
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

// What a question does not say is what an argument of 0 says: a figure in which all of it shows.
TEST(PlainQuestion, WhatIsNotSaidIsZero) {
  const PurchaseLoan home{.price = 1000, .months = 12};
  const CurrentLoan loan{.balance = 1000, .payment = 100};
  const auto costOf = [](const auto& question) { return Compare(question).proposed.costInTodaysMoney; };
  const RentOrBuyAnswer living =
      Compare(RentOrBuyQuestion{.rent = {.rent = 100}, .buy = {.loan = {.price = 100000, .months = 36}}});
  const struct {
    const char* request;
    const char* figure;
    double plain;
  } rows[] = {
      {"adjustable vPurchaseAmt=1000 vPeriod=12", "vTotPay",
       Solve(PurchaseQuestion{.loan = home}).totalPayments},
      {"adjustable vPurchaseAmt=1000 vPeriod=12 vIntRate=5 vRateCap=20 vRateInc1=1 vIncDelay1=2 vIncDelay2=3",
       "vTotInt",
       Solve(PurchaseQuestion{
                 .loan = {.price = 1000,
                          .months = 12,
                          .annualPercent = 5,
                          .changes = {.firstPayment = 2, .firstIncrease = 1, .everyMonths = 3, .cap = 20}}})
           .totalInterest},
      {"adjustable vPurchaseAmt=1000 vPeriod=12", "vTotInt",
       Solve(PurchaseQuestion{.loan = home}).totalInterest},
      {"afford vPayment=500 vPeriod=12", "vNewPrincipal",
       Solve(AffordabilityQuestion{.monthlyBudget = 500, .months = 12}).loan.amount},
      {"afford vDownPayment=500 vPeriod=12", "vNewPrincipal",
       Solve(AffordabilityQuestion{.downPayment = 500, .months = 12}).loan.amount},
      {"qualify vAnnualIncome=36 vPeriod=12", "vNewPrincipal",
       Solve(QualificationQuestion{.annualIncome = 36, .months = 12}).loan.amount},
      {"refinance vCurrBal=1000 vCurrPay=100 vNewTerm=12", "vGrid(4,2)",
       costOf(RefinancingQuestion{.current = loan, .proposed = {.months = 12}})},
      {"prepay vCurrBal=1000 vCurrPay=100", "vGrid(4,2)", costOf(PrepaymentQuestion{.current = loan})},
      {"biweekly vCurrBal=1000 vCurrPay=100", "vGrid(4,2)", costOf(BiWeeklyQuestion{.current = loan})},
      {"points vPurchaseAmt=1000 vPeriod1=12 vPeriod2=12", "vGrid(4,2)",
       Compare(OfferQuestion{.first = home, .second = home}).second.costInTodaysMoney},
      {"rent-or-buy vRent=100 vPurchaseAmt=100000 vPeriod=36", "vGrid(10,1)", living.rent.netCost},
      {"rent-or-buy vRent=100 vPurchaseAmt=100000 vPeriod=36", "vGrid(10,2)", living.buy.netCost},
      {"lease-frequency vPrincipal=1000 vPayment=100 vPeriod=1 vIntRate=6 vPayMode=4 vIntMode=4",
       "vResTotPayments",
       Solve(LeaseQuestion{.amount = 1000, .payment = 100, .annualPercent = 6}).totalPayments},
      {"savings vStartDate=2001-01-31 vCurrBal=1000 vFreq=4 vPeriod=12 vIntRate=3", "vResEndingBal",
       Solve(SavingsQuestion{.balance = 1000, .deposit = 0, .annualPercent = 3, .periods = 12})
           .endingBalance},
      {"spend vStartDate=2001-01-31 vCurrBal=1000 vPayment=100 vIntRate=3 vFreq=4", "vResPeriod", 11},
  };
  for (const auto& [request, figure, plain] : rows)
    EXPECT_EQ(DescribedRequest(request).Out().Number(figure), plain) << request;
  EXPECT_EQ(Solve(SpendingQuestion{.balance = 1000, .withdrawal = 100, .annualPercent = 3}).schedule.size(),
            12U);
  const SavingsQuestion saving{.balance = 1, .deposit = 0, .annualPercent = 3, .periods = 1};
  EXPECT_EQ(Solve(saving).startDate, MakeDate(2000, 1, 1));
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

TEST(LeftOutTables, RaiseWhatMadeOnesRaise) {
  const tSchedule plain;
  const tSchedule wide{.lineDate = {},
                       .startingBalance = 1e308,
                       .payment = 1e308,
                       .intCredited = 1e308,
                       .endingBalance = -1e308};
  for (const Schedule& lines : {Schedule{}, {plain, plain}, {plain, wide}, {wide}}) {
    for (const std::int32_t lastRow : {-1, 0, 1, 2, 40000}) {
      const auto errors = [&] {
        return std::vector{ErrorOf([&] { EmptyTable(kResult, lastRow, kDetailColumns); }),
                           ErrorOf([&] { LoanTable(kResult, lines, lastRow); }),
                           ErrorOf([&] { SavingsTable(kResult, lines, lastRow); })};
      };
      const auto made = errors();
      const LeftOutTable leftOut{&kResult};
      const LeavingOut leavingOut({&leftOut, 1});
      EXPECT_EQ(errors(), made) << lines.size() << " lines, last row " << lastRow;
    }
  }
}

}  // namespace
}  // namespace amortix2
