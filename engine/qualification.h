#pragma once

// How large a loan a household can carry.

#include "amortix2/engine/records.h"

namespace amortix2 {

/// Sets `monthlyPayment`: the smaller of 28 % of the income and 36 % of the income less debts, plus the debts
/// (card, car, child support and other obligations, which SolveAffordableLoan subtracts again). Raises
/// Overflow.
void ComputeQualifyingPayment(tCreditQualification& qualification);

/// Finds the largest principal of `loan`, whose type, rate and term are set, that `monthlyPayment` carries
/// once the home's charges, the property tax on the whole price and the household's debts are paid; then
/// solves and schedules the loan. Raises as SolveLoan does.
void SolveAffordableLoan(tLoanDesc& loan, tCreditQualification& qualification);

}  // namespace amortix2
