#include "automation/variant.h"

#include <algorithm>
#include <memory>
#include <string>

#include "automation/array.h"
#include "automation/error.h"

namespace amortix2 {

void Variant::RaiseTypeMismatch() { Raise(ErrorNumber::TypeMismatch); }

Variant::Variant(Array array) : type_(VariantType::Array) {
  Store(std::make_unique<Array>(std::move(array)).release());
  textLength_ = kOnHeap;
}

void Variant::StoreText(std::string_view text) {
  if (text.size() <= kInlineText) {
    std::copy_n(text.data(), text.size(), storage_);
    textLength_ = static_cast<std::uint8_t>(text.size());
  } else {
    Store(std::make_unique<std::string>(text).release());
    textLength_ = kOnHeap;
  }
}

void Variant::CopyHeap(const Variant& other) {
  if (type_ == VariantType::String) {
    StoreText(other.GetString());
  } else {
    Store(std::make_unique<Array>(other.GetArray()).release());
    textLength_ = kOnHeap;
  }
}

void Variant::ReleaseHeap() noexcept {
  if (type_ == VariantType::String) {
    delete Payload<std::string*>();
  } else {
    delete Payload<Array*>();
  }
  textLength_ = 0;
}

std::string_view Variant::GetString() const {
  if (type_ != VariantType::String) RaiseTypeMismatch();
  if (OwnsHeap()) return *Payload<std::string*>();
  return {reinterpret_cast<const char*>(storage_), textLength_};
}

const Array& Variant::GetArray() const { return *Load<Array*>(VariantType::Array); }

Array& Variant::GetArray() { return *Load<Array*>(VariantType::Array); }

bool operator==(const Variant& a, const Variant& b) noexcept {
  if (a.type_ != b.type_) return false;
  switch (a.type_) {
    case VariantType::Empty:
    case VariantType::Null:
    case VariantType::Missing:
      return true;
    case VariantType::String:
      return a.GetString() == b.GetString();
    case VariantType::Array:
      return a.GetArray() == b.GetArray();
    default:  // unused payload bytes are always zero
      return a.Payload<std::uint64_t>() == b.Payload<std::uint64_t>();
  }
}

}  // namespace amortix2
