#pragma once

// Plain answers that set two loans side by side: the loan that a borrower has against a new one, against
// paying more and against paying every two weeks; and two offers for a purchase. Conventions and errors stand
// in question.h. For example
//
//   Compare(PrepaymentQuestion{.current = {.balance = 100000, .payment = 843.86, .annualPercent = 6},
//                              .extraPayment = 100})
//
// answers with current.months 180 and proposed.months 151.

#include "amortix2/automation/public.h"
#include "amortix2/calculators/loans.h"
#include "amortix2/calculators/question.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// The loan that the borrower has; its remaining term is found.
struct CurrentLoan {
  double balance = 0;
  double payment = 0;  ///< each month
  double annualPercent = 0;
};

/// What decides what a loan costs in today's money.
struct Outlook {
  double taxPercent = 0;     ///< income tax that deductible interest saves
  double growthPercent = 0;  ///< what money not spent earns, annual
  double monthsKept = 0;     ///< months until the home is sold; below 1 or past the term: the whole term
};

/// One of two loans. Totals and cost run over the months kept.
struct ComparedLoan {
  double payment = 0;
  double upFrontCost = 0;  ///< points, interim interest and fees
  double months = 0;
  double costInTodaysMoney = 0;     ///< present value of what is paid and owed, less tax saved
  double annualPercentageRate = 0;  ///< APR, to three decimals; offers only
  double totalPayments = 0;
  double totalInterest = 0;
  double totalTaxSaved = 0;
  Schedule schedule = {};
};

struct LoanComparison {
  ComparedLoan current = {};
  ComparedLoan proposed = {};
};

/// A new loan of the current balance.
struct NewLoan {
  double months = 0;
  double annualPercent = 0;
  double points = 0;  ///< percent of the balance
  double fees = 0;
};

struct RefinancingQuestion {
  CurrentLoan current = {};
  NewLoan proposed = {};
  Outlook outlook = {};
  Date startDate = kDefaultStart;
};

/// The current loan with `extraPayment` more each month.
struct PrepaymentQuestion {
  CurrentLoan current = {};
  double extraPayment = 0;
  Outlook outlook = {};
  Date startDate = kDefaultStart;
};

/// The current loan with half payments every two weeks from a date on, for a fee.
struct BiWeeklyQuestion {
  CurrentLoan current = {};
  Date switchDate = kDefaultStart;  ///< first half payment; by the start: 14 days after it
  double fees = 0;
  Outlook outlook = {};
  Date startDate = kDefaultStart;
};

LoanComparison Compare(const RefinancingQuestion& question);
LoanComparison Compare(const PrepaymentQuestion& question);
LoanComparison Compare(const BiWeeklyQuestion& question);

/// The extra payment that pays the current loan off in `months`, never less than 0.
double ExtraPaymentFor(const CurrentLoan& current, double months);

/// Two offers.
struct OfferQuestion {
  PurchaseLoan first = {};
  PurchaseLoan second = {};
  Outlook outlook = {};
  Date startDate = kDefaultStart;
};

struct OfferComparison {
  ComparedLoan first = {};
  ComparedLoan second = {};
};

OfferComparison Compare(const OfferQuestion& question);

}  // namespace amortix2
