#include "amortix2/calculators/tables.h"

#include "amortix2/automation/conversion.h"
#include "amortix2/calculators/left_out_tables.h"
#include "amortix2/engine/detail_arrays.h"
#include "amortix2/engine/savings_detail.h"

namespace amortix2::calculators {

namespace {

std::int16_t NeedRow(std::int32_t lastRow) {
  if (lastRow < 0) Raise(ErrorNumber::SubscriptOutOfRange);
  return ToInteger(lastRow);
}

}  // namespace

Array Table(std::int32_t lastRow, std::int32_t lastColumn) {
  if (lastColumn < 0) Raise(ErrorNumber::SubscriptOutOfRange);
  return Array({0, NeedRow(lastRow)}, {0, lastColumn});
}

Variant EmptyTable(const Variant& result, std::int32_t lastRow, std::int32_t lastColumn) {
  if (!LeavingOut::Find(result)) return Table(lastRow, lastColumn);
  NeedRow(lastRow);
  return {};
}

Variant LoanTable(const Variant& result, std::span<const tSchedule> lines, std::int32_t lastRow,
                  std::int32_t lastColumn, std::optional<Date> opening) {
  if (const LeftOutTable* leftOut = LeavingOut::Find(result)) {
    const auto shown = LoanLines(lines, NeedRow(lastRow));
    if (leftOut->lines) (*leftOut->lines)(shown, opening.value_or(shown.front().lineDate));
    return {};
  }
  Array table = Table(lastRow, lastColumn);
  LoadLoanTable(lines, opening, table);
  return table;
}

void LoadLoanTable(std::span<const tSchedule> lines, std::optional<Date> opening, Array& table) {
  if (lines.empty()) Raise(ErrorNumber::SubscriptOutOfRange);
  const std::int16_t lastRow = ToInteger(table.Dimension(1).upper);
  LoadDetArray(lines, opening.value_or(lines.front().lineDate), 1, lastRow, table);
}

Variant SavingsTable(const Variant& result, std::span<const tSchedule> lines, std::int32_t lastRow) {
  if (LeavingOut::Find(result)) {
    CheckSavingsLines(lines, NeedRow(lastRow));
    return {};
  }
  Array table = Table(lastRow);
  LoadSaveDetArray(lines, 1, ToInteger(lastRow), table);
  return table;
}

Date DateOrToday(const Variant& value, const Clock& clock) {
  return IsDate(value) ? ToDate(value) : clock.Today();
}

}  // namespace amortix2::calculators
