#pragma once

// The class that page scripts create to answer personal-finance questions. Each call describes a loan or a
// plan, has the engine solve and schedule it, and overwrites the by-reference results; the object keeps
// nothing, so any number of threads may share one. Numeric inputs that are no numbers count as 0; rates are
// annual percentages, terms are months unless said otherwise. What each parameter means stands in the
// description (component/* _descriptions.h); what each method does in detail, and its errors, in
// calculators/.

#include <cstdint>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/automation/date.h"
#include "amortix2/automation/public.h"
#include "amortix2/automation/variant.h"
#include "amortix2/engine/records.h"

namespace AMORTIX2_PUBLIC amortix2 {

class Calculator {
 public:
  /// The clock says what today is; it must outlive the calculator.
  explicit Calculator(const Clock& clock) : clock_(clock) {}

  // ---- Records

  /// Computes in place what AmortixType asks of the records, which are used from index 1; always returns 0.
  std::int32_t Amortix(enumAmortixType AmortixType, RecordArray<tLoanDesc>& LoanArray,
                       RecordArray<tSavingsDesc>& SavingArray, RecordArray<tGoalDesc>& GoalArray,
                       tCreditQualification& Qualification) const;

  /// Copies schedule lines 0 to lastRow into a table of at least five columns from atCol on.
  void LoadDetArray(tLoanDesc& loan, std::int16_t atCol, std::int16_t lastRow, Variant& detArray) const;
  void LoadSaveDetArray(tSavingsDesc& save, std::int16_t atCol, std::int16_t lastRow,
                        Variant& detArray) const;

  // ---- Loans and leases

  /// Of amount, payment, term and rate, finds the one that is 0 (with all given: the payment).
  void SimpleLoanCalculator(const Variant& vLoanType, Number vPurchaseAmt, Number vPayment, Number vPeriod,
                            Number vIntRate, Variant& vResPurchaseAmt, Variant& vResPayment,
                            Variant& vResPeriod, Variant& vResIntRate, Variant& vTotPay, Variant& vTotInt,
                            Variant& vDetArray) const;

  /// The payment of a fixed-rate purchase loan with a down payment.
  void FixedPayment(const Variant& vLoanType, Number vPurchaseAmt, Number vDownPayment, Number vPeriod,
                    Number vIntRate, const Variant& vCloseDate, const Variant& vPayDate,
                    Variant& vResPurchaseAmt, Variant& vResPayment, Variant& vResPeriod, Variant& vResIntRate,
                    Variant& vTotPay, Variant& vTotInt, Variant& vDetArray) const;

  /// The payment of an adjustable-rate purchase loan.
  void AdjustablePayment(const Variant& vLoanType, Number vPurchaseAmt, Number vDownPayment, Number vPeriod,
                         Number vIntRate, const Variant& vCloseDate, const Variant& vPayDate, Number vRateCap,
                         Number vRateInc1, Number vRateInc2, Number vIncDelay1, Number vIncDelay2,
                         Variant& vResPurchaseAmt, Variant& vResPayment, Variant& vResPeriod,
                         Variant& vResIntRate, Variant& vTotPay, Variant& vTotInt, Variant& vDetArray) const;

  /// The payment and the balloon of a loan settled early by one large payment.
  void BalloonLoanPaymentCalculator(Number vPurchaseAmt, Number vDownPayment, const Variant& vStartDate,
                                    Number vPeriod, Number vBalloonAtPeriod, Number vIntRate,
                                    Variant& vPrincipal, Variant& vPayment, Variant& vBalloonPayment,
                                    Variant& vTotalAmountFinanced, Variant& vTotPayments,
                                    Variant& vTotIntCharged, Variant& vDetArray) const;

  /// Of payment, principal, rate and residual of a monthly lease, finds the one that is missing.
  void MonthlyLeaseCalculator(const Variant& vDummy, Number vPrincipal, Number vPayment, Number vPeriod,
                              Number vIntRate, Number vPrepays, Number vEndingBal, const Variant& vStartDate,
                              Variant& vResPrincipal, Variant& vResPayment, Variant& vResPeriod,
                              Variant& vResIntRate, Variant& vResPrepays, Variant& vResEndingBal,
                              Variant& vResTotPayments, Variant& vResTotInterest, Variant& vDetArr) const;

  /// A lease with payments and interest at any frequency.
  void SimpleLeaseCalculator(const Variant& vDummy, Number vPrincipal, Number vPayment, Number vPeriod,
                             Number vIntRate, Number vPrepays, Number vEndingBal, const Variant& vStartDate,
                             Number vPayMode, Number vIntMode, Variant& vResPrincipal, Variant& vResPayment,
                             Variant& vResPeriod, Variant& vResIntRate, Variant& vResPrepays,
                             Variant& vResEndingBal, Variant& vResTotPayments, Variant& vResTotInterest,
                             Variant& vDetArr) const;

  /// The mortgage that a monthly housing budget carries.
  void HomeAffordabilityCalculator(Number vPayment, Number vPropertyTax, Number vInsurance, Number vDues,
                                   Number vDownPayment, Number vPeriod, Number vIntRate,
                                   Variant& vNewPrincipal, Variant& vNewPayment, Variant& vNewTaxes,
                                   Variant& vNewFees, Variant& vNewDet) const;

  /// The mortgage that an income and its debts qualify for.
  void MortgageQualificationCalculator(Number vAnnualIncome, Number vCreditCard, Number vCarPayments,
                                       Number vChildSupport, Number vOtherMonthly, Number vPropertyTax,
                                       Number vInsurance, Number vDues, Number vDownPayment, Number vPeriod,
                                       Number vIntRate, Variant& vNewPrincipal, Variant& vNewPayment,
                                       Variant& vNewTaxes, Variant& vNewFees, Variant& vNewDet) const;

  /// Payments for rates around one rate and down payments around one down payment.
  void PaymentGridCalculator(Variant& vPrincipal, Variant& vDownPayment, Variant& vIntRate, Variant& vPeriod,
                             Variant& vDownChange, Variant& vRateChange, Variant& vStepX, Variant& vStepY,
                             Variant& vGrid) const;

  // ---- Comparisons of two loans

  /// The current loan against a new one.
  void RefinancingCalculator(Number vCurrBal, Number vCurrPay, Number vCurrRate, Number vNewRate,
                             Number vNewPoints, Number vNewFees, Number vNewTerm, Number vIncTaxRate,
                             Number vInvGrowthRate, Number vSellByDate, Variant& vGrid, Variant& vCurrDet,
                             Variant& vNewDet) const;

  /// The current loan against paying more each month.
  void PrePayCalculator(Number vCurrBal, Number vCurrPay, Number vCurrRate, Number vExtraPayment,
                        Number vIncTaxRate, Number vInvGrowthRate, Number vSellByDate, Variant& vGrid,
                        Variant& vCurrDet, Variant& vNewDet) const;

  /// The current loan against paying it off by a target term.
  void FastPrePayCalculator(Variant& currBal, Variant& currPay, Variant& currRate, Variant& targetPeriod,
                            Variant& taxRate, Variant& invRate, Variant& keep, Variant& grid,
                            Variant& currdet, Variant& newdet) const;

  /// The current loan against half payments every two weeks.
  void BiWeeklyComparison(Number vCurrBal, Number vCurrPay, Number vCurrRate, const Variant& vPaymentDate,
                          Number vNewFees, const Variant& vSwitchDate, Number vIncTaxRate,
                          Number vInvGrowthRate, Number vSellByDate, Variant& vGrid, Variant& vCurrDet,
                          Variant& vNewDet) const;

  /// Two fixed-rate offers with points and fees.
  void PointsAdvisor(Number vPurchaseAmt, Number vIncTaxRate, Number vSellByDate, Number vDownpayment1,
                     Number vPeriod1, Number vIntRate1, Number vPoints1, Number vFees1, Number vDownpayment2,
                     Number vPeriod2, Number vIntRate2, Number vPoints2, Number vFees2, Variant& vGrid,
                     Variant& vCurrDet, Variant& vNewDet) const;

  /// Two adjustable-rate offers.
  void ARMComparison(Number vPurchaseAmt, Number vIncTaxRate, Number vSellByDate, Number vDownpayment1,
                     Number vPeriod1, Number vIntRate1, Number vPoints1, Number vFees1, Number vRateInc1,
                     Number vIncDelay1, Number vRateCap1, Number vDownpayment2, Number vPeriod2,
                     Number vIntRate2, Number vPoints2, Number vFees2, Number vRateInc2, Number vIncDelay2,
                     Number vRateCap2, Variant& vGrid, Variant& vCurrDet, Variant& vNewDet) const;

  /// Several current loans against one new loan for all of them.
  void LoanConsolidationCalculator(const Variant& vCurrBal, const Variant& vCurrPay, const Variant& vCurrRate,
                                   Number vNewRate, Number vNewPoints, Number vNewFees, Number vNewTerm,
                                   Number vIncTaxRate, Number vInvGrowthRate, Number vSellByDate,
                                   Variant& vGrid, Variant& vCurrGrid, Variant& vCurrDet,
                                   Variant& vNewDet) const;

  /// Renting a home against buying one.
  void RentVsBuyComparison(Number vRent, Number vRentInc, Number vRentInsurance, Number vPurchaseAmt,
                           Number vDownPayment, Number vPeriod, Number vIntRate, Number vPoints, Number vFees,
                           Number vPropertyTax, Number vInsurance, Number vDues, Number vMaintenance,
                           Number vHomeGrowthRate, Number vSellCost, Number vIncTaxRate,
                           Number vInvGrowthRate, Number vSellByDate, Variant& vGrid, Variant& vRentDet,
                           Variant& vBuyDet) const;

  // ---- Savings and the time value of money

  /// What a savings plan comes to.
  void AmountSavedCalculator(const Variant& vStartDate, Number vCurrBal, Number vPayment, Number vFreq,
                             Number vPeriod, Number vIntRate, Variant& vEndBal, Variant& vDetArray) const;

  /// The rate that a savings plan needs.
  void SavingsRateCalculator(const Variant& vStartDate, Number vCurrBal, Number vPayment, Number vFreq,
                             Number vPeriod, Number vEndingBal, Variant& vIntRate, Variant& vDetArray) const;

  /// The opening balance that a savings plan needs.
  void StartingAmountCalculator(const Variant& vStartDate, Number vPayment, Number vFreq, Number vPeriod,
                                Number vIntRate, Number vEndingBal, Variant& vCurrBal,
                                Variant& vDetArray) const;

  /// The deposit that a savings plan needs.
  void DepositCalculator(const Variant& vStartDate, Number vCurrBal, Number vFreq, Number vPeriod,
                         Number vIntRate, Number vEndingBal, Variant& vPayment, Variant& vDetArray) const;

  /// What a future sum is worth today.
  void PresentValueCalculator(const Variant& vStartDate, const Variant& vEndingDate, Number vEndingBal,
                              Number vIntRate, Number vFreq, Variant& vCurrBal, Variant& vDetArray) const;

  /// What a sum of today grows to.
  void FutureValueCalculator(const Variant& vStartDate, const Variant& vEndingDate, Number vCurrBal,
                             Number vIntRate, Number vFreq, Variant& vEndingBal, Variant& vDetArray) const;

  /// The rate that turns one sum into another.
  void YieldCalculator(const Variant& vStartDate, const Variant& vEndingDate, Number vCurrBal,
                       Number vEndingBal, Number vFreq, Variant& vIntRate, Variant& vResEndingBal,
                       Variant& vDetArray) const;

  /// Of balance, deposit, goal, term and rate of a savings plan, finds the one that is missing.
  void SimpleSavingsCalculator(const Variant& vStartDate, Number vCurrBal, Number vPayment, Number vFreq,
                               Number vEndingBal, Number vPeriod, Number vIntRate, Number vIncTaxRate,
                               Variant& vResCurrBal, Variant& vResPayment, Variant& vResEndingBal,
                               Variant& vResEndDate, Variant& vResIntRate, Variant& vDetArray) const;

  /// A retirement account with yearly contributions.
  void IRACalculator(const Variant& vStartDate, const Variant& vTyp, Number vCurrBal, Number vPayment,
                     Number vEndingBal, Number vPeriod, Number vIntRate, const Variant& vIncTaxRate,
                     Variant& vGrid, Variant& vDetArray) const;

  /// Of balance, withdrawal, rate and term of a spending plan, finds the one that is missing.
  void SpendingCalculator(const Variant& vStartDate, Number vCurrBal, Number vPayment, Number vIntRate,
                          Number vFreq, Number vPeriod, Variant& vResCurrBal, Variant& vResPayment,
                          Variant& vResIntRate, Variant& vResPeriod, Variant& vDetArray) const;

 private:
  const Clock& clock_;
};

}  // namespace amortix2
