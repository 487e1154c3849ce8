// The members of Calculator that work on the engine's records.

#include <utility>

#include "amortix2/calculators/calculator.h"
#include "amortix2/engine/amortix.h"
#include "amortix2/engine/detail_arrays.h"
#include "amortix2/engine/savings_detail.h"

namespace amortix2 {

std::int32_t Calculator::Amortix(enumAmortixType AmortixType, RecordArray<tLoanDesc>& LoanArray,
                                 RecordArray<tSavingsDesc>& SavingArray, RecordArray<tGoalDesc>& GoalArray,
                                 tCreditQualification& Qualification) const {
  // On copies, so that a call that raises leaves the caller's records as they were.
  RecordArray<tLoanDesc> loans = LoanArray;
  RecordArray<tSavingsDesc> savings = SavingArray;
  tCreditQualification qualification = Qualification;
  const std::int32_t result = amortix2::Amortix(AmortixType, loans, savings, GoalArray, qualification);
  LoanArray = std::move(loans);
  SavingArray = std::move(savings);
  Qualification = qualification;
  return result;
}

void Calculator::LoadDetArray(tLoanDesc& loan, std::int16_t atCol, std::int16_t lastRow,
                              Variant& detArray) const {
  amortix2::LoadDetArray(loan, atCol, lastRow, detArray.GetArray());
}

void Calculator::LoadSaveDetArray(tSavingsDesc& save, std::int16_t atCol, std::int16_t lastRow,
                                  Variant& detArray) const {
  amortix2::LoadSaveDetArray(save, atCol, lastRow, detArray.GetArray());
}

}  // namespace amortix2
