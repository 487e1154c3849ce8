#pragma once

// A counted reference to an object of the platform, released when it goes out of scope.

#include <utility>

#include "amortix2/com/platform.h"

namespace amortix2::com {

template <class T>
class ComPointer {
 public:
  ComPointer() noexcept = default;
  ComPointer(const ComPointer& other) noexcept : ComPointer(Shared(other.object_)) {}
  ComPointer(ComPointer&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ComPointer& operator=(ComPointer other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~ComPointer() {
    if (object_ != nullptr) object_->Release();
  }

  /// A further reference to `object`, which may be null.
  static ComPointer Shared(T* object) noexcept {
    if (object != nullptr) object->AddRef();
    ComPointer pointer;
    pointer.object_ = object;
    return pointer;
  }

  /// The object's other interface, or null when it has none.
  template <class U>
  ComPointer<U> As(REFIID identifier) const noexcept {
    ComPointer<U> other;
    if (object_ != nullptr) object_->QueryInterface(identifier, reinterpret_cast<void**>(other.Receive()));
    return other;
  }

  T* Get() const noexcept { return object_; }
  T* operator->() const noexcept { return object_; }
  explicit operator bool() const noexcept { return object_ != nullptr; }

  /// Where a function stores the reference that it hands out; the pointer must be null.
  T** Receive() noexcept { return &object_; }

  /// Gives the reference away.
  T* Release() noexcept { return std::exchange(object_, nullptr); }

 private:
  T* object_ = nullptr;
};

}  // namespace amortix2::com
