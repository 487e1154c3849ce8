#include "component/investment_strategy.h"

#include "strategy/asset_allocation.h"

namespace amortix2 {

void InvestmentStrategy::AssetAllocation(const Variant& vInvAmount, const Variant& vSurvey,
                                         Variant& vStratNumber, Variant& vStratTitle, Variant& vStratDesc,
                                         Variant& vResult) const {
  AllocateAssets(vInvAmount, vSurvey, vStratNumber, vStratTitle, vStratDesc, vResult);
}

}  // namespace amortix2
