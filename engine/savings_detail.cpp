#include "amortix2/engine/savings_detail.h"

#include <algorithm>
#include <cstddef>

#include "amortix2/automation/calendar_walk.h"
#include "amortix2/automation/error.h"
#include "amortix2/engine/rounding.h"

namespace amortix2 {
namespace {

double GrowthOf(const tSchedule& line) { return Finite(line.payment + line.intCredited); }

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
    cells[3] = GrowthOf(line);
    cells[4] = line.endingBalance;
  }
}

}  // namespace

void CheckSavingsLines(std::span<const tSchedule> lines, std::int32_t lastRow) {
  const std::size_t rows = static_cast<std::size_t>(lastRow) + 1;
  const auto shown = lines.first(std::min(rows, lines.size()));
  if (shown.empty()) Raise(ErrorNumber::SubscriptOutOfRange);
  for (const tSchedule& line : shown.subspan(1)) static_cast<void>(GrowthOf(line));
  if (rows > lines.size()) Raise(ErrorNumber::SubscriptOutOfRange);
}

void LoadSaveDetArray(const tSavingsDesc& save, std::int16_t atCol, std::int16_t lastRow, Array& detArray) {
  Load(save.startDate, save.startingBalance, save.schedule, atCol, lastRow, detArray);
}

void LoadSaveDetArray(std::span<const tSchedule> lines, std::int16_t atCol, std::int16_t lastRow,
                      Array& detArray) {
  if (lines.empty()) Raise(ErrorNumber::SubscriptOutOfRange);
  Load(lines.front().lineDate, lines.front().endingBalance, lines, atCol, lastRow, detArray);
}

}  // namespace amortix2
