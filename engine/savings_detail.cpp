#include "amortix2/engine/savings_detail.h"

#include "amortix2/automation/calendar_walk.h"
#include "amortix2/automation/error.h"
#include "amortix2/engine/rounding.h"

namespace amortix2 {
namespace {

void Load(Date start, double balance, std::span<const tSchedule> lines, std::int16_t atCol,
          std::int16_t lastRow, Array& detArray) {
  detArray.At(0, atCol) = FormatMonthDayYear(start);
  detArray.At(0, atCol + 4) = balance;
  CivilWalk calendar(start);
  for (std::int32_t row = 1; row <= lastRow; ++row) {
    if (static_cast<std::size_t>(row) >= lines.size()) Raise(ErrorNumber::SubscriptOutOfRange);
    const tSchedule& line = lines[static_cast<std::size_t>(row)];
    const std::span<Variant> cells = detArray.Run(row, atCol, 5);
    cells[0] = FormatMonthDayYear(calendar.At(line.lineDate));
    cells[1] = line.payment;
    cells[2] = line.intCredited;
    cells[3] = Finite(line.payment + line.intCredited);
    cells[4] = line.endingBalance;
  }
}

}  // namespace

void LoadSaveDetArray(const tSavingsDesc& save, std::int16_t atCol, std::int16_t lastRow, Array& detArray) {
  Load(save.startDate, save.startingBalance, save.schedule, atCol, lastRow, detArray);
}

void LoadSaveDetArray(std::span<const tSchedule> lines, std::int16_t atCol, std::int16_t lastRow,
                      Array& detArray) {
  if (lines.empty()) Raise(ErrorNumber::SubscriptOutOfRange);
  Load(lines.front().lineDate, lines.front().endingBalance, lines, atCol, lastRow, detArray);
}

}  // namespace amortix2
