#include "amortix2/component/investment_strategy.h"

#include "amortix2/strategy/asset_allocation.h"

namespace amortix2 {

void InvestmentStrategy::AssetAllocation(const Variant& vInvAmount, const Variant& vSurvey,
                                         Variant& vStratNumber, Variant& vStratTitle, Variant& vStratDesc,
                                         Variant& vResult) const {
  AllocateAssets(vInvAmount, vSurvey, vStratNumber, vStratTitle, vStratDesc, vResult);
}

}  // namespace amortix2
