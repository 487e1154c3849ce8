// Schedules against plain doubles in the stated order of operations, line by line and bit by bit: every kind
// of loan and savings plan, amounts from a cent to 10^15, rates from -50 to 1000 %, growth next to 1, and
// exact half cents.

#include <gtest/gtest.h>

#include <bit>
#include <cmath>

#include "amortix2/engine/adjustable_rate.h"
#include "amortix2/engine/amount.h"
#include "amortix2/engine/elementary.h"
#include "amortix2/engine/frequency.h"
#include "amortix2/engine/loan_schedule.h"
#include "amortix2/engine/payment_factors.h"
#include "amortix2/engine/running_savings.h"
#include "amortix2/engine/savings_schedule.h"
#include "engine/random_savings.h"
#include "property.h"
#include "support.h"

namespace amortix2 {
namespace {

/// Whole cents mostly; quarters and eighths of a currency unit, which make exact half cents; any double.
double Money(Random& random, double largest) {
  const double any = 0.01 * std::pow(largest * 100, random.Unit());
  const std::int64_t kind = random.Below(8);
  return kind == 0   ? any
         : kind == 1 ? std::floor(any) + static_cast<double>(random.Below(8)) / 8
                     : RoundToCents(any);
}

/// Annual percent. Halves, quarters, ... of a period's growth make exact half cents.
double Rate(Random& random, double periodsAYear) {
  const double unit = random.Unit();
  const auto power = [](std::int64_t exponent) { return std::ldexp(1.0, -static_cast<int>(exponent)); };
  switch (random.Below(6)) {
    case 0:
      return 100 * periodsAYear * power(random.Below(12));
    case 1:
      return 100 * periodsAYear * (unit - 0.5) * power(30 + random.Below(24));
    case 2:
      return -50 + 1050 * unit;
    case 3:
      return static_cast<double>(random.Below(200)) / 8;
    default:
      return 25 * unit;
  }
}

void ExpectSameBits(double plain, double stored) {
  ASSERT_EQ(std::bit_cast<std::uint64_t>(plain), std::bit_cast<std::uint64_t>(stored))
      << plain << ' ' << stored;
}

void ExpectSameLine(const tSchedule& plain, const tSchedule& line) {
  for (const auto field : {&tSchedule::startingBalance, &tSchedule::payment, &tSchedule::intCharged,
                           &tSchedule::intCredited, &tSchedule::taxCredited, &tSchedule::endingBalance}) {
    ASSERT_NO_FATAL_FAILURE(ExpectSameBits(plain.*field, line.*field));
  }
}

TEST(Amount, RoundsLikePlainDoublesWhateverItsHundredfold) {
  ForAll(Cases(50000, 2000000), [](Random& random) {
    const double ends[] = {1e15, 5e13, 1e6, 10};
    double x = Money(random, ends[random.Below(4)]) * (random.Below(2) == 0 ? 1 : -1);
    if (random.Below(3) == 0) x = std::floor(x * 100) / 100 + 0.005;
    if (random.Below(3) == 0) x = std::nextafter(x, random.Below(2) == 0 ? -1e18 : 1e18);
    const double strays[] = {0, 0.3, -0.5, 0.5, 1, -1, 1e9, HUGE_VAL, std::nan("")};
    const Amount exact(x, x * 100 + strays[random.Below(9)]);
    ASSERT_NO_FATAL_FAILURE(ExpectSameBits(RoundToCents(x), RoundToCents(exact).value)) << x;
  });
  for (const double infinite : {HUGE_VAL, std::nan("")}) {
    EXPECT_EQ(ErrorOf([&] { RoundToCents(Amount(infinite, 1)); }), ErrorNumber::Overflow);
  }
}

struct PlainLoan {
  double balance, payment, taxFraction;
  std::vector<tSchedule> lines{1};

  void Pay(double grown, double interest) {
    tSchedule& line = lines.emplace_back();
    line.startingBalance = balance;
    line.intCharged = interest;
    line.taxCredited = WithoutMinusZero(taxFraction * interest);
    balance = grown - payment;
    if (balance < 0) {
      payment += balance;
      balance = 0;
    }
    line.payment = payment;
    line.endingBalance = balance;
  }
};

/// The lines of a loan that is not bi-weekly, without their dates and rates; line 0 is empty.
std::vector<tSchedule> PlainLines(const tLoanDesc& loan) {
  PlainLoan plain{loan.startingBalance, loan.payment, loan.taxRate / 100};
  const bool isLease = loan.typ == loanAsLease;
  const int count = static_cast<int>(loan.period) - (isLease ? loan.numberPrepays : 0);
  if (isLease) {
    tSchedule& prepaid = plain.lines.emplace_back();
    prepaid.startingBalance = plain.balance;
    prepaid.payment = WithoutMinusZero(loan.payment * loan.numberPrepays);
    prepaid.endingBalance = plain.balance -= prepaid.payment;
  }
  AdjustableRate rate(loan);
  double growth = MonthlyGrowth(loan.intRate);
  for (int k = 1; k <= count; ++k) {
    if (rate.StepTo(k)) {
      growth = MonthlyGrowth(rate.Rate());
      plain.payment = RoundToCents(Divide(plain.balance, AnnuityFactor(growth, count - k + 1)));
    }
    if (loan.typ == creditCard && k >= 2) {
      const double interest = RoundToCents((plain.balance + plain.payment / 2) * (growth - 1));
      plain.Pay(plain.balance + interest, interest);
    } else {
      const double grown = RoundToCents(plain.balance * growth);
      plain.Pay(grown, RoundToCents(grown - plain.balance));
    }
  }
  if (isLease) {
    tSchedule& closing = plain.lines.emplace_back();
    closing.startingBalance = closing.payment = plain.balance;
    for (int month = 0; month < loan.numberPrepays; ++month) {
      closing.payment = RoundToCents(closing.payment * growth);
    }
    closing.intCharged = RoundToCents(closing.payment - plain.balance);
    closing.taxCredited = WithoutMinusZero(plain.taxFraction * closing.intCharged);
  }
  return plain.lines;
}

tLoanDesc RandomLoan(Random& random) {
  constexpr enumLoanType kTypes[] = {simpleLoan, simpleLoan, creditCard, loanAsLease};
  tLoanDesc loan;
  loan.typ = kTypes[random.Below(4)];
  loan.startDate = MakeDate(2001, 1, 31);
  loan.startingBalance = Money(random, random.Below(4) == 0 ? 1e15 : 1e7) * (random.Below(50) == 0 ? -1 : 1);
  loan.intRate = Rate(random, 12);
  loan.period = static_cast<double>(4 + random.Below(480));
  loan.taxRate = 28;
  const double level =
      loan.startingBalance / AnnuityFactor(MonthlyGrowth(loan.intRate), static_cast<int>(loan.period));
  loan.payment = random.Below(3) == 0 ? Money(random, std::abs(loan.startingBalance))
                                      : RoundToCents(level * (0.9 + 0.3 * random.Unit()));
  if (loan.typ == loanAsLease) loan.numberPrepays = static_cast<std::int16_t>(random.Below(4));
  if (loan.typ == simpleLoan && random.Below(2) == 0) {
    loan.firstRatePeriod = 1 + static_cast<double>(random.Below(24));
    loan.subsequentRatePeriod = 12;
    loan.firstRateIncrease = loan.subsequentRateIncrease = static_cast<double>(random.Below(9)) / 8 - 0.5;
    loan.intRateMaximum = 1000;
    loan.intRateMinimum = -50;
  }
  return loan;
}

TEST(PlainChain, LoansAgreeToTheBit) {
  ForAll(Cases(600, 60000), [](Random& random) {
    tLoanDesc loan = RandomLoan(random);
    std::vector<tSchedule> plain;
    const auto plainError = ErrorOf([&] { plain = PlainLines(loan); });
    const auto error = ErrorOf([&] { BuildLoanSchedule(loan, {}); });
    if (error && !plainError) return;  // a total beyond doubles
    ASSERT_EQ(error, plainError);
    if (error) return;
    ASSERT_EQ(plain.size(), loan.schedule.size());
    for (std::size_t k = 1; k < plain.size(); ++k) {
      ASSERT_NO_FATAL_FAILURE(ExpectSameLine(plain[k], loan.schedule[k]))
          << k << ": " << loan.typ << ' ' << loan.startingBalance << ' ' << loan.payment << ' '
          << loan.intRate;
    }
  });
}

/// How many payments plain doubles take to pay a loan off; 0 for more than 32767.
int PlainTerm(const tLoanDesc& loan) {
  const double growth = MonthlyGrowth(loan.intRate);
  const double payment = loan.payment;
  double balance = loan.startingBalance;
  for (int months = 1; months <= 32767; ++months) {
    balance = loan.typ == creditCard && months >= 2
                  ? RoundToCents((balance + payment / 2) * growth - payment - payment / 2)
                  : RoundToCents(balance * growth) - payment;
    if (balance >= loan.startingBalance) return 1;
    if (payment * 0.25 >= balance) return months;
  }
  return 0;
}

TEST(PlainChain, TermsAgree) {
  ForAll(Cases(300, 30000), [](Random& random) {
    tLoanDesc loan = RandomLoan(random);
    int term = 0;
    const auto plainError = ErrorOf([&] { term = PlainTerm(loan); });
    TermFound found{};
    const auto error = ErrorOf([&] { found = FindTerm(loan); });
    ASSERT_EQ(error, term == 0 ? ErrorNumber::Overflow : plainError);
    if (error) return;
    ASSERT_EQ(term, found.payments) << loan.startingBalance << ' ' << loan.payment << ' ' << loan.intRate;
  });
}

tSavingsDesc RandomPlan(Random& random) {
  tSavingsDesc plan = RandomSavings(random).OfEveryModeAndSpan();
  plan.startingBalance = Money(random, random.Below(4) == 0 ? 1e15 : 1e6) * (random.Below(20) == 0 ? -1 : 1);
  plan.deposit = Money(random, 1e4);
  plan.withdrawal = random.Below(2) == 0 ? Money(random, 1e4) : 0;
  plan.intRate = Rate(random, PeriodsPerYear(CompoundingMode(plan)));
  return plan;
}

/// The regular lines of a plan with a known end, on the dates and rate of its schedule.
std::vector<tSchedule> PlainLines(const tSavingsDesc& plan) {
  std::vector<tSchedule> lines = plan.schedule;
  const double rate = (1 - plan.taxRate / 100) * plan.intRate;
  const enumFrequencyType mode = CompoundingMode(plan);
  const double growth = 1 + rate / (100 * PeriodsPerYear(mode));
  const auto daily = mode == continuousMode ? BuildDailyFactorTable(rate) : std::array<double, 32>{};
  double balance = plan.startingBalance;
  double deposit = plan.deposit - plan.withdrawal;
  for (std::size_t k = 1; k < lines.size() - (SavingsPeriods(plan).days != 0 ? 1 : 0); ++k) {
    const int days = lines[k].lineDate.serial - lines[k - 1].lineDate.serial;
    const double grown = mode == continuousMode
                             ? RoundToCents(balance * (Power(daily[31], days / 31) *
                                                       daily[static_cast<std::size_t>(days % 31)]))
                         : mode == exactDaysMode
                             ? balance + (RoundToCents(plan.startingBalance * growth) - plan.startingBalance)
                             : RoundToCents(balance * growth);
    if (deposit < 0 && grown + deposit < 0) deposit = grown > 0 ? -grown : 0;
    lines[k].startingBalance = balance;
    lines[k].payment = deposit;
    lines[k].intCredited = RoundToCents(grown - balance);
    lines[k].endingBalance = balance = grown + deposit;
  }
  return lines;
}

TEST(PlainChain, SavingsAgreeToTheBit) {
  int built = 0;
  const int cases = Cases(1500, 150000);
  ForAll(cases, [&](Random& random) {
    tSavingsDesc plan = RandomPlan(random);
    if (ErrorOf([&] { BuildSavingsSchedule(plan); })) return;
    ++built;
    const std::vector<tSchedule> plain = PlainLines(plan);
    for (std::size_t k = 1; k < plain.size(); ++k) {
      ASSERT_NO_FATAL_FAILURE(ExpectSameLine(plain[k], plan.schedule[k]))
          << k << ": " << plan.paymentMode << ' ' << plan.compoundingMode << ' ' << plan.startingBalance
          << ' ' << plan.deposit - plan.withdrawal << ' ' << plan.intRate;
    }
  });
  EXPECT_GT(built, cases / 4);
}

}  // namespace
}  // namespace amortix2
