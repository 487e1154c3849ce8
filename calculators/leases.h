#pragma once

// Plain answers about a lease: a loan whose first payments may be made in advance and which ends with a
// residual value. Conventions and errors stand in question.h.

#include <cstdint>
#include <optional>

#include "amortix2/automation/public.h"
#include "amortix2/calculators/question.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// For example 20000 over 36 payments of 400 at 6 %, nothing in advance: a residual of 8199.16.
struct LeaseQuestion {
  std::optional<double> amount = {};         ///< what is leased is worth
  std::optional<double> payment = {};        ///< each period
  std::optional<double> annualPercent = {};  ///< see RatePerPayment for what is found of it
  std::optional<double> residual = {};       ///< value left after the last payment
  double payments = 1;                       ///< how many; below 1: one
  double prepaid = 0;                        ///< of them in advance, from 0 to `payments`; cut to that
  Date startDate = kDefaultStart;
  enumFrequencyType paymentFrequency = monthlyMode;
  enumFrequencyType interestFrequency = monthlyMode;  ///< the payments' where it does not divide them
};

struct LeaseAnswer {
  double amount = 0;
  double payment = 0;
  double payments = 0;
  double annualPercent = 0;  ///< 1200 times the growth of a payment period, which is the annual rate of a
                             ///< monthly lease with monthly interest
  std::int16_t prepaid = 0;
  double residual = 0;
  double totalPayments = 0;
  double totalInterest = 0;
  Schedule schedule = {};  ///< line 1 the payments in advance, the last line the residual
};

/// Finds what is left out, and the schedule.
LeaseAnswer Solve(const LeaseQuestion& question);

/// 1200 times the growth of one payment period at an annual rate whose interest is compounded at
/// `interest`. Raises Overflow.
double RatePerPayment(double annualPercent, enumFrequencyType payments, enumFrequencyType interest);

}  // namespace amortix2
