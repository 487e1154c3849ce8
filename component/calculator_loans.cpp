#include "amortix2/calculators/leases.h"
#include "amortix2/calculators/loans.h"
#include "amortix2/component/calculator.h"

namespace amortix2 {

void Calculator::SimpleLoanCalculator(const Variant& vLoanType, const Variant& vPurchaseAmt,
                                      const Variant& vPayment, const Variant& vPeriod,
                                      const Variant& vIntRate, Variant& vResPurchaseAmt, Variant& vResPayment,
                                      Variant& vResPeriod, Variant& vResIntRate, Variant& vTotPay,
                                      Variant& vTotInt, Variant& vDetArray) const {
  calculators::SimpleLoanCalculator(clock_, vLoanType, vPurchaseAmt, vPayment, vPeriod, vIntRate,
                                    vResPurchaseAmt, vResPayment, vResPeriod, vResIntRate, vTotPay, vTotInt,
                                    vDetArray);
}

void Calculator::FixedPayment(const Variant& vLoanType, const Variant& vPurchaseAmt,
                              const Variant& vDownPayment, const Variant& vPeriod, const Variant& vIntRate,
                              const Variant& vCloseDate, const Variant& vPayDate, Variant& vResPurchaseAmt,
                              Variant& vResPayment, Variant& vResPeriod, Variant& vResIntRate,
                              Variant& vTotPay, Variant& vTotInt, Variant& vDetArray) const {
  calculators::FixedPayment(clock_, vLoanType, vPurchaseAmt, vDownPayment, vPeriod, vIntRate, vCloseDate,
                            vPayDate, vResPurchaseAmt, vResPayment, vResPeriod, vResIntRate, vTotPay, vTotInt,
                            vDetArray);
}

void Calculator::AdjustablePayment(const Variant& vLoanType, const Variant& vPurchaseAmt,
                                   const Variant& vDownPayment, const Variant& vPeriod,
                                   const Variant& vIntRate, const Variant& vCloseDate,
                                   const Variant& vPayDate, const Variant& vRateCap, const Variant& vRateInc1,
                                   const Variant& vRateInc2, const Variant& vIncDelay1,
                                   const Variant& vIncDelay2, Variant& vResPurchaseAmt, Variant& vResPayment,
                                   Variant& vResPeriod, Variant& vResIntRate, Variant& vTotPay,
                                   Variant& vTotInt, Variant& vDetArray) const {
  calculators::AdjustablePayment(clock_, vLoanType, vPurchaseAmt, vDownPayment, vPeriod, vIntRate, vCloseDate,
                                 vPayDate, vRateCap, vRateInc1, vRateInc2, vIncDelay1, vIncDelay2,
                                 vResPurchaseAmt, vResPayment, vResPeriod, vResIntRate, vTotPay, vTotInt,
                                 vDetArray);
}

void Calculator::BalloonLoanPaymentCalculator(const Variant& vPurchaseAmt, const Variant& vDownPayment,
                                              const Variant& vStartDate, const Variant& vPeriod,
                                              const Variant& vBalloonAtPeriod, const Variant& vIntRate,
                                              Variant& vPrincipal, Variant& vPayment,
                                              Variant& vBalloonPayment, Variant& vTotalAmountFinanced,
                                              Variant& vTotPayments, Variant& vTotIntCharged,
                                              Variant& vDetArray) const {
  calculators::BalloonLoanPaymentCalculator(clock_, vPurchaseAmt, vDownPayment, vStartDate, vPeriod,
                                            vBalloonAtPeriod, vIntRate, vPrincipal, vPayment, vBalloonPayment,
                                            vTotalAmountFinanced, vTotPayments, vTotIntCharged, vDetArray);
}

void Calculator::MonthlyLeaseCalculator(const Variant& vDummy, const Variant& vPrincipal,
                                        const Variant& vPayment, const Variant& vPeriod,
                                        const Variant& vIntRate, const Variant& vPrepays,
                                        const Variant& vEndingBal, const Variant& vStartDate,
                                        Variant& vResPrincipal, Variant& vResPayment, Variant& vResPeriod,
                                        Variant& vResIntRate, Variant& vResPrepays, Variant& vResEndingBal,
                                        Variant& vResTotPayments, Variant& vResTotInterest,
                                        Variant& vDetArr) const {
  calculators::MonthlyLeaseCalculator(clock_, vDummy, vPrincipal, vPayment, vPeriod, vIntRate, vPrepays,
                                      vEndingBal, vStartDate, vResPrincipal, vResPayment, vResPeriod,
                                      vResIntRate, vResPrepays, vResEndingBal, vResTotPayments,
                                      vResTotInterest, vDetArr);
}

void Calculator::SimpleLeaseCalculator(
    const Variant& vDummy, const Variant& vPrincipal, const Variant& vPayment, const Variant& vPeriod,
    const Variant& vIntRate, const Variant& vPrepays, const Variant& vEndingBal, const Variant& vStartDate,
    const Variant& vPayMode, const Variant& vIntMode, Variant& vResPrincipal, Variant& vResPayment,
    Variant& vResPeriod, Variant& vResIntRate, Variant& vResPrepays, Variant& vResEndingBal,
    Variant& vResTotPayments, Variant& vResTotInterest, Variant& vDetArr) const {
  calculators::SimpleLeaseCalculator(clock_, vDummy, vPrincipal, vPayment, vPeriod, vIntRate, vPrepays,
                                     vEndingBal, vStartDate, vPayMode, vIntMode, vResPrincipal, vResPayment,
                                     vResPeriod, vResIntRate, vResPrepays, vResEndingBal, vResTotPayments,
                                     vResTotInterest, vDetArr);
}

void Calculator::HomeAffordabilityCalculator(const Variant& vPayment, const Variant& vPropertyTax,
                                             const Variant& vInsurance, const Variant& vDues,
                                             const Variant& vDownPayment, const Variant& vPeriod,
                                             const Variant& vIntRate, Variant& vNewPrincipal,
                                             Variant& vNewPayment, Variant& vNewTaxes, Variant& vNewFees,
                                             Variant& vNewDet) const {
  calculators::HomeAffordabilityCalculator(clock_, vPayment, vPropertyTax, vInsurance, vDues, vDownPayment,
                                           vPeriod, vIntRate, vNewPrincipal, vNewPayment, vNewTaxes, vNewFees,
                                           vNewDet);
}

void Calculator::MortgageQualificationCalculator(const Variant& vAnnualIncome, const Variant& vCreditCard,
                                                 const Variant& vCarPayments, const Variant& vChildSupport,
                                                 const Variant& vOtherMonthly, const Variant& vPropertyTax,
                                                 const Variant& vInsurance, const Variant& vDues,
                                                 const Variant& vDownPayment, const Variant& vPeriod,
                                                 const Variant& vIntRate, Variant& vNewPrincipal,
                                                 Variant& vNewPayment, Variant& vNewTaxes, Variant& vNewFees,
                                                 Variant& vNewDet) const {
  calculators::MortgageQualificationCalculator(clock_, vAnnualIncome, vCreditCard, vCarPayments,
                                               vChildSupport, vOtherMonthly, vPropertyTax, vInsurance, vDues,
                                               vDownPayment, vPeriod, vIntRate, vNewPrincipal, vNewPayment,
                                               vNewTaxes, vNewFees, vNewDet);
}

void Calculator::PaymentGridCalculator(Variant& vPrincipal, Variant& vDownPayment, Variant& vIntRate,
                                       Variant& vPeriod, Variant& vDownChange, Variant& vRateChange,
                                       Variant& vStepX, Variant& vStepY, Variant& vGrid) const {
  calculators::PaymentGridCalculator(clock_, vPrincipal, vDownPayment, vIntRate, vPeriod, vDownChange,
                                     vRateChange, vStepX, vStepY, vGrid);
}

}  // namespace amortix2
