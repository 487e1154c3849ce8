#pragma once

// The automation class InvestmentStrategy: from the answers to a risk questionnaire to an investment profile
// and the split of an amount over asset classes. Keeps nothing between calls.

#include "amortix2/automation/variant.h"

namespace amortix2 {

class InvestmentStrategy {
 public:
  /// Chooses the profile and splits the amount: strategy/asset_allocation.h describes arguments, results,
  /// errors.
  void AssetAllocation(const Variant& vInvAmount, const Variant& vSurvey, Variant& vStratNumber,
                       Variant& vStratTitle, Variant& vStratDesc, Variant& vResult) const;
};

}  // namespace amortix2
