#pragma once

// The registry entries of the component, made from its description: one list, from which registering writes
// and unregistering removes.

#include <string>
#include <vector>

namespace amortix2::com {

/// One value of a key below the scope's "Software\Classes".
struct RegistryEntry {
  std::wstring key;
  std::wstring name;  ///< empty: the key's default value
  std::wstring text;
};

struct RegistryEntries {
  /// Keys that this DLL has to itself (its bitness has its own view of them), removed whole.
  std::vector<std::wstring> ownKeys;
  /// Keys that it shares with the other bitness, removed whole when that is not registered.
  std::vector<std::wstring> sharedKeys;
  /// A key that exists while the other bitness is registered, in that one's view.
  std::wstring sign;
  std::vector<RegistryEntry> values;
};

RegistryEntries EntriesFor(const std::wstring& dllPath);

}  // namespace amortix2::com
