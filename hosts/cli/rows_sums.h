#pragma once

// The cash flow of many loans, month by month: what is paid, the principal and interest in it, and what is
// owed at the month's end. Amounts are added as whole cents in integers, which no number of loans overflows,
// so that partial sums add up to the same whatever the order and the cut.
//
// A month is the calendar month of a schedule's line. A loan owes nothing before its opening line and after
// its last one; in between, months without a line owe what was owed before. In a month of several lines
// payments add up and the last balance counts.

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "amortix2/cli/rows_schedule.h"

namespace amortix2::cli {

class MonthSums {
 public:
  /// Raises RequestError for a schedule without lines and for an amount beyond 22 million million; nothing is
  /// added then.
  void Add(const CentSchedule& schedule);
  void Add(MonthSums other);

  /// Adds sums that AppendTo wrote. Raises RequestError for anything else, when some may be added.
  void AddText(std::string_view text, char separator);

  /// A header, then a line for each month from the first to the last.
  void AppendTo(std::string& out, char separator);

 private:
  __extension__ using Cents = __int128;  // room for 2^76 of the largest amount
  using Amounts = std::array<Cents, kAmounts>;
  using OpenAmounts = std::array<std::int64_t, kAmounts>;

  void Book(std::span<const CentLine> lines);
  void Close();
  void Cover(std::int32_t first, std::int32_t last);
  Amounts& At(std::int32_t month) { return months_[static_cast<std::size_t>(month - first_)]; }
  OpenAmounts& OpenAt(std::int32_t month) { return openMonths_[static_cast<std::size_t>(month - first_)]; }

  std::int32_t first_ = 0;
  std::vector<Amounts> months_;
  std::vector<OpenAmounts> openMonths_;  // what is not in months_ yet
  double open_ = 0;                      // the most that may be in one of them
};

}  // namespace amortix2::cli
