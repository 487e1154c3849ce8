#include "amortix2/charts/graph_size.h"

#include "amortix2/automation/conversion.h"

namespace amortix2 {

void GraphSize::Set(const Variant& newHeight, const Variant& newWidth) {
  const std::int16_t roundedHeight = ToInteger(NumericOrZero(newHeight));
  const std::int16_t roundedWidth = ToInteger(NumericOrZero(newWidth));
  if (roundedHeight != 0) height = roundedHeight;
  if (roundedWidth != 0) width = roundedWidth;
}

}  // namespace amortix2
