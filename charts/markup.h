#pragma once

// The writer that every fragment of an HTML chart passes through. The program's own literals hold "%" where
// the page gets a double quote ("%%" for a percent sign); texts of the page (titles, labels, URLs) go out as
// they are, so that pages can pass markup, and never become quotes. The result is an array of lines. One
// writer serves one chart, on one thread.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include "amortix2/automation/array.h"
#include "amortix2/charts/tag_balance.h"

namespace amortix2 {

/// Copies `text` to `out`, every "%%" as one "%" and every other "%" as `placeholder`; returns the end of the
/// copy.
constexpr char* CopySubstituted(std::string_view text, char placeholder, char* out) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool percent = text[i] == '%';
    const bool pair = percent && i + 1 < text.size() && text[i + 1] == '%';
    *out++ = percent && !pair ? placeholder : text[i];
    if (pair) ++i;
  }
  return out;
}

/// A literal of the program, its placeholders already turned into quotes. Written "<TD width=%30%>"_m.
class Markup {
 public:
  explicit constexpr Markup(std::string_view text) : text_(text) {}
  constexpr std::string_view Text() const noexcept { return text_; }

 private:
  std::string_view text_;
};

template <std::size_t N>
struct MarkupLiteral {
  consteval MarkupLiteral(const char (&literal)[N])
      : size(static_cast<std::size_t>(CopySubstituted({literal, N - 1}, '"', text) - text)) {}

  char text[N] = {};
  std::size_t size;
};

template <MarkupLiteral Literal>
constexpr Markup operator""_m() {
  return Markup({Literal.text, Literal.size});
}

/// A number written with a blank in the place of the sign when it is not negative (" 300", "-5").
struct SignedNumber {
  std::int64_t value;
};

/// Builds with AMORTIX2_CHECK_TAGS check the nesting of tables, rows and cells.
#ifdef AMORTIX2_CHECK_TAGS
inline constexpr bool kCheckTags = true;
#else
inline constexpr bool kCheckTags = false;
#endif

class MarkupWriter {
 public:
  /// With `checkTags`, a fragment that breaks the nesting has kSyncError put in front of it.
  explicit MarkupWriter(bool checkTags = kCheckTags) : checkTags_(checkTags) {}

  void Put(const char*) = delete;  // a literal without its suffix

  /// Appends a fragment to the current line. Its parts: string literals and Markup, whose placeholders become
  /// quotes; texts of the page (std::string, std::string_view), in which "%%" and a lone "%" both come out
  /// as one; and numbers.
  template <class... Parts>
  void Append(const Parts&... parts) {
    const std::size_t start = line_.size();
    (Put(parts), ...);
    if (checkTags_) Check(start);
  }

  /// Appends a fragment and ends the line. Raises OutOfMemory when the lines exceed the largest array.
  template <class... Parts>
  void Line(const Parts&... parts) {
    Append(parts...);
    EndLine();
  }

  /// The lines as an array from 0: an empty element, the lines in order, and what was written after the last
  /// line end (an empty element when nothing was). Leaves the writer used up.
  Array Finish();

  /// The elements still open, when tags are checked; empty when all are closed.
  std::string OpenElements() const { return tags_.OpenElements(); }

 private:
  void Put(Markup literal) { line_ += literal.Text(); }
  void Put(std::string_view pageText);
  void Put(SignedNumber number);
  template <class Number>
  requires std::is_integral_v<Number>
  void Put(Number number) { PutNumber(number); }

  void PutNumber(std::int64_t number);
  void Check(std::size_t start);
  void EndLine();

  std::string line_;
  Array lines_{Bounds{0, 1}};
  std::int32_t current_ = 1;  // where in lines_ the current line goes
  bool checkTags_;
  TagBalance tags_;
};

/// A number as SignedNumber has it, as text.
std::string SignedText(std::int64_t number);

}  // namespace amortix2
