#pragma once

// The engine's one entry: what a calculation type asks of arrays of records.

#include <cstdint>

#include "amortix2/automation/array.h"
#include "amortix2/engine/records.h"

namespace amortix2 {

/// Computes in place; the arrays are used from index 1. Types outside the list do nothing. Always returns 0.
///
///   LoanQualification       the payment that the household qualifies for, then as LoanAffordability
///   LoanAffordability       the largest loan 1 that `qualification.monthlyPayment` carries
///   LoanConsolidation       loans 2 and up, then loan 1 for the sum of their amounts
///   LoanCalculator          every loan, with its schedule
///   SavingsCalculator       every savings account, with its schedule
///   SavingsGoalsCalculator  nothing, with savings account 1
///   LoanQuickCalc           every loan, without a schedule
///
/// Raises what the solvers raise, and SubscriptOutOfRange where record 1 is needed and missing. The records
/// then hold what had been computed.
std::int32_t Amortix(enumAmortixType type, RecordArray<tLoanDesc>& loans, RecordArray<tSavingsDesc>& savings,
                     RecordArray<tGoalDesc>& goals, tCreditQualification& qualification);

}  // namespace amortix2
