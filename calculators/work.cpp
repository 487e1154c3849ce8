#include "amortix2/calculators/work.h"

#include "amortix2/engine/detail_arrays.h"

namespace amortix2::calculators {

Array Detail(const tLoanDesc& loan, std::int32_t lastRow, std::int32_t lastColumn) {
  Array detail = Table(lastRow, lastColumn);
  LoadDetArray(loan, 1, ToInteger(lastRow), detail);
  return detail;
}

Array DetailOfTerm(const tLoanDesc& loan, std::int32_t lastColumn) {
  return Detail(loan, ToLong(loan.period), lastColumn);
}

Date DateOrToday(const Variant& value, const Clock& clock) {
  return IsDate(value) ? ToDate(value) : clock.Today();
}

}  // namespace amortix2::calculators
