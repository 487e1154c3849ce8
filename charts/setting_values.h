#pragma once

// How the chart classes read what a page writes to a property.

#include <cstdint>

#include "amortix2/automation/conversion.h"
#include "amortix2/charts/bar_settings.h"

namespace amortix2 {

/// Rounded half to even; anything but a number is 0. Raises Overflow outside 16 bits.
inline std::int16_t WholeNumber(const Variant& value) { return ToInteger(NumericOrZero(value)); }

/// Whether it is a number other than 0.
inline bool Flag(const Variant& value) { return NumericOrZero(value) != 0; }

/// A written YLabelMode: 11 labels all values, 3 the middle too, anything else the ends.
inline ValueLabels ReadValueLabels(const Variant& value) {
  const double written = NumericOrZero(value);
  return written == 11 ? ValueLabels::All : written == 3 ? ValueLabels::EndsAndMiddle : ValueLabels::Ends;
}

}  // namespace amortix2
