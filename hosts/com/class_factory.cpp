#include "amortix2/com/class_factory.h"

#include "amortix2/com/automation_object.h"
#include "amortix2/com/guid.h"
#include "amortix2/com/identity.h"
#include "amortix2/com/result_code.h"

namespace amortix2::com {

const ClassInfo* FindPublishedClass(REFCLSID identifier) noexcept {
  for (const ClassInfo* type : Classes()) {
    const std::string_view published = IdentifierOf(type->name);
    if (!published.empty() && ToGuid(published) == identifier) return type;
  }
  return nullptr;
}

HRESULT ClassFactory::QueryInterface(REFIID identifier, void** object) {
  if (object == nullptr) return E_POINTER;
  const bool known = identifier == IID_IUnknown || identifier == IID_IClassFactory;
  *object = known ? this : nullptr;
  if (!known) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG ClassFactory::AddRef() { return ++references_; }

ULONG ClassFactory::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID identifier, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (outer != nullptr) return CLASS_E_NOAGGREGATION;
  return Guarded([&] {
    auto* created = new AutomationObject(type_);
    const HRESULT result = created->QueryInterface(identifier, object);
    created->Release();
    return result;
  });
}

HRESULT ClassFactory::LockServer(BOOL lock) {
  if (lock != FALSE) {
    Module::AddUse();
  } else {
    Module::ReleaseUse();
  }
  return S_OK;
}

}  // namespace amortix2::com
