#include "amortix2/com/place.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "amortix2/automation/error.h"

namespace amortix2::com {
namespace {

/// Where a VARIANT keeps a value of its type: a decimal fills all of it, with the type inside.
void* Payload(VARIANT& value) noexcept {
  return value.vt == VT_DECIMAL ? static_cast<void*>(&value) : static_cast<void*>(&value.llVal);
}

}  // namespace

std::size_t SizeOf(VARTYPE type) {
  if ((type & VT_ARRAY) != 0) return sizeof(SAFEARRAY*);
  switch (type) {
    case VT_VARIANT:
      return sizeof(VARIANT);
    case VT_I1:
    case VT_UI1:
      return 1;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
      return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_ERROR:
      return 4;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
      return 8;
    case VT_BSTR:
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return sizeof(void*);
    case VT_DECIMAL:
      return sizeof(DECIMAL);
    default:
      Raise(ErrorNumber::TypeMismatch);
  }
}

VARIANT& Followed(VARIANT& value) {
  constexpr int kDeepest = 32;
  VARIANT* followed = &value;
  for (int depth = 0; followed->vt == (VT_BYREF | VT_VARIANT); ++depth) {
    if (depth == kDeepest || followed->pvarVal == nullptr) Raise(ErrorNumber::TypeMismatch);
    followed = followed->pvarVal;
  }
  return *followed;
}

VARIANT Peek(Place place) {
  if (place.data == nullptr) Raise(ErrorNumber::TypeMismatch);
  VARIANT value;
  if (place.type == VT_VARIANT) {
    std::memcpy(&value, place.data, sizeof value);
    return value;
  }
  VariantInit(&value);
  value.vt = place.type;
  std::memcpy(Payload(value), place.data, SizeOf(place.type));
  value.vt = place.type;
  return value;
}

void Exchange(Place place, VARIANT& value) noexcept {
  if (place.type == VT_VARIANT) return std::swap(*static_cast<VARIANT*>(place.data), value);
  const VARTYPE type = value.vt;
  auto* inner = static_cast<unsigned char*>(Payload(value));
  std::swap_ranges(inner, inner + SizeOf(place.type), static_cast<unsigned char*>(place.data));
  value.vt = type;
}

}  // namespace amortix2::com
