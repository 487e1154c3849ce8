#include "amortix2/com/module.h"

#include <atomic>

#include "amortix2/com/result_code.h"
#include "amortix2/com/type_library.h"

namespace amortix2::com {
namespace {

std::atomic<long> uses = 0;

}  // namespace

std::wstring Module::Path() {
  std::wstring path(MAX_PATH, L'\0');
  while (true) {
    const DWORD length = GetModuleFileNameW(handle_, path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) Check(HRESULT_FROM_WIN32(GetLastError()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

void Module::AddUse() noexcept { ++uses; }

void Module::ReleaseUse() noexcept {
  if (--uses == 0) TypeLibrary::Forget();
}

bool Module::IsUnused() noexcept { return uses == 0; }

}  // namespace amortix2::com
