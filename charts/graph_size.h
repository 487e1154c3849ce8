#pragma once

// The size of a chart's plot in pixels, a setting that bar charts and line charts share.

#include <cstdint>

#include "amortix2/automation/public.h"
#include "amortix2/automation/variant.h"

namespace AMORTIX2_PUBLIC amortix2 {

struct GraphSize {
  std::int16_t height = 300;  ///< pixels
  std::int16_t width = 380;   ///< pixels

  /// Replaces height and width, each rounded half to even, each only when it does not round to 0; so 0 and
  /// anything that is no number keep the old value. Raises Overflow outside 16 bits, with both kept.
  void Set(const Variant& newHeight, const Variant& newWidth);
};

}  // namespace amortix2
