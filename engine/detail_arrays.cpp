#include "engine/detail_arrays.h"

#include "automation/calendar_walk.h"
#include "automation/error.h"

namespace amortix2 {

void LoadDetArray(const tLoanDesc& loan, std::int16_t atCol, std::int16_t lastRow, Array& detArray) {
  const bool hasRates = detArray.Dimension(2).upper > atCol + 4;
  CivilWalk calendar(loan.startDate);
  for (std::int32_t row = 0; row <= lastRow; ++row) {
    if (static_cast<std::size_t>(row) >= loan.schedule.size()) Raise(ErrorNumber::SubscriptOutOfRange);
    const tSchedule& line = loan.schedule[static_cast<std::size_t>(row)];
    detArray.At(row, atCol) = FormatMonthDayYear(calendar.At(line.lineDate));
    detArray.At(row, atCol + 1) = line.payment;
    detArray.At(row, atCol + 2) = line.startingBalance - line.endingBalance;
    detArray.At(row, atCol + 3) = line.intCharged;
    detArray.At(row, atCol + 4) = line.endingBalance;
    if (hasRates) detArray.At(row, atCol + 5) = line.intRate;
  }
  const CivilDate start = ToCivil(loan.startDate);
  const Date shown = MakeDate(start.year, start.month, start.day - loan.startDateDelay);
  detArray.At(0, atCol) = FormatMonthDayYear(shown);
}

}  // namespace amortix2
