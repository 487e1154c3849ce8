#pragma once

// The automation class InvestmentStrategy: from the answers to a risk questionnaire to an investment profile
// and the split of an amount over asset classes. Keeps nothing between calls.

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/public.h"
#include "amortix2/automation/variant.h"

namespace AMORTIX2_PUBLIC amortix2 {

class InvestmentStrategy {
 public:
  /// Chooses the profile and splits the amount (asset_allocation.h).
  ///
  /// `vInvAmount` counts as 0 when it is no number. `vSurvey` is a one-dimensional array of answers, read
  /// from index 1 on, whatever its lower bound: a number stands for itself; anything that reads as 0 counts
  /// by the first character of its text, "A" as 1, "B" as 2 and so on by its code in code page 1252.
  ///
  /// Results, written at the end: `vStratNumber` the profile as a double, `vStratTitle` and `vStratDesc` its
  /// texts, `vResult` an array of rows 0 to 3 by columns 0 to 1: row 0 Empty, then class name and amount for
  /// each class.
  ///
  /// Raises, with nothing written, what AllocateAssets raises, TypeMismatch when `vSurvey` is no array or an
  /// answer is one, SubscriptOutOfRange when the array has two dimensions or starts above index 1,
  /// InvalidProcedureCall for an answer without text (Empty, Null, Missing or "").
  void AssetAllocation(Number vInvAmount, const Variant& vSurvey, Variant& vStratNumber, Variant& vStratTitle,
                       Variant& vStratDesc, Variant& vResult) const;
};

}  // namespace amortix2
