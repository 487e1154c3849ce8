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

SAFEARRAY* MakeSafeArray(const Array& array, VARTYPE elementType) {
  const auto rank = static_cast<UINT>(array.Rank());
  std::array<SAFEARRAYBOUND, 2> bounds{};
  for (UINT i = 0; i < rank; ++i) bounds[i] = ToBound(array.Dimension(static_cast<int>(i) + 1));
  OwnedSafeArray result(SafeArrayCreate(elementType, rank, bounds.data()));
  if (!result) throw std::bad_alloc();

  const SafeArrayData data(result.get());
  const std::span<const Variant> cells = array.Cells();
  ForEachCell(array, [&](std::size_t index, std::size_t platformIndex) {
    OwnedVariant cell = MakeValue(cells[index], elementType);
    Exchange({elementType, data.At(platformIndex)}, cell.Get());
  });
  return result.release();
}

}  // namespace

OwnedVariant MakeValue(const Variant& value) {
  OwnedVariant made;
  VARIANT& result = made.Get();
  const auto put = [&result](VARTYPE type, auto& member, auto content) {
    member = content;
    result.vt = type;  // last: a content that could not be made leaves the value empty
  };
  switch (value.Type()) {
    case VariantType::Empty:
      break;
    case VariantType::Null:
      result.vt = VT_NULL;
      break;
    case VariantType::Missing:
      put(VT_ERROR, result.scode, DISP_E_PARAMNOTFOUND);
      break;
    case VariantType::Boolean:
      put(VT_BOOL, result.boolVal, value.GetBoolean() ? VARIANT_TRUE : VARIANT_FALSE);
      break;
    case VariantType::Byte:
      put(VT_UI1, result.bVal, value.GetByte());
      break;
    case VariantType::Integer:
      put(VT_I2, result.iVal, value.GetInteger());
      break;
    case VariantType::Long:
      put(VT_I4, result.lVal, value.GetLong());
      break;
    case VariantType::Double:
      put(VT_R8, result.dblVal, value.GetDouble());
      break;
    case VariantType::Currency:
      put(VT_CY, result.cyVal.int64, value.GetCurrency().scaled);
      break;
    case VariantType::Date:
      put(VT_DATE, result.date, value.GetDate().serial);
      break;
    case VariantType::String:
      put(VT_BSTR, result.bstrVal, MakeBstr(value.GetString()));
      break;
    case VariantType::Array:
      put(VT_ARRAY | VT_VARIANT, result.parray, MakeSafeArray(value.GetArray(), VT_VARIANT));
      break;
  }
  return made;
}

OwnedVariant MakeValue(const Variant& value, VARTYPE type) {
  if ((type & VT_ARRAY) != 0) {
    const auto elementType = static_cast<VARTYPE>(type & VT_TYPEMASK);
    OwnedVariant array;
    array.Get().parray = MakeSafeArray(value.GetArray(), elementType);
    array.Get().vt = type;
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
