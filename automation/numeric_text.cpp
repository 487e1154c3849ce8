#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <locale>
#include <sstream>
#include <string>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/decimal.h"
#include "amortix2/automation/text_scanner.h"

// Numeric text is read in three steps: what may stand in front of the digits, the number itself, and what may
// stand behind it. Digits go without their separators to the standard library's correctly rounded conversion.

namespace amortix2 {
namespace {

/// For a text of digits, point and exponent that is out of the range of doubles: is it too large, rather than
/// too close to zero?
bool IsTooLarge(std::string_view number) {
  const std::size_t exponentAt = std::min(number.find('e'), number.size());
  const std::string_view mantissa = number.substr(0, exponentAt);
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  const std::size_t first = mantissa.find_first_of("123456789");
  std::int64_t exponent = 0;
  if (exponentAt < number.size()) {
    const std::string_view text = number.substr(exponentAt + 1);
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), exponent);
    if (parsed.ec != std::errc{}) return text.front() != '-';
  }
  // The point moved to just behind the first digit: the sign of the exponent decides.
  return exponent > static_cast<std::int64_t>(first) - static_cast<std::int64_t>(point);
}

class NumberReader {
 public:
  explicit NumberReader(std::string_view text) : scanner_(text) {}

  std::optional<double> Read() {
    TakeMarks();
    parenthesisOpen_ = scanner_.Take('(');
    if (parenthesisOpen_) TakeMarks();
    const std::optional<double> magnitude = scanner_.Take('&') ? ReadBasedInteger() : ReadDecimal();
    TakeMarks();
    if (parenthesisOpen_ && !scanner_.Take(')')) return std::nullopt;
    TakeMarks();
    if (!magnitude || !scanner_.AtEnd()) return std::nullopt;
    return parenthesisOpen_ || minus_ ? -*magnitude : *magnitude;
  }

 private:
  /// Blanks in any number, and each of the three marks once in the whole text.
  void TakeMarks() {
    const auto takeOnce = [this](bool& taken, char mark) { return !taken && (taken = scanner_.Take(mark)); };
    do {
      scanner_.TakeWhile(IsBlank);
    } while (takeOnce(plus_, '+') || takeOnce(minus_, '-') || takeOnce(currency_, '$'));
  }

  void TakeDigits() {
    do {
      number_ += scanner_.TakeWhile(IsDigit);
    } while (!number_.empty() && scanner_.Take(','));
  }

  std::optional<double> ReadDecimal() {
    TakeDigits();
    if (scanner_.Take('.')) {
      number_ += '.';
      TakeDigits();
    }
    if (number_.empty() || number_ == ".") return std::nullopt;
    if (scanner_.TakeAnyOf("eEdD") && !TakeExponent()) return std::nullopt;
    return Converted();
  }

  bool TakeExponent() {
    number_ += 'e';
    if (scanner_.Peek() == '-') number_ += '-';
    scanner_.TakeAnyOf("+-");
    const std::string_view digits = scanner_.TakeWhile(IsDigit);
    number_ += digits;
    return !digits.empty();
  }

  std::optional<double> Converted() const {
    double value = 0;
#ifdef __cpp_lib_to_chars
    const auto parsed = std::from_chars(number_.data(), number_.data() + number_.size(), value);
    if (parsed.ec == std::errc{} && std::isfinite(value)) return value;
#else
    // A library that reads whole numbers alone so. A stream stores what it read although it calls numbers out
    // of range a failure.
    std::istringstream digits(number_);
    digits.imbue(std::locale::classic());
    digits >> value;
    if (std::isfinite(value)) return value;
#endif
    return IsTooLarge(number_) ? std::nullopt : std::optional(0.0);
  }

  /// Hexadecimal or octal digits stand for the bits of an Integer or, when they need more, of a Long.
  std::optional<double> ReadBasedInteger() {
    const bool isHex = scanner_.TakeAnyOf("hH");
    if (!isHex && !scanner_.TakeAnyOf("oO")) return std::nullopt;
    const std::string_view digits = scanner_.TakeWhile([](char c) { return IsDigit(c) || IsLetter(c); });
    std::uint32_t bits = 0;
    const auto parsed = std::from_chars(digits.data(), digits.data() + digits.size(), bits, isHex ? 16 : 8);
    if (parsed.ec != std::errc{} || parsed.ptr != digits.data() + digits.size()) return std::nullopt;
    if (bits <= 0xFFFF) return static_cast<std::int16_t>(bits);
    return static_cast<std::int32_t>(bits);
  }

  TextScanner scanner_;
  bool plus_ = false;
  bool minus_ = false;
  bool currency_ = false;
  bool parenthesisOpen_ = false;
  std::string number_;  // digits, at most one ".", and an exponent after "e"
};

}  // namespace

std::optional<double> ParseNumber(std::string_view text) { return NumberReader(text).Read(); }

std::string NumberText(double value) {
  constexpr std::int64_t kLeastPlainExponent = -4;
  Decimal number(value);
  const std::int64_t exponent = number.IsZero() ? 0 : number.IntegerDigits() - 1;
  const bool isPlain = exponent >= kLeastPlainExponent && exponent < Decimal::kSignificantDigits;
  if (!isPlain) number.Scale(-exponent);
  std::string text(value < 0 ? "-" : "");
  const std::int64_t lowest = std::min<std::int64_t>(number.LowestPower(), 0);
  for (std::int64_t power = std::max<std::int64_t>(number.IntegerDigits() - 1, 0); power >= lowest; --power) {
    if (power == -1) text += '.';
    text += number.DigitAt(power);
  }
  if (isPlain) return text;
  text += exponent < 0 ? "E-" : "E+";
  if (std::abs(exponent) < 10) text += '0';
  return text += std::to_string(std::abs(exponent));
}

}  // namespace amortix2
