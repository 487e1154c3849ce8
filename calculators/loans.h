#pragma once

// Plain answers about one loan: what is missing of amount, payment, term and rate; what a purchase costs a
// month, at a fixed or an adjustable rate, with or without a balloon; and how large a mortgage a household
// carries. Conventions and errors stand in question.h. The methods of Calculator read variants, ask here, and
// write tables.

#include <optional>

#include "amortix2/automation/public.h"
#include "amortix2/calculators/question.h"

namespace AMORTIX2_PUBLIC amortix2 {

// ---- Amount, payment, term, rate

struct LoanQuestion {
  std::optional<double> amount = {};         ///< amount borrowed
  std::optional<double> payment = {};        ///< each month
  std::optional<double> months = {};         ///< term
  std::optional<double> annualPercent = {};  ///< 0 is an interest-free loan
  Date startDate = kDefaultStart;            ///< the first payment falls due a month later
  enumLoanType type = simpleLoan;  ///< or creditCard, whose payments fall in the middle of the month
};

struct LoanAnswer {
  double amount = 0;         ///< amount borrowed
  double payment = 0;        ///< each month; the last one may differ
  double months = 0;         ///< term
  double annualPercent = 0;  ///< to three decimals when it was found
  double totalPayments = 0;
  double totalInterest = 0;  ///< with up-front charges
  Schedule schedule = {};
};

/// Finds what is left out, and the schedule.
LoanAnswer Solve(const LoanQuestion& question);

/// The monthly payment alone, which `question` leaves out: no schedule is built. Raises as Solve.
double PaymentOf(const LoanQuestion& question);

// ---- Purchases

/// How an adjustable rate moves, in percentage points of the annual rate; without increases it is fixed.
struct RateChanges {
  double firstPayment = 0;   ///< payment number of the first change
  double firstIncrease = 0;  ///< negative: a decrease
  double everyMonths = 0;    ///< months between later changes
  double laterIncrease = 0;
  double cap = 0;  ///< highest annual percent that a change may reach; the lowest is 0
};

/// A loan for a purchase price less a down payment, whose payment is what is looked for.
struct PurchaseLoan {
  double price = 0;
  double downPayment = 0;
  double months = 0;
  double annualPercent = 0;  ///< at the start
  double points = 0;         ///< paid up front, percent of the amount
  double fees = 0;           ///< paid up front, currency
  RateChanges changes = {};
};

/// price - downPayment. Raises Overflow.
double AmountFinanced(const PurchaseLoan& loan);

/// The engine's record of the loan: everything but its dates.
tLoanDesc RecordOf(const PurchaseLoan& loan);

struct PurchaseQuestion {
  PurchaseLoan loan = {};
  Date startDate = kDefaultStart;        ///< the first payment falls due a month later
  std::optional<Date> closingDate = {};  ///< interim interest runs from here to the start; at most 32767 days
};

LoanAnswer Solve(const PurchaseQuestion& question);

/// The start of a loan whose first payment is due on a date: its day a month before. A day that month does
/// not have rolls over into the next (31 March gives 3 March, 2 March in a leap year).
Date StartBefore(Date firstPayment);

/// A purchase paid as over its full term and settled early by one large payment, the balloon.
struct BalloonQuestion {
  PurchaseLoan loan = {};
  double paymentsBefore = 0;  ///< level payments before the balloon, at least 1
  Date startDate = kDefaultStart;
};

struct BalloonAnswer {
  double amount = 0;
  double payment = 0;
  double balloon = 0;        ///< 0 where it would fall at the end of the term or later
  double lastPrincipal = 0;  ///< what the balloon repays
  double totalPayments = 0;  ///< line 1's payment for each but the last level one, and the balloon, less the
                             ///< payment that it replaces
  double totalInterest = 0;  ///< totalPayments - amount
  Schedule schedule = {};    ///< ends with the balloon
};

/// Raises also SubscriptOutOfRange for a balloon before payment 1.
BalloonAnswer Solve(const BalloonQuestion& question);

// ---- Mortgages that a household carries

/// What a home costs besides its loan.
struct HomeCosts {
  double propertyTaxPercent = 0;  ///< of the price a year
  double insurance = 0;           ///< a month
  double dues = 0;                ///< a month
};

/// The largest loan for a monthly budget that pays the home's costs too.
struct AffordabilityQuestion {
  double monthlyBudget = 0;
  HomeCosts costs = {};
  double downPayment = 0;
  double months = 0;
  double annualPercent = 0;
  Date startDate = kDefaultStart;
};

/// Monthly payments that a household is bound to.
struct Debts {
  double creditCard = 0;
  double car = 0;
  double childSupport = 0;
  double other = 0;
};

/// The largest loan that an income qualifies for: housing takes at most 28 % of the income, and at most 36 %
/// of what debts leave of it.
struct QualificationQuestion {
  double annualIncome = 0;
  Debts debts = {};
  HomeCosts costs = {};
  double downPayment = 0;
  double months = 0;
  double annualPercent = 0;
  Date startDate = kDefaultStart;
};

struct MortgageAnswer {
  LoanAnswer loan = {};
  double propertyTax = 0;  ///< a month
  double fees = 0;         ///< insurance and dues, a month
};

MortgageAnswer Solve(const AffordabilityQuestion& question);
MortgageAnswer Solve(const QualificationQuestion& question);

}  // namespace amortix2
