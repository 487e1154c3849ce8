#pragma once

// The class that page scripts create to answer personal-finance questions. Each call describes a loan or a
// plan, has the engine solve and schedule it, and overwrites the by-reference results; the object keeps
// nothing, so any number of threads may share one. Numeric inputs that are no numbers count as 0; rates are
// annual percentages, terms are months unless said otherwise. What each parameter means stands in the
// description (component/* _descriptions.h); what each method does in detail, and its errors, in
// calculators/.

#include <cstdint>

#include "amortix2/automation/array.h"
#include "amortix2/automation/date.h"
#include "amortix2/automation/variant.h"
#include "amortix2/engine/records.h"

namespace amortix2 {

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
  void SimpleLoanCalculator(const Variant& vLoanType, const Variant& vPurchaseAmt, const Variant& vPayment,
                            const Variant& vPeriod, const Variant& vIntRate, Variant& vResPurchaseAmt,
                            Variant& vResPayment, Variant& vResPeriod, Variant& vResIntRate, Variant& vTotPay,
                            Variant& vTotInt, Variant& vDetArray) const;

  /// The payment of a fixed-rate purchase loan with a down payment.
  void FixedPayment(const Variant& vLoanType, const Variant& vPurchaseAmt, const Variant& vDownPayment,
                    const Variant& vPeriod, const Variant& vIntRate, const Variant& vCloseDate,
                    const Variant& vPayDate, Variant& vResPurchaseAmt, Variant& vResPayment,
                    Variant& vResPeriod, Variant& vResIntRate, Variant& vTotPay, Variant& vTotInt,
                    Variant& vDetArray) const;

  /// The payment of an adjustable-rate purchase loan.
  void AdjustablePayment(const Variant& vLoanType, const Variant& vPurchaseAmt, const Variant& vDownPayment,
                         const Variant& vPeriod, const Variant& vIntRate, const Variant& vCloseDate,
                         const Variant& vPayDate, const Variant& vRateCap, const Variant& vRateInc1,
                         const Variant& vRateInc2, const Variant& vIncDelay1, const Variant& vIncDelay2,
                         Variant& vResPurchaseAmt, Variant& vResPayment, Variant& vResPeriod,
                         Variant& vResIntRate, Variant& vTotPay, Variant& vTotInt, Variant& vDetArray) const;

  /// The payment and the balloon of a loan settled early by one large payment.
  void BalloonLoanPaymentCalculator(const Variant& vPurchaseAmt, const Variant& vDownPayment,
                                    const Variant& vStartDate, const Variant& vPeriod,
                                    const Variant& vBalloonAtPeriod, const Variant& vIntRate,
                                    Variant& vPrincipal, Variant& vPayment, Variant& vBalloonPayment,
                                    Variant& vTotalAmountFinanced, Variant& vTotPayments,
                                    Variant& vTotIntCharged, Variant& vDetArray) const;

  /// Of payment, principal, rate and residual of a monthly lease, finds the one that is missing.
  void MonthlyLeaseCalculator(const Variant& vDummy, const Variant& vPrincipal, const Variant& vPayment,
                              const Variant& vPeriod, const Variant& vIntRate, const Variant& vPrepays,
                              const Variant& vEndingBal, const Variant& vStartDate, Variant& vResPrincipal,
                              Variant& vResPayment, Variant& vResPeriod, Variant& vResIntRate,
                              Variant& vResPrepays, Variant& vResEndingBal, Variant& vResTotPayments,
                              Variant& vResTotInterest, Variant& vDetArr) const;

  /// A lease with payments and interest at any frequency.
  void SimpleLeaseCalculator(const Variant& vDummy, const Variant& vPrincipal, const Variant& vPayment,
                             const Variant& vPeriod, const Variant& vIntRate, const Variant& vPrepays,
                             const Variant& vEndingBal, const Variant& vStartDate, const Variant& vPayMode,
                             const Variant& vIntMode, Variant& vResPrincipal, Variant& vResPayment,
                             Variant& vResPeriod, Variant& vResIntRate, Variant& vResPrepays,
                             Variant& vResEndingBal, Variant& vResTotPayments, Variant& vResTotInterest,
                             Variant& vDetArr) const;

  /// The mortgage that a monthly housing budget carries.
  void HomeAffordabilityCalculator(const Variant& vPayment, const Variant& vPropertyTax,
                                   const Variant& vInsurance, const Variant& vDues,
                                   const Variant& vDownPayment, const Variant& vPeriod,
                                   const Variant& vIntRate, Variant& vNewPrincipal, Variant& vNewPayment,
                                   Variant& vNewTaxes, Variant& vNewFees, Variant& vNewDet) const;

  /// The mortgage that an income and its debts qualify for.
  void MortgageQualificationCalculator(const Variant& vAnnualIncome, const Variant& vCreditCard,
                                       const Variant& vCarPayments, const Variant& vChildSupport,
                                       const Variant& vOtherMonthly, const Variant& vPropertyTax,
                                       const Variant& vInsurance, const Variant& vDues,
                                       const Variant& vDownPayment, const Variant& vPeriod,
                                       const Variant& vIntRate, Variant& vNewPrincipal, Variant& vNewPayment,
                                       Variant& vNewTaxes, Variant& vNewFees, Variant& vNewDet) const;

  /// Payments for rates around one rate and down payments around one down payment.
  void PaymentGridCalculator(Variant& vPrincipal, Variant& vDownPayment, Variant& vIntRate, Variant& vPeriod,
                             Variant& vDownChange, Variant& vRateChange, Variant& vStepX, Variant& vStepY,
                             Variant& vGrid) const;

  // ---- Comparisons of two loans

  /// The current loan against a new one.
  void RefinancingCalculator(const Variant& vCurrBal, const Variant& vCurrPay, const Variant& vCurrRate,
                             const Variant& vNewRate, const Variant& vNewPoints, const Variant& vNewFees,
                             const Variant& vNewTerm, const Variant& vIncTaxRate,
                             const Variant& vInvGrowthRate, const Variant& vSellByDate, Variant& vGrid,
                             Variant& vCurrDet, Variant& vNewDet) const;

  /// The current loan against paying more each month.
  void PrePayCalculator(const Variant& vCurrBal, const Variant& vCurrPay, const Variant& vCurrRate,
                        const Variant& vExtraPayment, const Variant& vIncTaxRate,
                        const Variant& vInvGrowthRate, const Variant& vSellByDate, Variant& vGrid,
                        Variant& vCurrDet, Variant& vNewDet) const;

  /// The current loan against paying it off by a target term.
  void FastPrePayCalculator(Variant& currBal, Variant& currPay, Variant& currRate, Variant& targetPeriod,
                            Variant& taxRate, Variant& invRate, Variant& keep, Variant& grid,
                            Variant& currdet, Variant& newdet) const;

  /// The current loan against half payments every two weeks.
  void BiWeeklyComparison(const Variant& vCurrBal, const Variant& vCurrPay, const Variant& vCurrRate,
                          const Variant& vPaymentDate, const Variant& vNewFees, const Variant& vSwitchDate,
                          const Variant& vIncTaxRate, const Variant& vInvGrowthRate,
                          const Variant& vSellByDate, Variant& vGrid, Variant& vCurrDet,
                          Variant& vNewDet) const;

  /// Two fixed-rate offers with points and fees.
  void PointsAdvisor(const Variant& vPurchaseAmt, const Variant& vIncTaxRate, const Variant& vSellByDate,
                     const Variant& vDownpayment1, const Variant& vPeriod1, const Variant& vIntRate1,
                     const Variant& vPoints1, const Variant& vFees1, const Variant& vDownpayment2,
                     const Variant& vPeriod2, const Variant& vIntRate2, const Variant& vPoints2,
                     const Variant& vFees2, Variant& vGrid, Variant& vCurrDet, Variant& vNewDet) const;

  /// Two adjustable-rate offers.
  void ARMComparison(const Variant& vPurchaseAmt, const Variant& vIncTaxRate, const Variant& vSellByDate,
                     const Variant& vDownpayment1, const Variant& vPeriod1, const Variant& vIntRate1,
                     const Variant& vPoints1, const Variant& vFees1, const Variant& vRateInc1,
                     const Variant& vIncDelay1, const Variant& vRateCap1, const Variant& vDownpayment2,
                     const Variant& vPeriod2, const Variant& vIntRate2, const Variant& vPoints2,
                     const Variant& vFees2, const Variant& vRateInc2, const Variant& vIncDelay2,
                     const Variant& vRateCap2, Variant& vGrid, Variant& vCurrDet, Variant& vNewDet) const;

  // ---- Savings and the time value of money

  /// What a savings plan comes to.
  void AmountSavedCalculator(const Variant& vStartDate, const Variant& vCurrBal, const Variant& vPayment,
                             const Variant& vFreq, const Variant& vPeriod, const Variant& vIntRate,
                             Variant& vEndBal, Variant& vDetArray) const;

  /// The rate that a savings plan needs.
  void SavingsRateCalculator(const Variant& vStartDate, const Variant& vCurrBal, const Variant& vPayment,
                             const Variant& vFreq, const Variant& vPeriod, const Variant& vEndingBal,
                             Variant& vIntRate, Variant& vDetArray) const;

  /// The opening balance that a savings plan needs.
  void StartingAmountCalculator(const Variant& vStartDate, const Variant& vPayment, const Variant& vFreq,
                                const Variant& vPeriod, const Variant& vIntRate, const Variant& vEndingBal,
                                Variant& vCurrBal, Variant& vDetArray) const;

  /// The deposit that a savings plan needs.
  void DepositCalculator(const Variant& vStartDate, const Variant& vCurrBal, const Variant& vFreq,
                         const Variant& vPeriod, const Variant& vIntRate, const Variant& vEndingBal,
                         Variant& vPayment, Variant& vDetArray) const;

  /// What a future sum is worth today.
  void PresentValueCalculator(const Variant& vStartDate, const Variant& vEndingDate,
                              const Variant& vEndingBal, const Variant& vIntRate, const Variant& vFreq,
                              Variant& vCurrBal, Variant& vDetArray) const;

  /// What a sum of today grows to.
  void FutureValueCalculator(const Variant& vStartDate, const Variant& vEndingDate, const Variant& vCurrBal,
                             const Variant& vIntRate, const Variant& vFreq, Variant& vEndingBal,
                             Variant& vDetArray) const;

  /// The rate that turns one sum into another.
  void YieldCalculator(const Variant& vStartDate, const Variant& vEndingDate, const Variant& vCurrBal,
                       const Variant& vEndingBal, const Variant& vFreq, Variant& vIntRate,
                       Variant& vResEndingBal, Variant& vDetArray) const;

  /// Of balance, deposit, goal, term and rate of a savings plan, finds the one that is missing.
  void SimpleSavingsCalculator(const Variant& vStartDate, const Variant& vCurrBal, const Variant& vPayment,
                               const Variant& vFreq, const Variant& vEndingBal, const Variant& vPeriod,
                               const Variant& vIntRate, const Variant& vIncTaxRate, Variant& vResCurrBal,
                               Variant& vResPayment, Variant& vResEndingBal, Variant& vResEndDate,
                               Variant& vResIntRate, Variant& vDetArray) const;

  /// A retirement account with yearly contributions.
  void IRACalculator(const Variant& vStartDate, const Variant& vTyp, const Variant& vCurrBal,
                     const Variant& vPayment, const Variant& vEndingBal, const Variant& vPeriod,
                     const Variant& vIntRate, const Variant& vIncTaxRate, Variant& vGrid,
                     Variant& vDetArray) const;

  /// Of balance, withdrawal, rate and term of a spending plan, finds the one that is missing.
  void SpendingCalculator(const Variant& vStartDate, const Variant& vCurrBal, const Variant& vPayment,
                          const Variant& vIntRate, const Variant& vFreq, const Variant& vPeriod,
                          Variant& vResCurrBal, Variant& vResPayment, Variant& vResIntRate,
                          Variant& vResPeriod, Variant& vDetArray) const;

 private:
  const Clock& clock_;
};

}  // namespace amortix2
