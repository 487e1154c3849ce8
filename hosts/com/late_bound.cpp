#include "amortix2/com/late_bound.h"

#include <dispex.h>

#include <algorithm>
#include <new>
#include <string>
#include <vector>

#include "amortix2/com/com_pointer.h"
#include "amortix2/com/result_code.h"
#include "amortix2/com/text.h"

namespace amortix2::com {
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

void RequireMember(HRESULT result) {
  if (result == DISP_E_UNKNOWNNAME || result == DISP_E_MEMBERNOTFOUND) Raise(ErrorNumber::NoSuchMember);
  Check(result);
}

/// Objects of script engines answer the later of the two interfaces better, some only that one.
DISPID NumberOf(IDispatch& object, const wchar_t* name) {
  DISPID number = DISPID_UNKNOWN;
  if (const auto extended = ComPointer<IDispatch>::Shared(&object).As<IDispatchEx>(__uuidof(IDispatchEx))) {
    BSTR text = MakeBstr(std::wstring_view(name));
    const HRESULT result = extended->GetDispID(text, fdexNameCaseInsensitive, &number);
    SysFreeString(text);
    RequireMember(result);
  } else {
    auto* text = const_cast<wchar_t*>(name);
    RequireMember(object.GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &number));
  }
  return number;
}

HRESULT Invoke(IDispatch& object, DISPID member, std::span<const OwnedVariant> arguments, VARIANT& result) {
  std::vector<VARIANT> reversed(arguments.size());
  std::ranges::transform(arguments, reversed.rbegin(), [](const OwnedVariant& value) { return value.Get(); });
  DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
  constexpr WORD kFlags = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
  Details details;
  const auto extended = ComPointer<IDispatch>::Shared(&object).As<IDispatchEx>(__uuidof(IDispatchEx));
  const HRESULT code = extended ? extended->InvokeEx(member, LOCALE_USER_DEFAULT, kFlags, &parameters,
                                                     &result, &details, nullptr)
                                : object.Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, kFlags, &parameters,
                                                &result, &details, nullptr);
  if (code == DISP_E_EXCEPTION) details.Throw();
  return code;
}

}  // namespace

OwnedVariant CallByName(IDispatch& object, const wchar_t* name, std::span<const OwnedVariant> arguments) {
  OwnedVariant result;
  Check(Invoke(object, NumberOf(object, name), arguments, result.Get()));
  return result;
}

bool GetDefaultProperty(IDispatch& object, VARIANT& value) {
  const HRESULT code = Invoke(object, DISPID_VALUE, {}, value);
  if (code == DISP_E_MEMBERNOTFOUND || code == DISP_E_BADPARAMCOUNT || code == DISP_E_PARAMNOTOPTIONAL)
    return false;
  Check(code);
  return true;
}

}  // namespace amortix2::com
