#include "amortix2/calculators/loan_results.h"

#include <utility>

#include "amortix2/automation/conversion.h"
#include "amortix2/engine/loan_solver.h"

namespace amortix2::calculators {
namespace {

/// Empties a table again that could not be filled.
class Filling {
 public:
  explicit Filling(Array& table) : table_(table) {}
  Filling(const Filling&) = delete;
  Filling& operator=(const Filling&) = delete;
  ~Filling() {
    if (isFinished_) return;
    for (Variant& cell : table_.Cells()) cell = {};
  }
  void Finish() { isFinished_ = true; }

 private:
  Array& table_;
  bool isFinished_ = false;
};

bool IsTable(const Variant& value, Bounds rows, Bounds columns) {
  if (value.Type() != VariantType::Array) return false;
  const Array& array = value.GetArray();
  return array.Dimension(1) == rows && array.Dimension(2) == columns;
}

}  // namespace

LoanAnswer AnswerOf(tLoanDesc loan) {
  return {.amount = loan.startingBalance,
          .payment = loan.payment,
          .months = loan.period,
          .annualPercent = loan.intRate,
          .totalPayments = loan.totPayments,
          .totalInterest = loan.totIntCharged,
          .schedule = std::move(loan.schedule)};
}

LoanAnswer SolveRecord(tLoanDesc loan) {
  tCreditQualification household;
  SolveLoan(loan, household, true);
  return AnswerOf(std::move(loan));
}

void LoanResults::Echo(double amount, double pay, double months, double rate, std::int32_t lastColumn) const {
  Variant detail = EmptyTable(detArray, ToLong(months), lastColumn);
  purchaseAmt = amount;
  payment = pay;
  period = months;
  intRate = rate;
  totPay = std::int16_t{0};
  totInt = std::int16_t{0};
  detArray = std::move(detail);
}

Variant LoanResults::TakeTable(const LoanAnswer& answer, std::optional<Date> opening) const {
  const std::int32_t lastRow = ToLong(answer.months);
  if (!IsTable(detArray, {0, lastRow}, {0, kDetailColumns})) {
    return LoanTable(detArray, answer.schedule, lastRow, kDetailColumns, opening);
  }
  Array& echoed = detArray.GetArray();
  Filling filling(echoed);
  LoadLoanTable(answer.schedule, opening, echoed);
  filling.Finish();
  return std::move(detArray);
}

void LoanResults::Write(const LoanAnswer& answer, std::optional<Date> opening) const {
  Variant detail = TakeTable(answer, opening);
  purchaseAmt = answer.amount;
  payment = answer.payment;
  intRate = answer.annualPercent;
  period = answer.months;
  totPay = answer.totalPayments;
  totInt = answer.totalInterest;
  detArray = std::move(detail);
}

}  // namespace amortix2::calculators
