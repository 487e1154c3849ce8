#pragma once

// Plain answers about savings: what a plan of regular deposits comes to, or needs, and what a single sum is
// worth at another time; retirement accounts; and how a balance is spent. Conventions and errors stand in
// question.h. Terms are whole periods of the plan's frequency.

#include <cstdint>
#include <optional>

#include "amortix2/automation/public.h"
#include "amortix2/calculators/question.h"

namespace AMORTIX2_PUBLIC amortix2 {

// ---- Saving

/// For example 100 a month over ten years at 6 % from nothing:
///
///   Solve(SavingsQuestion{.balance = 0, .deposit = 100, .annualPercent = 6, .periods = 120}).endingBalance
///
/// is 16387.98. A single sum between two dates has a deposit of 0 and an `endDate`.
struct SavingsQuestion {
  std::optional<double> balance = {};        ///< at the start
  std::optional<double> deposit = {};        ///< each period, at its end
  std::optional<double> annualPercent = {};  ///< compounded each period
  std::optional<double> endingBalance = {};  ///< the goal
  std::optional<double> periods = {};        ///< term, its whole part, at least 0
  std::optional<Date> endDate = {};          ///< or the last day; before the start: looked for
  enumFrequencyType frequency = monthlyMode;
  double taxPercent = 0;  ///< income tax on interest
  Date startDate = kDefaultStart;
};

struct SavingsAnswer {
  double balance = 0;
  double deposit = 0;
  double annualPercent = 0;  ///< to three decimals when it was found
  double endingBalance = 0;  ///< what the schedule reaches; a goal may be missed by cents
  Date startDate = {};
  Date endDate = {};
  double totalInterest = 0;
  double totalTax = 0;
  double totalDeposits = 0;
  Schedule schedule = {};  ///< with a last line for days that make no whole period
};

/// Finds what is left out, and the schedule. With neither periods nor endDate the term is looked for. Where
/// the goal cannot be reached the answer is one period whose interest is taken out.
SavingsAnswer Solve(const SavingsQuestion& question);

// ---- Retirement accounts

/// Yearly contributions, and growth without tax.
struct RetirementQuestion {
  SavingsQuestion plan = {};  ///< its endingBalance is after tax; frequency and taxPercent are not read
  bool isTaxedOnWithdrawal = false;  ///< the income tax is due at the end, on the whole balance
  double taxPercent = 0;             ///< of a taxed account
};

struct RetirementAnswer {
  SavingsAnswer plan = {};
  double afterTax = 0;  ///< plan.endingBalance less the tax
};

/// Raises also DivisionByZero for a goal taxed at 100 %.
RetirementAnswer Solve(const RetirementQuestion& question);

// ---- Spending

/// A balance spent down to nothing.
struct SpendingQuestion {
  std::optional<double> balance = {};     ///< at the start
  std::optional<double> withdrawal = {};  ///< each period, at its end
  std::optional<double> annualPercent = {};
  std::optional<double> periods = {};  ///< term, its whole part, at least 0
  std::optional<Date> endDate = {};    ///< or the last day; before the start: looked for
  enumFrequencyType frequency = monthlyMode;
  Date startDate = kDefaultStart;
};

struct SpendingAnswer {
  double balance = 0;
  double withdrawal = 0;
  double annualPercent = 0;
  Date startDate = {};
  Date endDate = {};
  bool lastsForEver = false;  ///< it ends as it began
  double totalInterest = 0;
  Schedule schedule = {};  ///< withdrawals are negative payments
};

/// Finds what is left out, and the schedule; schedule.size() - 1 periods is how long the balance lasts.
SpendingAnswer Solve(const SpendingQuestion& question);

// ---- Dates of plans

/// The date that the whole part of `periods` (downwards) periods after `start`. Raises Overflow,
/// InvalidProcedureCall.
Date DateAfter(Date start, enumFrequencyType frequency, double periods);

}  // namespace amortix2
