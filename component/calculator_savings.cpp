#include "amortix2/calculators/savings.h"
#include "amortix2/component/calculator.h"

namespace amortix2 {

void Calculator::AmountSavedCalculator(const Variant& vStartDate, const Variant& vCurrBal,
                                       const Variant& vPayment, const Variant& vFreq, const Variant& vPeriod,
                                       const Variant& vIntRate, Variant& vEndBal, Variant& vDetArray) const {
  calculators::AmountSavedCalculator(vStartDate, vCurrBal, vPayment, vFreq, vPeriod, vIntRate, vEndBal,
                                     vDetArray);
}

void Calculator::SavingsRateCalculator(const Variant& vStartDate, const Variant& vCurrBal,
                                       const Variant& vPayment, const Variant& vFreq, const Variant& vPeriod,
                                       const Variant& vEndingBal, Variant& vIntRate,
                                       Variant& vDetArray) const {
  calculators::SavingsRateCalculator(vStartDate, vCurrBal, vPayment, vFreq, vPeriod, vEndingBal, vIntRate,
                                     vDetArray);
}

void Calculator::StartingAmountCalculator(const Variant& vStartDate, const Variant& vPayment,
                                          const Variant& vFreq, const Variant& vPeriod,
                                          const Variant& vIntRate, const Variant& vEndingBal,
                                          Variant& vCurrBal, Variant& vDetArray) const {
  calculators::StartingAmountCalculator(vStartDate, vPayment, vFreq, vPeriod, vIntRate, vEndingBal, vCurrBal,
                                        vDetArray);
}

void Calculator::DepositCalculator(const Variant& vStartDate, const Variant& vCurrBal, const Variant& vFreq,
                                   const Variant& vPeriod, const Variant& vIntRate, const Variant& vEndingBal,
                                   Variant& vPayment, Variant& vDetArray) const {
  calculators::DepositCalculator(vStartDate, vCurrBal, vFreq, vPeriod, vIntRate, vEndingBal, vPayment,
                                 vDetArray);
}

void Calculator::PresentValueCalculator(const Variant& vStartDate, const Variant& vEndingDate,
                                        const Variant& vEndingBal, const Variant& vIntRate,
                                        const Variant& vFreq, Variant& vCurrBal, Variant& vDetArray) const {
  calculators::PresentValueCalculator(clock_, vStartDate, vEndingDate, vEndingBal, vIntRate, vFreq, vCurrBal,
                                      vDetArray);
}

void Calculator::FutureValueCalculator(const Variant& vStartDate, const Variant& vEndingDate,
                                       const Variant& vCurrBal, const Variant& vIntRate, const Variant& vFreq,
                                       Variant& vEndingBal, Variant& vDetArray) const {
  calculators::FutureValueCalculator(clock_, vStartDate, vEndingDate, vCurrBal, vIntRate, vFreq, vEndingBal,
                                     vDetArray);
}

void Calculator::YieldCalculator(const Variant& vStartDate, const Variant& vEndingDate,
                                 const Variant& vCurrBal, const Variant& vEndingBal, const Variant& vFreq,
                                 Variant& vIntRate, Variant& vResEndingBal, Variant& vDetArray) const {
  calculators::YieldCalculator(clock_, vStartDate, vEndingDate, vCurrBal, vEndingBal, vFreq, vIntRate,
                               vResEndingBal, vDetArray);
}

void Calculator::SimpleSavingsCalculator(const Variant& vStartDate, const Variant& vCurrBal,
                                         const Variant& vPayment, const Variant& vFreq,
                                         const Variant& vEndingBal, const Variant& vPeriod,
                                         const Variant& vIntRate, const Variant& vIncTaxRate,
                                         Variant& vResCurrBal, Variant& vResPayment, Variant& vResEndingBal,
                                         Variant& vResEndDate, Variant& vResIntRate,
                                         Variant& vDetArray) const {
  calculators::SimpleSavingsCalculator(vStartDate, vCurrBal, vPayment, vFreq, vEndingBal, vPeriod, vIntRate,
                                       vIncTaxRate, vResCurrBal, vResPayment, vResEndingBal, vResEndDate,
                                       vResIntRate, vDetArray);
}

void Calculator::IRACalculator(const Variant& vStartDate, const Variant& vTyp, const Variant& vCurrBal,
                               const Variant& vPayment, const Variant& vEndingBal, const Variant& vPeriod,
                               const Variant& vIntRate, const Variant& vIncTaxRate, Variant& vGrid,
                               Variant& vDetArray) const {
  calculators::IRACalculator(vStartDate, vTyp, vCurrBal, vPayment, vEndingBal, vPeriod, vIntRate, vIncTaxRate,
                             vGrid, vDetArray);
}

void Calculator::SpendingCalculator(const Variant& vStartDate, const Variant& vCurrBal,
                                    const Variant& vPayment, const Variant& vIntRate, const Variant& vFreq,
                                    const Variant& vPeriod, Variant& vResCurrBal, Variant& vResPayment,
                                    Variant& vResIntRate, Variant& vResPeriod, Variant& vDetArray) const {
  calculators::SpendingCalculator(vStartDate, vCurrBal, vPayment, vIntRate, vFreq, vPeriod, vResCurrBal,
                                  vResPayment, vResIntRate, vResPeriod, vDetArray);
}

}  // namespace amortix2
