#pragma once

// How the chart classes read what a page writes to a property.

#include <cstdint>

#include "amortix2/automation/conversion.h"

namespace amortix2 {

/// Rounded half to even; anything but a number is 0. Raises Overflow outside 16 bits.
inline std::int16_t WholeNumber(const Variant& value) { return ToInteger(NumericOrZero(value)); }

/// Whether it is a number other than 0.
inline bool Flag(const Variant& value) { return NumericOrZero(value) != 0; }

}  // namespace amortix2
