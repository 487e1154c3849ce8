#pragma once

// Today as the machine's clock and its time zone have it. Hosts hand this clock to the component; nothing
// below them asks the machine for a date.

#include "amortix2/automation/date.h"
#include "amortix2/automation/public.h"

namespace AMORTIX2_PUBLIC amortix2 {

class SystemClock final : public Clock {
 public:
  /// Today's local date. Raises InvalidProcedureCall when the machine's clock stands outside the valid days.
  Date Today() const override;
};

}  // namespace amortix2
