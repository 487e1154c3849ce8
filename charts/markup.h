#pragma once

// The writer that every fragment of an HTML chart passes through. The program's own literals hold "%" where
// the page gets a double quote ("%%" for a percent sign); texts of the page (titles, labels, URLs) go out as
// they are, so that pages can pass markup, and never become quotes. The result is an array of lines. One
// writer serves one chart, on one thread.

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

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

/// A literal of the program (its text lasts as long as the program), its placeholders already turned into
/// quotes. Written "<TD width=%30%>"_m.
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

/// A chart of more text raises OutOfMemory.
inline constexpr std::size_t kLargestMarkup = std::size_t{1} << 26;

class MarkupWriter {
 public:
  /// With `checkTags`, a fragment that breaks the nesting has kSyncError put in front of it.
  explicit MarkupWriter(bool checkTags = kCheckTags) : checkTags_(checkTags) {
    lines_.reserve(kUsualLines);
    lines_.emplace_back();
  }

  static std::size_t MostOf(const char*) = delete;  // a literal without its suffix

  /// Appends a fragment to the current line. Its parts: Markup, whose placeholders are quotes already; texts
  /// of the page (std::string, std::string_view), in which "%%" and a lone "%" both come out as one; and
  /// numbers.
  template <class... Parts>
  void Append(const Parts&... parts) {
    const std::size_t start = used_;
    Reserve((MostOf(parts) + ... + 0));
    char* end = line_.data() + used_;
    ((end = Put(end, parts)), ...);
    used_ = static_cast<std::size_t>(end - line_.data());
    if (checkTags_) Check(start);
  }

  /// Appends a fragment and ends the line. Raises OutOfMemory when the lines exceed the largest array or
  /// their text kLargestMarkup.
  template <class... Parts>
  void Line(const Parts&... parts) {
    Append(parts...);
    EndLine();
  }
  void Line(Markup literal) {
    if (used_ > 0 || checkTags_) return Line(literal, ""_m);
    EndLine(Variant::OfLiteral(literal.Text()), literal.Text().size());
  }

  /// The lines as an array from 0: an empty element, the lines in order, and what was written after the last
  /// line end (an empty element when nothing was). Leaves the writer used up.
  Array Finish();

  /// The elements still open, when tags are checked; empty when all are closed.
  std::string OpenElements() const { return tags_.OpenElements(); }

 private:
  static constexpr std::size_t kUsualLines = 400;
  static constexpr std::size_t kLongestNumber = 20;

  // The most characters that a part may need, and the part written to `out`, returning its end.
  static std::size_t MostOf(Markup literal) noexcept { return literal.Text().size(); }
  static char* Put(char* out, Markup literal) noexcept {
    return literal.Text().copy(out, literal.Text().size()) + out;
  }
  static std::size_t MostOf(std::string_view pageText) noexcept { return pageText.size(); }
  static char* Put(char* out, std::string_view pageText) noexcept {
    return CopySubstituted(pageText, '%', out);
  }
  template <class Number>
  requires std::is_integral_v<Number>
  static std::size_t MostOf(Number) noexcept { return kLongestNumber; }
  template <class Number>
  requires std::is_integral_v<Number>
  static char* Put(char* out, Number number) noexcept {
    return std::to_chars(out, out + kLongestNumber, number).ptr;
  }
  static std::size_t MostOf(SignedNumber) noexcept { return 1 + kLongestNumber; }
  static char* Put(char* out, SignedNumber number) noexcept {
    if (number.value >= 0) *out++ = ' ';
    return Put(out, number.value);
  }

  void Reserve(std::size_t characters) {
    if (line_.size() - used_ < characters) line_.resize(2 * (used_ + characters));
  }
  void Check(std::size_t start);
  void EndLine() { EndLine(std::string_view(line_.data(), used_), used_); }
  template <class Text>
  void EndLine(Text&& text, std::size_t size) {
    total_ += size;
    if (total_ > kLargestMarkup || lines_.size() >= kLargestArray) Raise(ErrorNumber::OutOfMemory);
    lines_.emplace_back(std::forward<Text>(text));
    used_ = 0;
  }

  std::string line_;       // the current line, and room behind it
  std::size_t used_ = 0;   // of line_
  std::size_t total_ = 0;  // characters in lines_
  std::vector<Variant> lines_;
  bool checkTags_;
  TagBalance tags_;
};

/// A number as SignedNumber has it, as text.
std::string SignedText(std::int64_t number);

}  // namespace amortix2
