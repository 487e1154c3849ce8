#include "amortix2/charts/page_text.h"

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"

namespace amortix2 {

std::string PageText(const Variant& value) {
  return value.Type() == VariantType::Null ? std::string() : ToText(value);
}

const Array& PageArray(const Variant& value) {
  if (value.Type() != VariantType::Array) Raise(ErrorNumber::SubscriptOutOfRange);
  return value.GetArray();
}

Array& PageArray(Variant& value) {
  if (value.Type() != VariantType::Array) Raise(ErrorNumber::SubscriptOutOfRange);
  return value.GetArray();
}

std::string PageText(const Variant& list, std::int64_t index) { return PageText(PageArray(list).At(index)); }

}  // namespace amortix2
