#pragma once

// One loan's schedule as sums take it: months and whole cents, read from the engine's lines before they
// become a table where a call leaves that out (calculators/left_out_tables.h), else from the table.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "amortix2/automation/date.h"
#include "amortix2/component/description.h"
#include "amortix2/engine/records.h"

namespace amortix2::cli {

/// Raises RequestError for a result that is no schedule of one loan.
void NeedLoanSchedule(const ParameterInfo& result);

inline constexpr std::int32_t kMonths = 12;  ///< of a year
inline constexpr std::size_t kAmounts = 4;   ///< payment, principal, interest, and last the balance
inline constexpr std::size_t kBalance = 3;

struct CentLine {
  using Cents = std::array<std::int64_t, kAmounts>;

  std::int32_t month;  ///< the calendar month, counted from the year 0
  Cents cents;
};

class CentSchedule {
 public:
  /// Replaces what was read before: the lines of a table whose row 0 is dated `opening`.
  void Read(std::span<const tSchedule> lines, Date opening);

  /// The same of a table's rows, as far as they have dates. Raises TypeMismatch for an amount that is no
  /// number, when some rows are read.
  void Read(const Variant& table);

  std::span<const CentLine> Lines() const noexcept { return lines_; }

  /// The largest amount in cents, or less than 0.5 more. Beyond 2^51 the cents in the lines mean nothing.
  double Largest() const noexcept { return largest_; }

 private:
  std::vector<CentLine> lines_;
  double largest_ = 0;
};

}  // namespace amortix2::cli
