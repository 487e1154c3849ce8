#include "amortix2/engine/amortix.h"

#include "amortix2/engine/loan_solver.h"
#include "amortix2/engine/qualification.h"
#include "amortix2/engine/savings_solver.h"

namespace amortix2 {
namespace {

void SolveLoans(RecordArray<tLoanDesc>& loans, std::int32_t first, tCreditQualification& qualification,
                bool buildSchedule) {
  for (std::int32_t i = first; i <= loans.Upper(); ++i) SolveLoan(loans.At(i), qualification, buildSchedule);
}

void Consolidate(RecordArray<tLoanDesc>& loans, tCreditQualification& qualification) {
  tLoanDesc& combined = loans.At(1);
  combined.startingBalance = 0;
  SolveLoans(loans, 2, qualification, true);
  for (std::int32_t i = 2; i <= loans.Upper(); ++i) combined.startingBalance += loans.At(i).startingBalance;
  SolveLoan(combined, qualification, true);
}

}  // namespace

std::int32_t Amortix(enumAmortixType type, RecordArray<tLoanDesc>& loans, RecordArray<tSavingsDesc>& savings,
                     RecordArray<tGoalDesc>& goals, tCreditQualification& qualification) {
  switch (type) {
    case LoanQualification:
      ComputeQualifyingPayment(qualification);
      SolveAffordableLoan(loans.At(1), qualification);
      break;
    case LoanAffordability:
      SolveAffordableLoan(loans.At(1), qualification);
      break;
    case LoanConsolidation:
      Consolidate(loans, qualification);
      break;
    case LoanCalculator:
      SolveLoans(loans, 1, qualification, true);
      break;
    case SavingsCalculator:
      for (std::int32_t i = 1; i <= savings.Upper(); ++i) SolveSavings(savings.At(i), goals, qualification);
      break;
    case SavingsGoalsCalculator:
      savings.At(1);
      break;
    case LoanQuickCalc:
      SolveLoans(loans, 1, qualification, false);
      break;
    default:
      break;
  }
  return 0;
}

}  // namespace amortix2
