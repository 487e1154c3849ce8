#pragma once

// A place of the platform that holds one value of a known type: what a by-reference argument points to, an
// element of a SAFEARRAY, a field of a record. They are all read and written alike.

#include <cstddef>

#include "amortix2/com/platform.h"

namespace amortix2::com {

struct Place {
  VARTYPE type;  ///< VT_VARIANT, a plain type, or VT_ARRAY with its element type
  void* data;
};

/// Bytes that a value of the type takes. Raises TypeMismatch for a type that no place has.
std::size_t SizeOf(VARTYPE type);

/// The variable behind references to variables. Raises TypeMismatch for a null reference or ones that never
/// end.
VARIANT& Followed(VARIANT& value);

/// The value at a place, not copied: texts, arrays and objects still belong to the place. Raises TypeMismatch
/// for a null place or a type that no place has.
VARIANT Peek(Place place);

/// Exchanges what the place and `value`, which is of the place's type (of any type for VT_VARIANT), hold.
/// With an Empty value of the same type in the place this is an assignment.
void Exchange(Place place, VARIANT& value) noexcept;

}  // namespace amortix2::com
