#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "amortix2/engine/amortix.h"
#include "amortix2/engine/detail_arrays.h"
#include "amortix2/engine/elementary.h"
#include "amortix2/engine/frequency.h"
#include "amortix2/engine/loan_schedule.h"
#include "amortix2/engine/loan_solver.h"
#include "amortix2/engine/qualification.h"
#include "amortix2/engine/rounding.h"
#include "automation/raises.h"
#include "engine/wide_integer.h"

namespace amortix2 {
namespace {

tLoanDesc Loan(double amount, double payment, double rate, double months, enumLoanType typ = simpleLoan) {
  tLoanDesc loan;
  loan.typ = typ;
  loan.startDate = MakeDate(2001, 1, 31);
  loan.startingBalance = amount;
  loan.payment = payment;
  loan.intRate = rate;
  loan.period = months;
  return loan;
}

tLoanDesc Solved(tLoanDesc loan, tCreditQualification qualification = {}) {
  SolveLoan(loan, qualification, true);
  return loan;
}

// Payments from 50-digit decimal arithmetic of the annuity; terms counted with exact cents.
TEST(LoanSolver, FindsEachQuantityFromTheOthers) {
  struct Row {
    double amount, payment, rate, months;
  };
  const Row rows[] = {
      {200000, 1264.14, 6.5, 360},     {100000, 599.55, 6, 360}, {100000, 843.86, 6, 180},
      {15000, 289.99, 6, 60},          {1000, 340.02, 12, 3},    {250000, 1342.05, 5, 360},
      {8000, 352.77, 5.5, 24},         {1200, 100, 0, 12},       {50000, 660.75, 10, 120},
      {75000000, 504023.97, 7.1, 360},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::Message() << row.amount << ' ' << row.rate << ' ' << row.months);
    EXPECT_EQ(Solved(Loan(row.amount, UNKNOWNLOANVALUE, row.rate, row.months)).payment, row.payment);
    // Half a cent of payment is worth this much of the rate, and of the amount.
    EXPECT_NEAR(Solved(Loan(row.amount, row.payment, UNKNOWNLOANVALUE, row.months)).intRate, row.rate,
                0.0005 + 0.005 * 2400 / row.amount);
    EXPECT_EQ(Solved(Loan(row.amount, row.payment, row.rate, UNKNOWNLOANVALUE)).period, row.months);
    EXPECT_NEAR(Solved(Loan(UNKNOWNLOANVALUE, row.payment, row.rate, row.months)).startingBalance, row.amount,
                0.005 * row.amount / row.payment + 0.01);
  }
}

TEST(LoanSolver, RateSearchEndsAndMeetsThePayment) {
  std::mt19937_64 random(5);
  std::uniform_real_distribution<double> unit(0, 1);
  int mostTrials = 0;
  for (int i = 0; i < 100000; ++i) {
    const enumLoanType typ = i % 5 == 0 ? creditCard : i % 5 == 1 ? loanAsLease : simpleLoan;
    const auto months = static_cast<std::int32_t>(1 + random() % 480);
    const double amount = RoundToCents(std::pow(10, 1 + 6 * unit(random)));
    const double residual = typ == loanAsLease ? RoundToCents(amount * unit(random) * 0.8) : 0;
    const auto prepays = static_cast<std::int32_t>(typ == loanAsLease ? random() % 4 : 0) % months;
    const double payment = RoundToCents((amount - residual) / months * (0.9 + unit(random)) + 0.01);
    const PaymentTerms terms{typ, months, prepays};
    RateFound found{};
    if (ErrorOf([&] { found = FindGrowth({terms, amount, payment, residual}); })) continue;
    mostTrials = std::max(mostTrials, found.trials);
    if (found.trials == 0) continue;
    const auto paymentAt = [&](double growth) {
      const PaymentFactors factors = LoanPaymentFactor(terms, growth);
      return (amount - residual / factors.finalGrowth) / factors.annuity;
    };
    // Met to the cent, or closed in as far as a cent of payment tells growths apart.
    ASSERT_NEAR(paymentAt(found.growth), payment, 0.0101)
        << typ << ' ' << amount << ' ' << payment << ' ' << months;
  }
  EXPECT_LT(mostTrials, 60);
  // Charges far above the amount: every step comes closer, by next to nothing.
  EXPECT_LE(FindGrowth({{simpleLoan, 45, 0}, -4e23, 3123941613041.4, 0}).trials, 5000);
}

TEST(LoanSolver, PaymentsThatDoNotExceedTheDebtHaveNoRate) {
  EXPECT_EQ(Solved(Loan(1200, 100, UNKNOWNLOANVALUE, 12)).intRate, 0);
  const tLoanDesc loan = Solved(Loan(1200, 50, UNKNOWNLOANVALUE, 12));
  EXPECT_EQ(loan.intRate, 0);
  EXPECT_EQ(loan.payment, 100);  // pays the loan off at 0 %
  EXPECT_EQ(loan.schedule.back().endingBalance, 0);
}

TEST(LoanSolver, TermOfAPaymentBelowTheInterestIsOne) {
  const tLoanDesc loan = Solved(Loan(1000, 9.99, 12, UNKNOWNLOANVALUE));
  EXPECT_EQ(loan.period, 1);
  EXPECT_EQ(loan.payment, 1010);
  // A remainder of up to a quarter of a payment is paid with the last one: 906, 811.06, ... leaves 16.55
  // after 10.
  const tLoanDesc settled = Solved(Loan(1000, 104, 12, UNKNOWNLOANVALUE));
  EXPECT_EQ(settled.period, 10);
  EXPECT_NEAR(settled.schedule.back().payment, 104 + 16.55, 0.005);
  EXPECT_EQ(settled.schedule.back().endingBalance, 0);
}

/// Cents of a schedule's balances in whole numbers, the growth taken exactly from its bits.
std::int64_t NextCents(std::int64_t cents, double growth, std::int64_t payment) {
  const auto scaled = static_cast<WideInteger>(std::ldexp(growth, 52));
  const auto grown = static_cast<std::int64_t>((scaled * cents + (static_cast<WideInteger>(1) << 51)) >> 52);
  return std::max<std::int64_t>(grown - payment, 0);
}

TEST(LoanSchedule, AgreesWithWholeCents) {
  std::mt19937_64 random(9);
  for (int i = 0; i < 3000; ++i) {
    const double amount = static_cast<double>(random() % 100000000) / 100 + 1000;
    const double rate = 15 * std::generate_canonical<double, 53>(random);  // no exact halves
    const auto months = static_cast<double>(1 + random() % 360);
    const tLoanDesc loan = Solved(Loan(amount, UNKNOWNLOANVALUE, rate, months));
    std::int64_t cents = std::llround(amount * 100);
    double principal = 0;
    for (std::size_t k = 1; k < loan.schedule.size(); ++k) {
      const tSchedule& line = loan.schedule[k];
      cents = NextCents(cents, 1 + rate / 1200, std::llround(loan.payment * 100));
      ASSERT_NEAR(line.endingBalance, static_cast<double>(cents) / 100, 1e-6)
          << amount << ' ' << rate << ' ' << k;
      ASSERT_NEAR(line.payment, line.intCharged + line.startingBalance - line.endingBalance, 1e-6);
      ASSERT_EQ(line.lineDate, AdvanceDate(loan.startDate, monthlyMode, static_cast<std::int32_t>(k)));
      principal += line.startingBalance - line.endingBalance;
    }
    ASSERT_NEAR(principal + loan.schedule.back().endingBalance, amount, 1e-5);
    ASSERT_NEAR(loan.totPayments - loan.totIntCharged, amount - loan.schedule.back().endingBalance, 1e-5);
    // Each line's rounding moves the last balance by at most a cent, grown to the end.
    ASSERT_LE(loan.schedule.back().endingBalance,
              0.01 * months * Power(1 + rate / 1200, static_cast<int>(months)));
  }
}

TEST(LoanSchedule, OpeningLineHasPointsInterimInterestAndFees) {
  tLoanDesc loan = Loan(100000, UNKNOWNLOANVALUE, 9, 360);
  loan.points = 2;
  loan.flatFee = 300;
  loan.taxRate = 28;
  loan.startDateDelay = 15;
  const tLoanDesc solved = Solved(loan);
  const tSchedule& opening = solved.schedule.front();
  EXPECT_EQ(opening.payment, 2675);  // 2000 + 15 * 100000 * 9 / 36000 + 300
  EXPECT_EQ(opening.intCharged, 2675);
  EXPECT_DOUBLE_EQ(opening.taxCredited, 0.28 * 2375);
  EXPECT_EQ(opening.endingBalance, 100000);
}

TEST(LoanSchedule, AdjustableRateStepsCapsAndReamortises) {
  tLoanDesc loan = Loan(100000, UNKNOWNLOANVALUE, 6, 120);
  loan.firstRatePeriod = loan.subsequentRatePeriod = 12;
  loan.firstRateIncrease = 2;
  loan.subsequentRateIncrease = 1;
  loan.intRateMaximum = 10;
  const tLoanDesc up = Solved(loan);
  const std::pair<std::size_t, double> rates[] = {{1, 6},  {11, 6},  {12, 8},  {23, 8},  {24, 9},
                                                  {35, 9}, {36, 10}, {47, 10}, {48, 10}, {120, 10}};
  for (const auto& [line, rate] : rates) EXPECT_NEAR(up.schedule[line].intRate, rate, 1e-9) << line;
  EXPECT_EQ(up.schedule[47].payment, up.schedule[49].payment);  // the cap cancels the step
  EXPECT_NEAR(up.schedule[12].payment,
              up.schedule[12].startingBalance / AnnuityFactor(1 + 8.0 / 1200, 120 - 11), 0.005);
  EXPECT_LT(up.schedule.back().endingBalance, 1);

  loan.firstRateIncrease = loan.subsequentRateIncrease = -5;
  loan.intRateMinimum = 3;
  EXPECT_NEAR(Solved(loan).schedule[13].intRate, 3, 1e-9);
  loan.intRateMaximum = 2;  // crossed bounds: the floor wins
  EXPECT_NEAR(Solved(loan).schedule[13].intRate, 3, 1e-9);
}

TEST(LoanSchedule, CreditCardOwesHalfAPaymentAllMonth) {
  const tLoanDesc card = Solved(Loan(5000, UNKNOWNLOANVALUE, 18, 24, creditCard));
  EXPECT_EQ(card.schedule[1].intCharged, 75);
  const double half = card.payment / 2;
  EXPECT_NEAR(card.schedule[2].intCharged, (card.schedule[1].endingBalance + half) * 0.015, 0.005);
  EXPECT_NEAR(card.schedule.back().endingBalance, 0, 0.24);
  EXPECT_EQ(Solved(Loan(5000, card.payment, 18, UNKNOWNLOANVALUE, creditCard)).period, 24);
}

// What is paid, discounted to the day when it is paid, is the amount: prepayments at once, the closing
// payment n months after the start.
TEST(LoanSchedule, LeaseDiscountsToItsAmount) {
  for (const int prepays : {0, 1, 3, 36}) {
    tLoanDesc lease = Loan(20000, UNKNOWNLOANVALUE, 6, 36, loanAsLease);
    lease.residualAmount = 8000;
    lease.numberPrepays = static_cast<std::int16_t>(prepays);
    const tLoanDesc solved = Solved(lease);
    ASSERT_EQ(solved.schedule.size(), static_cast<std::size_t>(36 + 3 - prepays));
    double value = prepays * solved.payment;
    for (int month = 1; month <= 36 - prepays; ++month) {
      value += solved.schedule[static_cast<std::size_t>(month) + 1].payment / Power(1.005, month);
    }
    value += solved.residualAmount / Power(1.005, 36);
    EXPECT_NEAR(value, 20000, 0.2) << prepays;
    EXPECT_NEAR(solved.residualAmount, 8000, 0.4) << prepays;
    EXPECT_EQ(solved.schedule.back().lineDate, AdvanceDate(lease.startDate, monthlyMode, 36));
    EXPECT_EQ(solved.schedule.back().payment, solved.residualAmount);

    lease.payment = solved.payment;
    lease.intRate = UNKNOWNLOANVALUE;
    EXPECT_NEAR(Solved(lease).intRate, 6, 0.002) << prepays;
  }
}

TEST(LoanSchedule, NoAmountIsMinusZero) {
  const auto check = [](double amount) { EXPECT_FALSE(amount == 0 && std::signbit(amount)); };
  for (const enumLoanType typ : {simpleLoan, creditCard, loanAsLease}) {
    tLoanDesc loan = Loan(1000, -400, -6, 3, typ);
    loan.points = -1;
    loan.residualAmount = UNKNOWNLOANVALUE;
    const tLoanDesc solved = Solved(loan, {.monthsToKeep = 3, .investmentGrowthRate = -2400});
    for (const tSchedule& line : solved.schedule) {
      for (const double amount : {line.payment, line.intCharged, line.taxCredited, line.endingBalance}) {
        check(amount);
      }
    }
    for (const double sum : {solved.totTaxCredited, solved.balanceOwedAtSalePV, solved.valueAtSalePV})
      check(sum);
  }
}

TEST(LoanSchedule, BiWeeklyPlanSwitchesAndEndsSooner) {
  tLoanDesc loan = Loan(100000, 600, 6, UNKNOWNLOANVALUE, biWeekly);
  loan.biweeklyDate = MakeDate(2001, 6, 15);
  const tLoanDesc solved = Solved(loan);
  for (std::size_t k = 1; k < solved.schedule.size(); ++k) {
    const tSchedule& line = solved.schedule[k];
    const tSchedule& before = solved.schedule[k - 1];
    const bool isMonthly = k <= 4;  // 28 February to 31 May
    EXPECT_TRUE(k <= 5 || line.lineDate.serial - before.lineDate.serial == 14) << k;
    const bool isLast = k + 1 == solved.schedule.size();
    EXPECT_TRUE(isLast || line.payment == (isMonthly ? 600 : 300)) << k;
    const double days = line.lineDate.serial - before.lineDate.serial;
    const double growth = isMonthly ? 0.005 : 0.06 * days / 365;
    EXPECT_NEAR(line.intCharged, before.endingBalance * growth, 0.00501);
  }
  EXPECT_EQ(solved.schedule[5].lineDate, loan.biweeklyDate);
  EXPECT_EQ(solved.schedule.back().endingBalance, 0);
  const Date end = solved.schedule.back().lineDate;
  EXPECT_LT(AdvanceDate(loan.startDate, monthlyMode, static_cast<int>(solved.period) - 1), end);
  EXPECT_GE(AdvanceDate(loan.startDate, monthlyMode, static_cast<int>(solved.period)), end);
  EXPECT_LT(solved.period, Solved(Loan(100000, 600, 6, UNKNOWNLOANVALUE)).period - 48);

  loan.period = 12;
  EXPECT_LE(Solved(loan).schedule.back().lineDate, MakeDate(2002, 1, 31));
  EXPECT_GT(Solved(loan).schedule.back().lineDate, MakeDate(2002, 1, 17));
  loan.payment = 460;  // half of it does not cover 14 days of interest (230.14)
  loan.period = UNKNOWNLOANVALUE;
  const tLoanDesc atOnce = Solved(loan);
  EXPECT_EQ(atOnce.period, 1);
  EXPECT_EQ(atOnce.schedule.size(), 2U);
  EXPECT_EQ(atOnce.schedule.back().endingBalance, 0);
}

TEST(LoanSchedule, PresentValuesOfALoanKeptToItsEnd) {
  tCreditQualification home;
  home.insuranceCharge = 50;
  home.associationDues = 20;
  home.propertyTaxRate = 1.2;
  home.downPaymentAmount = 20000;
  const tLoanDesc plain = Solved(Loan(80000, UNKNOWNLOANVALUE, 6, 360), home);
  const double owed = plain.schedule.back().endingBalance;
  EXPECT_NEAR(plain.totLoanCostPV, 20000 + plain.totPayments + 360 * (50 + 20 + 100.0) + owed, 1e-4);
  EXPECT_NEAR(plain.balanceOwedAtSalePV, owed, 1e-9);

  home = {};
  home.investmentGrowthRate = 6;  // money earns what the loan costs: its payments are worth its amount
  for (const double months : {0.0, 1.0, 60.0, 360.0}) {
    home.monthsToKeep = months;
    const tLoanDesc loan = Solved(Loan(80000, UNKNOWNLOANVALUE, 6, 360), home);
    EXPECT_NEAR(loan.totLoanCostPV, 80000, 0.5) << months;
  }
  home.homeValueGrowthRate = 3;
  home.monthsToKeep = 24;
  const tLoanDesc kept = Solved(Loan(80000, UNKNOWNLOANVALUE, 6, 360), home);
  EXPECT_NEAR(kept.valueAtSalePV, 80000 * 1.03 * 1.03 / Power(1.005, 24), 0.01);
  EXPECT_DOUBLE_EQ(kept.totPayments, 24 * kept.payment);
}

TEST(LoanSolver, AprDiscountsThePaymentsToTheMoneyReceived) {
  tLoanDesc loan = Loan(100000, UNKNOWNLOANVALUE, 7, 360);
  loan.APR = UNKNOWNLOANVALUE;
  EXPECT_EQ(Solved(loan).APR, 7);
  loan.points = 2;
  loan.flatFee = 500;
  const tLoanDesc charged = Solved(loan);
  EXPECT_NEAR(charged.payment * AnnuityFactor(1 + charged.APR / 1200, 360), 97500,
              97500 * 0.001 / 1200 * 100);
  EXPECT_GT(charged.APR, 7.2);
}

TEST(Qualification, AppliesTheRatiosAndSpendsExactlyWhatIsAvailable) {
  tCreditQualification household;
  household.monthlyIncome = 5000;
  household.autoLoanPayment = 500;
  ComputeQualifyingPayment(household);
  EXPECT_DOUBLE_EQ(household.monthlyPayment, 1900);
  household.propertyTaxRate = 1.5;
  household.insuranceCharge = 60;
  household.downPaymentAmount = 30000;
  tLoanDesc loan = Loan(UNKNOWNLOANVALUE, 1, 7, 360);
  SolveAffordableLoan(loan, household);
  EXPECT_NEAR(loan.payment + household.propertyTaxCharge + 60 + 500, 1900, 0.02);
}

TEST(Amortix, ConsolidatesAndIgnoresWhatItDoesNotKnow) {
  RecordArray<tLoanDesc> loans(1, 3);
  loans.At(1) = Loan(7, UNKNOWNLOANVALUE, 8, 120);
  loans.At(2) = Loan(10000, 250, 12, UNKNOWNLOANVALUE);
  loans.At(3) = Loan(UNKNOWNLOANVALUE, 100, 10, 24);
  RecordArray<tSavingsDesc> savings(0, 0);
  RecordArray<tGoalDesc> goals(0, 0);
  tCreditQualification qualification;
  for (const int type : {0, 8, -1}) {
    EXPECT_EQ(Amortix(enumAmortixType{type}, loans, savings, goals, qualification), 0);
    EXPECT_EQ(loans.At(1).startingBalance, 7);
  }
  Amortix(LoanConsolidation, loans, savings, goals, qualification);
  EXPECT_EQ(loans.At(1).startingBalance, 10000 + loans.At(3).startingBalance);
  EXPECT_EQ(loans.At(1).schedule.size(), 121U);
  Amortix(LoanQuickCalc, loans, savings, goals, qualification);
  RecordArray<tLoanDesc> none(0, 0);
  EXPECT_EQ(Amortix(LoanCalculator, none, savings, goals, qualification), 0);
  EXPECT_EQ(ErrorOf([&] { Amortix(LoanConsolidation, none, savings, goals, qualification); }),
            ErrorNumber::SubscriptOutOfRange);
}

TEST(LoanSolver, EachImpossibleLoanHasItsError) {
  struct Row {
    tLoanDesc loan;
    std::optional<ErrorNumber> error;
    tCreditQualification home = {};
  };
  tLoanDesc taxed = Loan(1e5, 0, 0, 12);  // no interest until it is past the horizon
  taxed.taxRate = 1e308;
  taxed.firstRatePeriod = 5;
  taxed.firstRateIncrease = taxed.intRateMaximum = 12;
  tLoanDesc lease = Loan(1000, 100, 6, 3, loanAsLease);
  lease.numberPrepays = 9;
  // Its term ends in time, the 23 lines that -20 prepayments make do not.
  tLoanDesc lateLease = lease;
  lateLease.numberPrepays = -20;
  lateLease.startDate = MakeDate(9999, 6, 15);
  const Row rows[] = {
      {Loan(1000, UNKNOWNLOANVALUE, 6, 0), ErrorNumber::DivisionByZero},
      {Loan(0, UNKNOWNLOANVALUE, 6, 0), ErrorNumber::Overflow},
      {Loan(1000, 100, 6, 40000), ErrorNumber::Overflow},
      {Loan(1000, 100, 6, -3), ErrorNumber::SubscriptOutOfRange},
      {Loan(1e308, 1, 1e5, 12), ErrorNumber::Overflow},
      {Loan(1000, UNKNOWNLOANVALUE, -1200, 12), ErrorNumber::DivisionByZero},
      {Loan(0, 10, UNKNOWNLOANVALUE, 12), ErrorNumber::DivisionByZero},
      {Loan(1000, 0.001, 0, UNKNOWNLOANVALUE),
       ErrorNumber::Overflow},  // cents never move: no term in 16 bits
      {Loan(1000, 1, 1, 32700), std::nullopt},
      {lease, ErrorNumber::SubscriptOutOfRange},
      {lateLease, ErrorNumber::InvalidProcedureCall},
      {taxed, ErrorNumber::Overflow, {.monthsToKeep = 1}},
      {Loan(1000, 100, 6, 12), ErrorNumber::Overflow, {.investmentGrowthRate = 1e300}},
      {Loan(1000, 100, 6, 12, biWeekly), ErrorNumber::DivisionByZero, {.investmentGrowthRate = -1200}},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(ErrorOf([&] { Solved(row.loan, row.home); }), row.error)
        << row.loan.startingBalance << ' ' << row.loan.payment << ' ' << row.loan.intRate << ' '
        << row.loan.period;
  }
}

TEST(DetailArrays, ShowsTheDelayedStartAndARateWhereThereIsRoom) {
  tLoanDesc loan = Loan(1000, UNKNOWNLOANVALUE, 12, 3);
  loan.startDate = MakeDate(2001, 3, 2);
  loan.startDateDelay = 3;
  const tLoanDesc solved = Solved(loan);
  Array table({0, 3}, {0, 10});
  LoadDetArray(solved, 0, 3, table);
  LoadDetArray(solved, 5, 3, table);
  EXPECT_EQ(table.At(0, 0), Variant("02-27-2001"));
  EXPECT_EQ(table.At(2, 5), Variant("05-02-2001"));
  EXPECT_EQ(table.At(1, 3), Variant(10.0));
  EXPECT_EQ(table.At(1, 2), Variant(1000 - solved.schedule[1].endingBalance));
  EXPECT_NEAR(table.At(1, 10).GetDouble(), 12, 1e-9);
  Array narrow({0, 3}, {0, 4});
  EXPECT_EQ(ErrorOf([&] { LoadDetArray(solved, 0, 3, narrow); }), std::nullopt);
  EXPECT_EQ(ErrorOf([&] { LoadDetArray(solved, 1, 3, narrow); }), ErrorNumber::SubscriptOutOfRange);
  EXPECT_EQ(ErrorOf([&] { LoadDetArray(solved, 0, 4, table); }), ErrorNumber::SubscriptOutOfRange);
  tLoanDesc beyond = solved;
  beyond.schedule[3].startingBalance = 1e308;
  beyond.schedule[3].endingBalance = -1e308;
  EXPECT_EQ(ErrorOf([&] { LoadDetArray(beyond, 0, 3, table); }), ErrorNumber::Overflow);
}

}  // namespace
}  // namespace amortix2
