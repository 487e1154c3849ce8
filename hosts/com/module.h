#pragma once

// The DLL as a whole: where it lies, and whether anything still uses it.

#include <string>

#include "amortix2/com/platform.h"

namespace amortix2::com {

class Module {
 public:
  static void Attach(HMODULE handle) noexcept { handle_ = handle; }

  static HMODULE Handle() noexcept { return handle_; }

  /// The DLL's full path. Raises ForeignError.
  static std::wstring Path();

  /// Objects and locks that keep the DLL loaded. With the last one it lets go of its type library.
  static void AddUse() noexcept;
  static void ReleaseUse() noexcept;
  static bool IsUnused() noexcept;

 private:
  static inline HMODULE handle_ = nullptr;
};

/// Keeps the DLL loaded as long as it lives.
class ModuleUse {
 public:
  ModuleUse() noexcept { Module::AddUse(); }
  ModuleUse(const ModuleUse&) = delete;
  ModuleUse& operator=(const ModuleUse&) = delete;
  ~ModuleUse() { Module::ReleaseUse(); }
};

}  // namespace amortix2::com
