#pragma once

// What the loan calculators share: a record's way through the engine, and the seven results of a method that
// looks for a payment.

#include "amortix2/automation/variant.h"
#include "amortix2/calculators/loans.h"
#include "amortix2/calculators/tables.h"

namespace amortix2::calculators {

/// The figures of a solved loan.
LoanAnswer AnswerOf(tLoanDesc loan);

/// Has the engine find what is marked unknown, and schedule the loan.
LoanAnswer SolveRecord(tLoanDesc loan);

struct LoanResults {
  Variant& purchaseAmt;
  Variant& payment;
  Variant& period;
  Variant& intRate;
  Variant& totPay;
  Variant& totInt;
  Variant& detArray;

  /// What stands until the engine has answered: totals of Integer 0 and an empty table. Writes nothing when
  /// that cannot be made.
  void Echo(double amount, double pay, double months, double rate,
            std::int32_t lastColumn = kDetailColumns) const;

  /// After Echo, whose table is filled where it has the answer's rows. Row 0 is dated `opening`, line 0's
  /// date without one.
  void Write(const LoanAnswer& answer, std::optional<Date> opening = {}) const;

 private:
  Variant TakeTable(const LoanAnswer& answer, std::optional<Date> opening) const;
};

}  // namespace amortix2::calculators
