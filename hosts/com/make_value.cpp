#include <array>
#include <new>

#include "amortix2/automation/array.h"
#include "amortix2/com/column_order.h"
#include "amortix2/com/text.h"
#include "amortix2/com/values.h"

namespace amortix2::com {
namespace {

SAFEARRAYBOUND ToBound(Bounds bounds) noexcept {
  return {static_cast<ULONG>(bounds.Count()), static_cast<LONG>(bounds.lower)};
}

OwnedSafeArray NewSafeArray(const Array& array, VARTYPE elementType) {
  const auto rank = static_cast<UINT>(array.Rank());
  std::array<SAFEARRAYBOUND, 2> bounds{};
  for (UINT i = 0; i < rank; ++i) bounds[i] = ToBound(array.Dimension(static_cast<int>(i) + 1));
  OwnedSafeArray made(SafeArrayCreate(elementType, rank, bounds.data()));
  if (!made) throw std::bad_alloc();
  return made;
}

void PutValue(VARIANT& place, const Variant& value);

/// An array of variants, each made where it stays.
SAFEARRAY* MakeVariants(const Array& array) {
  OwnedSafeArray made = NewSafeArray(array, VT_VARIANT);
  const SafeArrayData data(made.get());
  auto* const places = static_cast<VARIANT*>(data.At(0));
  const std::span<const Variant> cells = array.Cells();
  ForEachCell(array, [&](std::size_t index, std::size_t platformIndex) {
    PutValue(places[platformIndex], cells[index]);
  });
  return made.release();
}

SAFEARRAY* MakeTyped(const Array& array, VARTYPE elementType) {
  OwnedSafeArray made = NewSafeArray(array, elementType);
  const SafeArrayData data(made.get());
  const std::span<const Variant> cells = array.Cells();
  ForEachCell(array, [&](std::size_t index, std::size_t platformIndex) {
    OwnedVariant cell = MakeValue(cells[index], elementType);
    Exchange({elementType, data.At(platformIndex)}, cell.Get());
  });
  return made.release();
}

template <class Member, class Content>
void Put(VARIANT& place, VARTYPE type, Member& member, Content content) {
  member = content;
  place.vt = type;  // last: a content that could not be made leaves the place Empty
}

/// Makes the value in an Empty place.
void PutValue(VARIANT& place, const Variant& value) {
  switch (value.Type()) {
    case VariantType::Empty:
      break;
    case VariantType::Null:
      place.vt = VT_NULL;
      break;
    case VariantType::Missing:
      return Put(place, VT_ERROR, place.scode, DISP_E_PARAMNOTFOUND);
    case VariantType::Boolean:
      return Put(place, VT_BOOL, place.boolVal, value.GetBoolean() ? VARIANT_TRUE : VARIANT_FALSE);
    case VariantType::Byte:
      return Put(place, VT_UI1, place.bVal, value.GetByte());
    case VariantType::Integer:
      return Put(place, VT_I2, place.iVal, value.GetInteger());
    case VariantType::Long:
      return Put(place, VT_I4, place.lVal, value.GetLong());
    case VariantType::Double:
      return Put(place, VT_R8, place.dblVal, value.GetDouble());
    case VariantType::Currency:
      return Put(place, VT_CY, place.cyVal.int64, value.GetCurrency().scaled);
    case VariantType::Date:
      return Put(place, VT_DATE, place.date, value.GetDate().serial);
    case VariantType::String:
      return Put(place, VT_BSTR, place.bstrVal, MakeBstr(value.GetString()));
    case VariantType::Array:
      return Put(place, VT_ARRAY | VT_VARIANT, place.parray, MakeVariants(value.GetArray()));
  }
}

}  // namespace

OwnedVariant MakeValue(const Variant& value) {
  OwnedVariant made;
  PutValue(made.Get(), value);
  return made;
}

OwnedVariant MakeValue(const Variant& value, VARTYPE type) {
  if ((type & VT_ARRAY) != 0) {
    const auto elementType = static_cast<VARTYPE>(type & VT_TYPEMASK);
    OwnedVariant array;
    Put(array.Get(), type, array.Get().parray,
        elementType == VT_VARIANT ? MakeVariants(value.GetArray())
                                  : MakeTyped(value.GetArray(), elementType));
    return array;
  }
  OwnedVariant made = MakeValue(value);
  if (type == VT_VARIANT || made.Get().vt == type) return made;
  const HRESULT result =
      VariantChangeTypeEx(&made.Get(), &made.Get(), kUsEnglish, VARIANT_NOUSEROVERRIDE, type);
  if (result == DISP_E_OVERFLOW) Raise(ErrorNumber::Overflow);
  if (result == E_OUTOFMEMORY) throw std::bad_alloc();
  if (FAILED(result)) Raise(ErrorNumber::TypeMismatch);
  return made;
}

}  // namespace amortix2::com
