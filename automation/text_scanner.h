#pragma once

// Reading a text from its front, character by character, in plain ASCII whatever the machine's locale. Behind
// the last character there is a '\0' that can be looked at, but not taken.

#include <cstddef>
#include <string_view>

namespace amortix2 {

constexpr bool IsDigit(char c) noexcept { return c >= '0' && c <= '9'; }
constexpr bool IsLetter(char c) noexcept { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
constexpr bool IsBlank(char c) noexcept { return c == ' ' || (c >= '\t' && c <= '\r'); }
constexpr char ToLower(char c) noexcept {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Without blanks at either end.
constexpr std::string_view Trimmed(std::string_view text) noexcept {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

class TextScanner {
 public:
  explicit constexpr TextScanner(std::string_view text) noexcept : rest_(text) {}

  constexpr bool AtEnd() const noexcept { return rest_.empty(); }
  constexpr char Peek() const noexcept { return rest_.empty() ? '\0' : rest_.front(); }

  /// Takes the next character, or nothing at the end.
  constexpr void Skip() noexcept { rest_.remove_prefix(rest_.empty() ? 0 : 1); }

  /// Takes the next character when it is one of `wanted`; says whether it was.
  constexpr bool TakeAnyOf(std::string_view wanted) noexcept {
    if (AtEnd() || wanted.find(rest_.front()) == std::string_view::npos) return false;
    Skip();
    return true;
  }
  constexpr bool Take(char wanted) noexcept { return TakeAnyOf({&wanted, 1}); }

  /// Takes the longest run of characters that satisfy `belongs`, and returns it.
  template <class Predicate>
  constexpr std::string_view TakeWhile(Predicate belongs) noexcept {
    std::size_t length = 0;
    while (length < rest_.size() && belongs(rest_[length])) ++length;
    const std::string_view run = rest_.substr(0, length);
    rest_.remove_prefix(length);
    return run;
  }

 private:
  std::string_view rest_;
};

}  // namespace amortix2
