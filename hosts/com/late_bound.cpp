#include "com/late_bound.h"

#include <algorithm>
#include <new>
#include <string>
#include <vector>

#include "com/failure.h"
#include "com/text.h"

namespace amortix2 {
namespace {

/// What an object tells about its failure.
struct Details : EXCEPINFO {
  Details() noexcept : EXCEPINFO{} {}
  Details(const Details&) = delete;
  Details& operator=(const Details&) = delete;
  ~Details() {
    SysFreeString(bstrSource);
    SysFreeString(bstrDescription);
    SysFreeString(bstrHelpFile);
  }

  [[noreturn]] void Throw() {
    if (pfnDeferredFillIn != nullptr) pfnDeferredFillIn(this);
    const HRESULT code = scode != 0 ? scode : ResultCode(static_cast<ErrorNumber>(wCode));
    if (code == E_OUTOFMEMORY) throw std::bad_alloc();
    throw ForeignError(code, std::wstring(View(bstrSource)), std::wstring(View(bstrDescription)));
  }
};

HRESULT Invoke(IDispatch& object, DISPID member, std::span<const OwnedVariant> arguments, VARIANT& result) {
  std::vector<VARIANT> reversed(arguments.size());
  std::ranges::transform(arguments, reversed.rbegin(), [](const OwnedVariant& value) { return value.Get(); });
  DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
  Details details;
  const HRESULT code =
      object.Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                    &parameters, &result, &details, nullptr);
  if (code == DISP_E_EXCEPTION) details.Throw();
  return code;
}

}  // namespace

OwnedVariant CallByName(IDispatch& object, const wchar_t* name, std::span<const OwnedVariant> arguments) {
  auto* text = const_cast<wchar_t*>(name);
  DISPID member = DISPID_UNKNOWN;
  Check(object.GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &member));
  OwnedVariant result;
  Check(Invoke(object, member, arguments, result.Get()));
  return result;
}

bool GetDefaultProperty(IDispatch& object, VARIANT& value) {
  const HRESULT code = Invoke(object, DISPID_VALUE, {}, value);
  if (code == DISP_E_MEMBERNOTFOUND || code == DISP_E_BADPARAMCOUNT || code == DISP_E_PARAMNOTOPTIONAL)
    return false;
  Check(code);
  return true;
}

}  // namespace amortix2
