// The functions by which the platform reaches the DLL.

#include <cwchar>
#include <new>

#include "amortix2/com/class_factory.h"
#include "amortix2/com/module.h"
#include "amortix2/com/platform.h"
#include "amortix2/com/registration.h"
#include "amortix2/com/result_code.h"

using amortix2::com::Guarded;
using amortix2::com::RegistrationScope;

extern "C" {

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) amortix2::com::Module::Attach(instance);
  return TRUE;
}

HRESULT WINAPI DllGetClassObject(REFCLSID classIdentifier, REFIID identifier, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  const amortix2::ClassInfo* type = amortix2::com::FindPublishedClass(classIdentifier);
  if (type == nullptr) return CLASS_E_CLASSNOTAVAILABLE;
  return Guarded([&] {
    auto* factory = new amortix2::com::ClassFactory(*type);
    const HRESULT result = factory->QueryInterface(identifier, object);
    factory->Release();
    return result;
  });
}

HRESULT WINAPI DllCanUnloadNow() { return amortix2::com::Module::IsUnused() ? S_OK : S_FALSE; }

/// "user" installs for the current user alone, anything else for the machine.
HRESULT WINAPI DllInstall(BOOL install, LPCWSTR arguments) {
  const bool user = arguments != nullptr && _wcsicmp(arguments, L"user") == 0;
  const RegistrationScope scope = user ? RegistrationScope::User : RegistrationScope::Machine;
  return Guarded([&] {
    if (install != FALSE) {
      amortix2::com::Register(scope);
    } else {
      amortix2::com::Unregister(scope);
    }
    return S_OK;
  });
}

HRESULT WINAPI DllRegisterServer() { return DllInstall(TRUE, nullptr); }

HRESULT WINAPI DllUnregisterServer() { return DllInstall(FALSE, nullptr); }

}  // extern "C"
