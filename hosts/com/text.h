#pragma once

// Text on its way between the component, which keeps UTF-8, and the platform, which keeps UTF-16.

#include <string>
#include <string_view>

#include "amortix2/com/platform.h"

namespace amortix2::com {

/// A new automation string that the caller owns. Raises std::bad_alloc.
BSTR MakeBstr(std::string_view utf8);
BSTR MakeBstr(std::wstring_view text);

/// Unpaired surrogates become U+FFFD.
std::string ToUtf8(std::wstring_view text);

std::wstring ToWide(std::string_view utf8);

/// The text of an automation string; a null one is empty.
inline std::wstring_view View(BSTR text) noexcept {
  return text == nullptr ? std::wstring_view() : std::wstring_view(text, SysStringLen(text));
}

}  // namespace amortix2::com
