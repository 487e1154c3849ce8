#include "engine/savings_detail.h"

#include "automation/calendar_walk.h"
#include "automation/error.h"
#include "engine/rounding.h"

namespace amortix2 {

void LoadSaveDetArray(const tSavingsDesc& save, std::int16_t atCol, std::int16_t lastRow, Array& detArray) {
  detArray.At(0, atCol) = FormatMonthDayYear(save.startDate);
  detArray.At(0, atCol + 4) = save.startingBalance;
  CivilWalk calendar(save.startDate);
  for (std::int32_t row = 1; row <= lastRow; ++row) {
    if (static_cast<std::size_t>(row) >= save.schedule.size()) Raise(ErrorNumber::SubscriptOutOfRange);
    const tSchedule& line = save.schedule[static_cast<std::size_t>(row)];
    detArray.At(row, atCol) = FormatMonthDayYear(calendar.At(line.lineDate));
    detArray.At(row, atCol + 1) = line.payment;
    detArray.At(row, atCol + 2) = line.intCredited;
    detArray.At(row, atCol + 3) = Finite(line.payment + line.intCredited);
    detArray.At(row, atCol + 4) = line.endingBalance;
  }
}

}  // namespace amortix2
