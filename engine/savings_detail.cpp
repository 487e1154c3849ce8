#include "amortix2/engine/savings_detail.h"

#include <span>

#include "amortix2/automation/calendar_walk.h"
#include "amortix2/automation/error.h"
#include "amortix2/engine/rounding.h"

namespace amortix2 {

void LoadSaveDetArray(const tSavingsDesc& save, std::int16_t atCol, std::int16_t lastRow, Array& detArray) {
  detArray.At(0, atCol) = FormatMonthDayYear(save.startDate);
  detArray.At(0, atCol + 4) = save.startingBalance;
  CivilWalk calendar(save.startDate);
  for (std::int32_t row = 1; row <= lastRow; ++row) {
    if (static_cast<std::size_t>(row) >= save.schedule.size()) Raise(ErrorNumber::SubscriptOutOfRange);
    const tSchedule& line = save.schedule[static_cast<std::size_t>(row)];
    const std::span<Variant> cells = detArray.Run(row, atCol, 5);
    cells[0] = FormatMonthDayYear(calendar.At(line.lineDate));
    cells[1] = line.payment;
    cells[2] = line.intCredited;
    cells[3] = Finite(line.payment + line.intCredited);
    cells[4] = line.endingBalance;
  }
}

}  // namespace amortix2
