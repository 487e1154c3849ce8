#include "amortix2/calculators/loans.h"

#include "amortix2/calculators/work.h"
#include "amortix2/engine/rounding.h"

namespace amortix2::calculators {
namespace {

/// The seven results of a payment calculator.
struct LoanResults {
  Variant& purchaseAmt;
  Variant& payment;
  Variant& period;
  Variant& intRate;
  Variant& totPay;
  Variant& totInt;
  Variant& detArray;

  /// What stands until the engine has answered.
  void Echo(double amount, double pay, double months, double rate, std::int32_t lastColumn = kDetailColumns) {
    Array detail = Table(ToLong(months), lastColumn);
    purchaseAmt = amount;
    payment = pay;
    period = months;
    intRate = rate;
    totPay = std::int16_t{0};
    totInt = std::int16_t{0};
    detArray = std::move(detail);
  }

  void Answer(Work& work) {
    work.Solve(LoanCalculator);
    const tLoanDesc& loan = work.loans.At(1);
    Array detail = DetailOfTerm(loan);
    purchaseAmt = loan.startingBalance;
    payment = loan.payment;
    intRate = loan.intRate;
    period = loan.period;
    totPay = loan.totPayments;
    totInt = loan.totIntCharged;
    detArray = std::move(detail);
  }
};

bool IsCreditCard(const Variant& loanType) {
  if (loanType.Type() != VariantType::String) return false;
  return loanType.GetString() == "C" || loanType.GetString() == "c";
}

/// Marks the quantity that is 0, in the order amount, payment, term, rate; the payment when none is. False
/// when the others do not determine it.
bool MarkUnknown(tLoanDesc& loan) {
  if (loan.startingBalance == 0) {
    loan.startingBalance = UNKNOWNLOANVALUE;
    return loan.period != 0 && loan.payment != 0;
  }
  if (loan.payment == 0) {
    loan.payment = UNKNOWNLOANVALUE;
    return loan.period != 0;
  }
  double& unknown = loan.period == 0 ? loan.period : loan.intRate == 0 ? loan.intRate : loan.payment;
  unknown = UNKNOWNLOANVALUE;
  return true;
}

/// A purchase loan starts a month before its first payment and bears interest from its closing.
void SetDates(tLoanDesc& loan, const Variant& closeDate, const Variant& payDate, const Clock& clock) {
  loan.startDate = clock.Today();
  if (IsDate(payDate)) {
    const CivilDate firstPayment = ToCivil(ToDate(payDate));
    loan.startDate = MakeDate(firstPayment.year, firstPayment.month - 1, firstPayment.day);
  }
  if (IsDate(closeDate)) loan.startDateDelay = ToInteger(loan.startDate.serial - ToDate(closeDate).serial);
}

/// A purchase at a rate that may change: `loan` has the changes, if any.
void AnswerPurchase(Work& work, LoanResults results, const Clock& clock, const Variant& vCloseDate,
                    const Variant& vPayDate) {
  tLoanDesc& loan = work.loans.At(1);
  if (loan.startingBalance == 0 || loan.period == 0) return;
  loan.typ = simpleLoan;
  loan.payment = UNKNOWNLOANVALUE;
  SetDates(loan, vCloseDate, vPayDate, clock);
  results.Answer(work);
}

/// The two mortgage questions differ in what they know of the household.
void AnswerMortgage(enumAmortixType type, Work& work, const Clock& clock, Variant& vNewPrincipal,
                    Variant& vNewPayment, Variant& vNewTaxes, Variant& vNewFees, Variant& vNewDet) {
  tLoanDesc& loan = work.loans.At(1);
  loan.typ = simpleLoan;
  loan.startDate = clock.Today();
  loan.startingBalance = UNKNOWNLOANVALUE;
  work.Solve(type);
  const tCreditQualification& home = work.qualification;
  const double fees = Finite(home.insuranceCharge + home.associationDues + home.otherMonthlyLoanCharge);
  vNewPrincipal = loan.startingBalance;
  vNewPayment = loan.payment;
  vNewTaxes = home.propertyTaxCharge;
  vNewFees = fees;
  vNewDet = DetailOfTerm(loan);
}

/// A schedule line by its number, rounded. Raises SubscriptOutOfRange.
const tSchedule& Line(const tLoanDesc& loan, double number) {
  const std::int32_t index = ToLong(number);
  if (index < 0 || static_cast<std::size_t>(index) >= loan.schedule.size())
    Raise(ErrorNumber::SubscriptOutOfRange);
  return loan.schedule[static_cast<std::size_t>(index)];
}

}  // namespace

void SimpleLoanCalculator(const Clock& clock, const Variant& vLoanType, const Variant& vPurchaseAmt,
                          const Variant& vPayment, const Variant& vPeriod, const Variant& vIntRate,
                          Variant& vResPurchaseAmt, Variant& vResPayment, Variant& vResPeriod,
                          Variant& vResIntRate, Variant& vTotPay, Variant& vTotInt, Variant& vDetArray) {
  Work work = Work::ForLoans(1);
  tLoanDesc& loan = work.loans.At(1);
  loan.startingBalance = NumericOrZero(vPurchaseAmt);
  loan.payment = NumericOrZero(vPayment);
  loan.period = NumericOrZero(vPeriod);
  loan.intRate = NumericOrZero(vIntRate);
  loan.typ = IsCreditCard(vLoanType) ? creditCard : simpleLoan;
  loan.startDate = clock.Today();
  LoanResults results{vResPurchaseAmt, vResPayment, vResPeriod, vResIntRate, vTotPay, vTotInt, vDetArray};
  results.Echo(loan.startingBalance, loan.payment, loan.period, loan.intRate);
  if (MarkUnknown(loan)) results.Answer(work);
}

void FixedPayment(const Clock& clock, const Variant& vLoanType, const Variant& vPurchaseAmt,
                  const Variant& vDownPayment, const Variant& vPeriod, const Variant& vIntRate,
                  const Variant& vCloseDate, const Variant& vPayDate, Variant& vResPurchaseAmt,
                  Variant& vResPayment, Variant& vResPeriod, Variant& vResIntRate, Variant& vTotPay,
                  Variant& vTotInt, Variant& vDetArray) {
  static_cast<void>(vLoanType);
  Work work = Work::ForLoans(1);
  tLoanDesc& loan = work.loans.At(1);
  loan.startingBalance = Finite(NumericOrZero(vPurchaseAmt) - NumericOrZero(vDownPayment));
  loan.period = NumericOrZero(vPeriod);
  loan.intRate = NumericOrZero(vIntRate);
  LoanResults results{vResPurchaseAmt, vResPayment, vResPeriod, vResIntRate, vTotPay, vTotInt, vDetArray};
  results.Echo(loan.startingBalance, 0, loan.period, loan.intRate);
  AnswerPurchase(work, results, clock, vCloseDate, vPayDate);
}

void AdjustablePayment(const Clock& clock, const Variant& vLoanType, const Variant& vPurchaseAmt,
                       const Variant& vDownPayment, const Variant& vPeriod, const Variant& vIntRate,
                       const Variant& vCloseDate, const Variant& vPayDate, const Variant& vRateCap,
                       const Variant& vRateInc1, const Variant& vRateInc2, const Variant& vIncDelay1,
                       const Variant& vIncDelay2, Variant& vResPurchaseAmt, Variant& vResPayment,
                       Variant& vResPeriod, Variant& vResIntRate, Variant& vTotPay, Variant& vTotInt,
                       Variant& vDetArray) {
  static_cast<void>(vLoanType);
  Work work = Work::ForLoans(1);
  tLoanDesc& loan = work.loans.At(1);
  loan.startingBalance = Finite(NumericOrZero(vPurchaseAmt) - NumericOrZero(vDownPayment));
  loan.period = NumericOrZero(vPeriod);
  loan.intRate = NumericOrZero(vIntRate);
  loan.firstRatePeriod = NumericOrZero(vIncDelay1);
  loan.firstRateIncrease = NumericOrZero(vRateInc1);
  loan.subsequentRatePeriod = NumericOrZero(vIncDelay2);
  loan.subsequentRateIncrease = NumericOrZero(vRateInc2);
  loan.intRateMaximum = NumericOrZero(vRateCap);
  LoanResults results{vResPurchaseAmt, vResPayment, vResPeriod, vResIntRate, vTotPay, vTotInt, vDetArray};
  results.Echo(loan.startingBalance, 0, loan.period, loan.intRate, kDetailColumnsWithRate);
  AnswerPurchase(work, results, clock, vCloseDate, vPayDate);
}

void BalloonLoanPaymentCalculator(const Clock& clock, const Variant& vPurchaseAmt,
                                  const Variant& vDownPayment, const Variant& vStartDate,
                                  const Variant& vPeriod, const Variant& vBalloonAtPeriod,
                                  const Variant& vIntRate, Variant& vPrincipal, Variant& vPayment,
                                  Variant& vBalloonPayment, Variant& vTotalAmountFinanced,
                                  Variant& vTotPayments, Variant& vTotIntCharged, Variant& vDetArray) {
  Work work = Work::ForLoans(1);
  tLoanDesc& loan = work.loans.At(1);  // its type stays unset, which is paid like a simple loan
  loan.startDate = DateOrToday(vStartDate, clock);
  loan.startingBalance = Finite(NumericOrZero(vPurchaseAmt) - NumericOrZero(vDownPayment));
  loan.payment = UNKNOWNLOANVALUE;
  loan.intRate = NumericOrZero(vIntRate);
  loan.period = NumericOrZero(vPeriod);
  work.Solve(LoanCalculator);

  double regular = NumericOrZero(vBalloonAtPeriod);  // payments before the balloon
  double balloon = 0;
  if (loan.period <= regular) {
    regular = loan.period - 1;
  } else {
    const tSchedule& settled = Line(loan, regular + 1);
    balloon = settled.endingBalance + settled.payment;
  }
  const std::int32_t lastRow = ToLong(regular + 1);
  Array detail = Detail(loan, lastRow);
  double total = (regular - 1) * Line(loan, 1).payment + Line(loan, regular).payment;

  Variant& payment = detail.At(lastRow, 2);
  Variant& principal = detail.At(lastRow, 3);
  principal = Finite(balloon + principal.GetDouble() - payment.GetDouble());
  total = Finite(total + balloon - payment.GetDouble());
  payment = balloon;
  detail.At(lastRow, 5) = std::int16_t{0};

  vPrincipal = loan.startingBalance;
  vPayment = loan.payment;
  vBalloonPayment = balloon;
  vTotalAmountFinanced = loan.startingBalance;
  vTotPayments = total;
  vTotIntCharged = total - loan.startingBalance;
  vDetArray = std::move(detail);
}

void HomeAffordabilityCalculator(const Clock& clock, const Variant& vPayment, const Variant& vPropertyTax,
                                 const Variant& vInsurance, const Variant& vDues, const Variant& vDownPayment,
                                 const Variant& vPeriod, const Variant& vIntRate, Variant& vNewPrincipal,
                                 Variant& vNewPayment, Variant& vNewTaxes, Variant& vNewFees,
                                 Variant& vNewDet) {
  Work work = Work::ForLoans(1);
  tLoanDesc& loan = work.loans.At(1);
  loan.payment = NumericOrZero(vPayment);
  loan.intRate = NumericOrZero(vIntRate);
  loan.period = NumericOrZero(vPeriod);
  tCreditQualification& home = work.qualification;
  home.downPaymentAmount = NumericOrZero(vDownPayment);
  home.propertyTaxRate = NumericOrZero(vPropertyTax);
  home.insuranceCharge = NumericOrZero(vInsurance);
  home.associationDues = NumericOrZero(vDues);
  home.monthlyPayment = loan.payment;
  AnswerMortgage(LoanAffordability, work, clock, vNewPrincipal, vNewPayment, vNewTaxes, vNewFees, vNewDet);
}

void MortgageQualificationCalculator(const Clock& clock, const Variant& vAnnualIncome,
                                     const Variant& vCreditCard, const Variant& vCarPayments,
                                     const Variant& vChildSupport, const Variant& vOtherMonthly,
                                     const Variant& vPropertyTax, const Variant& vInsurance,
                                     const Variant& vDues, const Variant& vDownPayment,
                                     const Variant& vPeriod, const Variant& vIntRate, Variant& vNewPrincipal,
                                     Variant& vNewPayment, Variant& vNewTaxes, Variant& vNewFees,
                                     Variant& vNewDet) {
  Work work = Work::ForLoans(1);
  tLoanDesc& loan = work.loans.At(1);
  loan.payment = 1;  // replaced by the engine
  loan.intRate = NumericOrZero(vIntRate);
  loan.period = NumericOrZero(vPeriod);
  tCreditQualification& home = work.qualification;
  home.downPaymentAmount = NumericOrZero(vDownPayment);
  home.monthlyIncome = NumericOrZero(vAnnualIncome) / 12;
  home.propertyTaxRate = NumericOrZero(vPropertyTax);
  home.insuranceCharge = NumericOrZero(vInsurance);
  home.associationDues = NumericOrZero(vDues);
  home.creditCardPayment = NumericOrZero(vCreditCard);
  home.autoLoanPayment = NumericOrZero(vCarPayments);
  home.childSupportPayment = NumericOrZero(vChildSupport);
  home.otherMonthlyPayment = NumericOrZero(vOtherMonthly);
  AnswerMortgage(LoanQualification, work, clock, vNewPrincipal, vNewPayment, vNewTaxes, vNewFees, vNewDet);
}

void PaymentGridCalculator(const Clock& clock, Variant& vPrincipal, Variant& vDownPayment, Variant& vIntRate,
                           Variant& vPeriod, Variant& vDownChange, Variant& vRateChange, Variant& vStepX,
                           Variant& vStepY, Variant& vGrid) {
  const double principal = NumericOrZero(vPrincipal);
  const double downChange = NumericOrZero(vDownChange);
  const double rateChange = NumericOrZero(vRateChange);
  const double stepsX = NumericOrZero(vStepX);
  const double stepsY = NumericOrZero(vStepY);
  // One step below the first row and column, so that those have index 1.
  const double downPayment = NumericOrZero(vDownPayment) - (stepsY + 1) * downChange;
  const double rate = NumericOrZero(vIntRate) - (stepsX + 1) * rateChange;

  Work work = Work::ForLoans(1);
  tLoanDesc cell;
  cell.typ = simpleLoan;
  cell.startDate = clock.Today();
  cell.payment = UNKNOWNLOANVALUE;
  cell.period = NumericOrZero(vPeriod);
  const std::int16_t rows = ToInteger(2 * stepsX + 1);
  const std::int16_t columns = ToInteger(2 * stepsY + 1);
  Array grid = Table(rows, columns);
  for (std::int32_t i = 1; i <= rows; ++i) {
    for (std::int32_t j = 1; j <= columns; ++j) {
      cell.startingBalance = Finite(principal - downPayment - j * downChange);
      cell.intRate = Finite(i * rateChange + rate);
      work.loans.At(1) = cell;
      work.Solve(LoanQuickCalc);
      grid.At(i, j) = work.loans.At(1).payment;
    }
  }
  vGrid = std::move(grid);
}

}  // namespace amortix2::calculators
