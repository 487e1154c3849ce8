#include "amortix2/com/registration.h"

#include <utility>

#include "amortix2/com/module.h"
#include "amortix2/com/platform.h"
#include "amortix2/com/registry_entries.h"
#include "amortix2/com/result_code.h"

namespace amortix2::com {
namespace {

constexpr REGSAM kOtherBitness = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

void CheckStatus(LSTATUS status) { Check(HRESULT_FROM_WIN32(static_cast<DWORD>(status))); }

class Key {
 public:
  Key(HKEY parent, const std::wstring& name) { CheckStatus(Create(parent, name)); }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  ~Key() { RegCloseKey(key_); }

  HKEY Get() const noexcept { return key_; }

  void Put(const std::wstring& name, const std::wstring& text) const {
    CheckStatus(RegSetValueExW(key_, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                               static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))));
  }

 private:
  LSTATUS Create(HKEY parent, const std::wstring& name) noexcept {
    return RegCreateKeyExW(parent, name.c_str(), 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr, &key_,
                           nullptr);
  }

  HKEY key_ = nullptr;
};

HKEY RootOf(RegistrationScope scope) noexcept {
  return scope == RegistrationScope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

constexpr const wchar_t* kClasses = L"Software\\Classes";

bool IsOtherBitnessRegistered(RegistrationScope scope, const std::wstring& sign) {
  HKEY key = nullptr;
  const std::wstring path = std::wstring(kClasses) + L"\\" + sign;
  if (RegOpenKeyExW(RootOf(scope), path.c_str(), 0, KEY_READ | kOtherBitness, &key) != ERROR_SUCCESS)
    return false;
  RegCloseKey(key);
  return true;
}

void RemoveTree(HKEY parent, const std::wstring& key) {
  const LSTATUS status = RegDeleteTreeW(parent, key.c_str());
  if (status != ERROR_FILE_NOT_FOUND) CheckStatus(status);
}

}  // namespace

void Register(RegistrationScope scope) {
  const RegistryEntries entries = EntriesFor(Module::Path());
  try {
    const Key classes(RootOf(scope), kClasses);
    for (const RegistryEntry& entry : entries.values)
      Key(classes.Get(), entry.key).Put(entry.name, entry.text);
  } catch (...) {
    try {
      Unregister(scope);
    } catch (...) {
      // Nothing could be written, so nothing is left to remove.
    }
    throw;
  }
}

void Unregister(RegistrationScope scope) {
  const RegistryEntries entries = EntriesFor(Module::Path());
  const Key classes(RootOf(scope), kClasses);
  for (const std::wstring& key : entries.ownKeys) RemoveTree(classes.Get(), key);
  if (IsOtherBitnessRegistered(scope, entries.sign)) return;
  for (const std::wstring& key : entries.sharedKeys) RemoveTree(classes.Get(), key);
}

}  // namespace amortix2::com
