#pragma once

// Values of the platform that free what they hold: a VARIANT, a SAFEARRAY, access to a SAFEARRAY's data.

#include <memory>
#include <utility>

#include "amortix2/automation/error.h"
#include "amortix2/com/platform.h"

namespace amortix2::com {

class OwnedVariant {
 public:
  OwnedVariant() noexcept { VariantInit(&value_); }
  OwnedVariant(OwnedVariant&& other) noexcept : value_(other.Take()) {}
  OwnedVariant& operator=(OwnedVariant&& other) noexcept {
    std::swap(value_, other.value_);
    return *this;
  }
  ~OwnedVariant() {
    if (value_.vt >= VT_BSTR) VariantClear(&value_);  // the types before it hold nothing
  }

  VARIANT& Get() noexcept { return value_; }
  const VARIANT& Get() const noexcept { return value_; }

  /// Gives the value away and leaves Empty behind.
  VARIANT Take() noexcept {
    const VARIANT value = value_;
    VariantInit(&value_);
    return value;
  }

 private:
  VARIANT value_;
};

struct SafeArrayDeleter {
  void operator()(SAFEARRAY* array) const noexcept { SafeArrayDestroy(array); }
};
using OwnedSafeArray = std::unique_ptr<SAFEARRAY, SafeArrayDeleter>;

/// The data of a SAFEARRAY, locked as long as this lives.
class SafeArrayData {
 public:
  /// Raises TypeMismatch when the array has no data.
  explicit SafeArrayData(SAFEARRAY* array) : array_(array) {
    void* data = nullptr;
    if (FAILED(SafeArrayAccessData(array, &data))) Raise(ErrorNumber::TypeMismatch);
    data_ = static_cast<unsigned char*>(data);
  }
  SafeArrayData(const SafeArrayData&) = delete;
  SafeArrayData& operator=(const SafeArrayData&) = delete;
  ~SafeArrayData() { SafeArrayUnaccessData(array_); }

  void* At(std::size_t index) const noexcept { return data_ + index * array_->cbElements; }

 private:
  SAFEARRAY* array_;
  unsigned char* data_;
};

}  // namespace amortix2::com
