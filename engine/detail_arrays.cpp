#include "amortix2/engine/detail_arrays.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include "amortix2/automation/calendar_walk.h"
#include "amortix2/automation/error.h"
#include "amortix2/engine/rounding.h"

namespace amortix2 {

std::span<const tSchedule> LoanLines(std::span<const tSchedule> lines, std::int32_t lastRow) {
  const std::size_t rows = static_cast<std::size_t>(lastRow) + 1;
  for (const tSchedule& line : lines.first(std::min(rows, lines.size())))
    static_cast<void>(PrincipalOf(line));
  if (rows > lines.size()) Raise(ErrorNumber::SubscriptOutOfRange);
  return lines.first(rows);
}

void LoadDetArray(const tLoanDesc& loan, std::int16_t atCol, std::int16_t lastRow, Array& detArray) {
  const CivilDate start = ToCivil(loan.startDate);
  const Date opening = MakeDate(start.year, start.month, start.day - loan.startDateDelay);
  LoadDetArray(loan.schedule, opening, atCol, lastRow, detArray);
}

void LoadDetArray(std::span<const tSchedule> lines, Date opening, std::int16_t atCol, std::int16_t lastRow,
                  Array& detArray) {
  const bool hasRates = detArray.Dimension(2).upper > atCol + 4;
  CivilWalk calendar(opening);
  for (std::int32_t row = 0; row <= lastRow; ++row) {
    if (static_cast<std::size_t>(row) >= lines.size()) Raise(ErrorNumber::SubscriptOutOfRange);
    const tSchedule& line = lines[static_cast<std::size_t>(row)];
    const double principal = PrincipalOf(line);
    const std::span<Variant> cells = detArray.Run(row, atCol, hasRates ? 6 : 5);
    cells[0] = FormatMonthDayYear(calendar.At(line.lineDate));
    cells[1] = line.payment;
    cells[2] = principal;
    cells[3] = line.intCharged;
    cells[4] = line.endingBalance;
    if (hasRates) cells[5] = line.intRate;
  }
  detArray.At(0, atCol) = FormatMonthDayYear(opening);
}

}  // namespace amortix2
