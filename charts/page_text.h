#pragma once

// Reading the texts that a page hands to a chart.

#include <cstdint>
#include <string>

#include "amortix2/automation/variant.h"

namespace amortix2 {

/// A variant as text; Null is "". Raises TypeMismatch for Missing and for arrays.
std::string PageText(const Variant& value);

/// The array that a variant holds. Raises SubscriptOutOfRange when it holds none, as any index would be.
const Array& PageArray(const Variant& value);
Array& PageArray(Variant& value);

/// PageText of one element of a one-dimensional array. Raises SubscriptOutOfRange outside it.
std::string PageText(const Variant& list, std::int64_t index);

}  // namespace amortix2
