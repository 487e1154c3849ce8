#include "amortix2/com/text.h"

#include <algorithm>
#include <new>

namespace amortix2::com {
namespace {

template <class Character>
bool IsAscii(std::basic_string_view<Character> text) noexcept {
  return std::ranges::all_of(text, [](Character c) { return c >= 0 && c < 0x80; });
}

// Texts are far shorter than what an int counts; a longer one is out of memory before it gets here.
int Length(std::size_t size) {
  if (size > 0x7FFFFFFF) throw std::bad_alloc();
  return static_cast<int>(size);
}

}  // namespace

BSTR MakeBstr(std::string_view utf8) {
  const int length = Length(utf8.size());
  const bool ascii = IsAscii(utf8);
  const int wideLength = ascii ? length : MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0);
  BSTR text = SysAllocStringLen(nullptr, static_cast<UINT>(wideLength));
  if (text == nullptr) throw std::bad_alloc();
  if (ascii) {
    std::ranges::copy(utf8, text);
  } else {
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, text, wideLength);
  }
  return text;
}

BSTR MakeBstr(std::wstring_view text) {
  BSTR copy = SysAllocStringLen(text.data(), static_cast<UINT>(Length(text.size())));
  if (copy == nullptr) throw std::bad_alloc();
  return copy;
}

std::string ToUtf8(std::wstring_view text) {
  if (IsAscii(text)) {
    std::string narrow(text.size(), '\0');
    std::ranges::transform(text, narrow.begin(), [](wchar_t c) { return static_cast<char>(c); });
    return narrow;
  }
  const int length = Length(text.size());
  const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), length, utf8.data(), size, nullptr, nullptr);
  return utf8;
}

std::wstring ToWide(std::string_view utf8) {
  const int length = Length(utf8.size());
  const int size = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, wide.data(), size);
  return wide;
}

}  // namespace amortix2::com
