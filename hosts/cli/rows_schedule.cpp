#include "amortix2/cli/rows_schedule.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <string>
#include <string_view>

#include "amortix2/automation/array.h"
#include "amortix2/automation/calendar_walk.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/component/table_descriptions.h"
#include "amortix2/engine/detail_arrays.h"
#include "amortix2/json/request_error.h"

namespace amortix2::cli {
namespace {

constexpr std::int32_t kFirstColumn = 1;

using Amounts = std::array<double, kAmounts>;

/// Rounded, up to 2^51 of them; `largest` of each column grows with the amounts.
inline CentLine::Cents ToCents(const Amounts& amounts, Amounts& largest) {
  constexpr double kNoFraction = 0x1.8p52;  // a sum with it has no room for a fraction
  const auto round = [&](std::size_t i) {
    const double cents = 100 * amounts[i];
    largest[i] = std::max(largest[i], std::abs(cents));
    return static_cast<std::int64_t>(std::bit_cast<std::uint64_t>(cents + kNoFraction) -
                                     std::bit_cast<std::uint64_t>(kNoFraction));
  };
  // One by one, so that all of it stays in registers.
  static_assert(kAmounts == 4);
  return {round(0), round(1), round(2), round(3)};
}

double LargestOf(const Amounts& largest) {
  return std::max(std::max(largest[0], largest[1]), std::max(largest[2], largest[3]));
}

double AmountIn(const Variant& cell) {
  return cell.Type() == VariantType::Double ? cell.GetDouble() : ToDouble(cell);
}

/// The month of a table's date, "mm-dd-yyyy"; negative for anything else.
std::int32_t MonthIn(const Variant& cell) {
  if (cell.Type() != VariantType::String) return -1;
  const std::string_view text = cell.GetString();
  if (text.size() != sizeof(DateText)) return -1;
  const auto twoDigits = [&](std::size_t at) { return (text[at] - '0') * 10 + (text[at + 1] - '0'); };
  const std::int32_t number = twoDigits(0);
  if (number < 1 || number > kMonths) return -1;
  return (twoDigits(6) * 100 + twoDigits(8)) * kMonths + number - 1;
}

bool HasColumns(const Array& table) {
  if (table.Rank() != 2) return false;
  const Bounds columns = table.Dimension(2);
  return columns.Contains(kFirstColumn) && columns.Contains(kFirstColumn + std::int32_t{kAmounts});
}

}  // namespace

void NeedLoanSchedule(const ParameterInfo& result) {
  if (!describing::IsLoanSchedule(result.table)) {
    throw json::RequestError(std::string(result.name) + " is no schedule of one loan");
  }
}

void CentSchedule::Read(std::span<const tSchedule> lines, Date opening) {
  lines_.resize(lines.size());
  Amounts largest{};
  CivilWalk calendar(opening);
  for (std::size_t row = 0; row < lines.size(); ++row) {
    const tSchedule& line = lines[row];
    const CivilDate civil = calendar.At(row == 0 ? opening : line.lineDate);
    lines_[row] = {civil.year * kMonths + civil.month - 1,
                   ToCents({line.payment, PrincipalOf(line), line.intCharged, line.endingBalance}, largest)};
  }
  largest_ = LargestOf(largest);
}

void CentSchedule::Read(const Variant& table) {
  lines_.clear();
  largest_ = 0;
  if (table.Type() != VariantType::Array || !HasColumns(table.GetArray())) return;
  const Array& cells = table.GetArray();
  const Bounds rows = cells.Dimension(1);
  Amounts largest{};
  for (std::int32_t row = rows.lower; row <= rows.upper; ++row) {
    const auto amount = [&](std::int32_t i) { return AmountIn(cells.At(row, kFirstColumn + i)); };
    const std::int32_t month = MonthIn(cells.At(row, kFirstColumn));
    if (month < 0) break;
    lines_.push_back({month, ToCents({amount(1), amount(2), amount(3), amount(4)}, largest)});
  }
  largest_ = LargestOf(largest);
}

}  // namespace amortix2::cli
