#pragma once

// Tables that a call need not make, because nobody will read them, or because its caller takes the lines of
// one before they become variants. The result then stays Empty; all else of the call is the same, its errors
// and their order too. A member that changes its table's cells afterwards makes it nevertheless.

#include <functional>
#include <span>

#include "amortix2/automation/date.h"
#include "amortix2/automation/variant.h"
#include "amortix2/engine/records.h"

namespace amortix2::calculators {

/// Gets the lines of a loan's table, which end with the call, and the date of its row 0. The call may still
/// fail afterwards.
using LinesTaker = std::function<void(std::span<const tSchedule> lines, Date opening)>;

struct LeftOutTable {
  const void* result;         ///< the variant that would receive it
  const LinesTaker* lines{};  ///< null: nobody wants them
};

/// Leaves tables out of the calls that this thread makes while it lives. Refers to what it was given.
class LeavingOut {
 public:
  explicit LeavingOut(std::span<const LeftOutTable> tables) noexcept;
  ~LeavingOut();
  LeavingOut(const LeavingOut&) = delete;
  LeavingOut& operator=(const LeavingOut&) = delete;

  /// Null for a table that is to be made.
  static const LeftOutTable* Find(const Variant& result) noexcept;

 private:
  std::span<const LeftOutTable> before_;
};

}  // namespace amortix2::calculators
