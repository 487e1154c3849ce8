#include <cmath>

#include "amortix2/automation/array.h"
#include "amortix2/automation/checked.h"
#include "amortix2/com/column_order.h"
#include "amortix2/com/com_pointer.h"
#include "amortix2/com/late_bound.h"
#include "amortix2/com/text.h"
#include "amortix2/com/values.h"

namespace amortix2::com {
namespace {

/// A whole number, as a Long when it is one.
template <class T>
Variant FromWhole(T value) {
  if (std::in_range<std::int32_t>(value)) return static_cast<std::int32_t>(value);
  return static_cast<double>(value);
}

/// Before day 0 the platform's fraction still counts forwards, so that dropping it rounds towards zero.
Variant FromDate(DATE value) {
  const double day = std::trunc(value);
  if (!(day >= kFirstDay.serial && day <= kLastDay.serial)) Raise(ErrorNumber::Overflow);
  return Date{static_cast<std::int32_t>(day)};
}

Variant FromDecimal(DECIMAL value) {
  double number = 0;
  if (FAILED(VarR8FromDec(&value, &number))) Raise(ErrorNumber::Overflow);
  return number;
}

/// Reads one value with all that it refers to. References may lead round in a circle, and arrays may hold
/// arrays, so depth and cells are counted.
class Reader {
 public:
  Variant Read(const VARIANT& value) {
    if (++depth_ > kDeepest) Raise(ErrorNumber::TypeMismatch);
    Variant result = ReadOne(value);
    --depth_;
    return result;
  }

 private:
  static constexpr int kDeepest = 32;

  Variant ReadOne(const VARIANT& value) {
    if ((value.vt & VT_BYREF) != 0) {
      return Read(Peek({static_cast<VARTYPE>(value.vt & ~VT_BYREF), value.byref}));
    }
    if ((value.vt & VT_ARRAY) != 0) {
      return ReadArray(value.parray, static_cast<VARTYPE>(value.vt & VT_TYPEMASK));
    }
    return ReadPlain(value);
  }

  Variant ReadPlain(const VARIANT& value) {
    switch (value.vt) {
      case VT_EMPTY:
        return {};
      case VT_ERROR:
        return value.scode == DISP_E_PARAMNOTFOUND ? Variant(kMissing) : Variant(kNull);
      case VT_NULL:
        return kNull;
      case VT_BOOL:
        return value.boolVal != VARIANT_FALSE;
      case VT_BSTR:
        return std::string_view(ToUtf8(View(value.bstrVal)));
      case VT_DATE:
        return FromDate(value.date);
      case VT_DISPATCH:
      case VT_UNKNOWN:
        return ReadObject(value.punkVal);
      default:
        return ReadNumber(value);
    }
  }

  static Variant ReadNumber(const VARIANT& value) {
    switch (value.vt) {
      case VT_UI1:
        return std::uint8_t{value.bVal};
      case VT_I1:
        return std::int16_t{static_cast<signed char>(value.cVal)};
      case VT_I2:
        return std::int16_t{value.iVal};
      case VT_UI2:
        return std::int32_t{value.uiVal};
      case VT_I4:
      case VT_INT:
        return static_cast<std::int32_t>(value.lVal);
      case VT_UI4:
      case VT_UINT:
        return FromWhole(value.ulVal);
      case VT_I8:
        return FromWhole(value.llVal);
      case VT_UI8:
        return FromWhole(value.ullVal);
      case VT_R4:
        return Finite(double{value.fltVal});
      case VT_R8:
        return Finite(value.dblVal);
      case VT_CY:
        return Currency{value.cyVal.int64};
      case VT_DECIMAL:
        return FromDecimal(value.decVal);
      default:
        Raise(ErrorNumber::TypeMismatch);
    }
  }

  Variant ReadObject(IUnknown* object) {
    const auto dispatch = ComPointer<IUnknown>::Shared(object).As<IDispatch>(IID_IDispatch);
    OwnedVariant value;
    if (!dispatch || !GetDefaultProperty(*dispatch.Get(), value.Get())) return kNull;
    return Read(value.Get());
  }

  Variant ReadArray(SAFEARRAY* array, VARTYPE elementType) {
    if (array == nullptr) return Array(Bounds{});
    const UINT rank = SafeArrayGetDim(array);
    if (rank > 2) Raise(ErrorNumber::SubscriptOutOfRange);
    if (SafeArrayGetElemsize(array) != SizeOf(elementType)) Raise(ErrorNumber::TypeMismatch);
    Array result = rank == 2 ? Array(Dimension(array, 1), Dimension(array, 2)) : Array(Dimension(array, 1));
    const std::span<Variant> cells = result.Cells();
    if ((cellsLeft_ -= static_cast<std::int64_t>(cells.size())) < 0) Raise(ErrorNumber::OutOfMemory);

    const SafeArrayData data(array);
    ForEachCell(result, [&](std::size_t index, std::size_t platformIndex) {
      cells[index] = Read(Peek({elementType, data.At(platformIndex)}));
    });
    return result;
  }

  static Bounds Dimension(SAFEARRAY* array, UINT dimension) {
    LONG lower = 0;
    LONG upper = -1;
    SafeArrayGetLBound(array, dimension, &lower);
    SafeArrayGetUBound(array, dimension, &upper);
    return {static_cast<std::int32_t>(lower), static_cast<std::int32_t>(upper)};
  }

  int depth_ = 0;
  std::int64_t cellsLeft_ = kLargestArray;
};

}  // namespace

Variant ReadValue(const VARIANT& value) { return Reader().Read(value); }

Variant ReadPlace(Place place) { return ReadValue(Peek(place)); }

}  // namespace amortix2::com
