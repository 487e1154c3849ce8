#include "amortix2/engine/schedule_parts.h"

namespace amortix2 {

tSchedule OpeningLine(const tLoanDesc& loan) {
  const double interim = RoundToCents(loan.startDateDelay * loan.startingBalance * loan.intRate / 36000);
  tSchedule line;
  line.lineDate = loan.startDate;
  line.startingBalance = loan.startingBalance;
  line.endingBalance = loan.startingBalance;
  line.intCharged = RoundToCents(loan.startingBalance * loan.points / 100) + interim;
  line.taxCredited = WithoutMinusZero(loan.taxRate / 100 * line.intCharged);
  line.intCharged += loan.flatFee;
  line.payment = line.intCharged;
  return line;
}

void CostTotals::Sell(const tLoanDesc& loan, double balanceOwed, double homeGrowth, double growth,
                      double discount) {
  balanceOwedPV_ = WithoutMinusZero(Divide(growth * balanceOwed, Finite(discount)));
  costPV_ += balanceOwedPV_;
  const double price = loan.startingBalance + downPayment_;
  valuePV_ = WithoutMinusZero(Divide(RoundToCents(price * homeGrowth) * growth, discount));
}

void CostTotals::Store(tLoanDesc& loan) const {
  loan.totIntCharged = Finite(interest_);
  loan.totTaxCredited = Finite(taxCredited_);
  loan.totPayments = Finite(payments_);
  loan.totLoanCostPV = Finite(costPV_);
  loan.balanceOwedAtSalePV = balanceOwedPV_;
  loan.valueAtSalePV = valuePV_;
}

}  // namespace amortix2
