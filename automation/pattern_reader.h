#pragma once

// A number pattern as a row of tokens: digit places, the marks that stand for something, and literal text.
// Nothing is copied; a token is a view into the pattern. Every section is read as if it stood alone.

#include <cstdint>
#include <string_view>

namespace amortix2 {

enum class TokenKind : std::uint8_t {
  OptionalDigit,  ///< #
  RequiredDigit,  ///< 0
  Point,          ///< the first "."
  Comma,          ///< "," in front of the point and behind a digit place or another such comma
  Percent,        ///< %
  Exponent,       ///< "E" or "e", "+" or "-", and the exponent's own digit places
  SectionEnd,     ///< ;
  Literal,        ///< any other character, one behind a backslash, or all between double quotes
};

struct Token {
  TokenKind kind;
  std::string_view text;  ///< what stands in the pattern; a literal without its quotes or backslash

  bool IsPlace() const noexcept {
    return kind == TokenKind::OptionalDigit || kind == TokenKind::RequiredDigit;
  }
};

class PatternReader {
 public:
  explicit PatternReader(std::string_view pattern) noexcept : rest_(pattern) {}

  bool AtEnd() const noexcept { return rest_.empty(); }

  /// Reads the next token; there must be one.
  Token Next() noexcept;

 private:
  Token Take(TokenKind kind, std::size_t length) noexcept;
  Token TakeQuoted() noexcept;
  Token TakeWhateverItMeans() noexcept;
  std::size_t ExponentLength() const noexcept;

  std::string_view rest_;
  bool behindPlace_ = false;
  bool behindPoint_ = false;
};

}  // namespace amortix2
