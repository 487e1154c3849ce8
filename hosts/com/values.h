#pragma once

// Values on their way between the platform and the component. Every automation type is understood on its way
// in; on the way out arrays hold variants, which is all that scripts can read.
//
// In: numbers of every type arrive as numbers, as a Double where no type of the component holds them exactly.
// References are followed. An object stands for its default property, and for Null when it has none. A
// left-out argument is Missing, another error value Null. A date's time of day is dropped.

#include "amortix2/automation/variant.h"
#include "amortix2/com/owned_variant.h"
#include "amortix2/com/place.h"
#include "amortix2/com/platform.h"

namespace amortix2::com {

/// The value of a place. Raises TypeMismatch for a record, an interface of no use, or references that never
/// end; SubscriptOutOfRange for an array of more than two dimensions; OutOfMemory for more than kLargestArray
/// cells in all; Overflow for an infinity, a NaN or a date outside the valid days; ForeignError when an
/// object's default property fails.
Variant ReadPlace(Place place);
Variant ReadValue(const VARIANT& value);

/// A new value of the platform. Raises std::bad_alloc.
OwnedVariant MakeValue(const Variant& value);

/// The same, converted under US English conventions to a place's type (of arrays: each cell). Raises
/// TypeMismatch or Overflow too.
OwnedVariant MakeValue(const Variant& value, VARTYPE type);

/// Numbers, dates and texts are converted under these conventions whatever the machine's locale.
inline constexpr LCID kUsEnglish = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);

}  // namespace amortix2::com
