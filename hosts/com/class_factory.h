#pragma once

// Creates objects of one class of the component for the platform.

#include <atomic>

#include "amortix2/com/module.h"
#include "amortix2/com/platform.h"
#include "amortix2/component/description.h"

namespace amortix2::com {

/// The described class of a published identifier, or null.
const ClassInfo* FindPublishedClass(REFCLSID identifier) noexcept;

class ClassFactory final : public IClassFactory {
 public:
  explicit ClassFactory(const ClassInfo& type) noexcept : type_(type) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID identifier, void** object) override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

 private:
  ModuleUse use_;
  const ClassInfo& type_;
  std::atomic<ULONG> references_ = 1;
};

}  // namespace amortix2::com
