#include "amortix2/calculators/tables.h"

#include "amortix2/automation/conversion.h"
#include "amortix2/engine/detail_arrays.h"
#include "amortix2/engine/savings_detail.h"

namespace amortix2::calculators {

Array Table(std::int32_t lastRow, std::int32_t lastColumn) {
  if (lastRow < 0 || lastColumn < 0) Raise(ErrorNumber::SubscriptOutOfRange);
  return Array({0, ToInteger(lastRow)}, {0, lastColumn});
}

Array LoanTable(std::span<const tSchedule> lines, std::int32_t lastRow, std::int32_t lastColumn,
                std::optional<Date> opening) {
  Array table = Table(lastRow, lastColumn);
  LoadLoanTable(lines, opening, table);
  return table;
}

void LoadLoanTable(std::span<const tSchedule> lines, std::optional<Date> opening, Array& table) {
  if (lines.empty()) Raise(ErrorNumber::SubscriptOutOfRange);
  const std::int16_t lastRow = ToInteger(table.Dimension(1).upper);
  LoadDetArray(lines, opening.value_or(lines.front().lineDate), 1, lastRow, table);
}

Array SavingsTable(std::span<const tSchedule> lines, std::int32_t lastRow) {
  Array table = Table(lastRow);
  LoadSaveDetArray(lines, 1, ToInteger(lastRow), table);
  return table;
}

Date DateOrToday(const Variant& value, const Clock& clock) {
  return IsDate(value) ? ToDate(value) : clock.Today();
}

}  // namespace amortix2::calculators
