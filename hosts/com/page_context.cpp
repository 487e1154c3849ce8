#include "amortix2/com/page_context.h"

#include <algorithm>
#include <new>

#include "amortix2/com/late_bound.h"

namespace amortix2::com {

PageResponse& PageContext::Response() {
  const OwnedVariant value = CallByName(*context_.Get(), L"Response");
  const bool isObject = value.Get().vt == VT_DISPATCH || value.Get().vt == VT_UNKNOWN;
  response_ = isObject ? ComPointer<IUnknown>::Shared(value.Get().punkVal).As<IDispatch>(IID_IDispatch)
                       : ComPointer<IDispatch>();
  if (!response_) Raise(ErrorNumber::ObjectNotSet);
  return *this;
}

void PageContext::BinaryWrite(std::span<const std::uint8_t> bytes) {
  OwnedVariant argument;
  argument.Get().parray = SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(bytes.size()));
  if (argument.Get().parray == nullptr) throw std::bad_alloc();
  argument.Get().vt = VT_ARRAY | VT_UI1;
  std::ranges::copy(bytes, static_cast<std::uint8_t*>(SafeArrayData(argument.Get().parray).At(0)));
  CallByName(*response_.Get(), L"BinaryWrite", {&argument, 1});
}

}  // namespace amortix2::com
