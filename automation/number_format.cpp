#include "automation/number_format.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>

#include "automation/conversion.h"
#include "automation/decimal.h"
#include "automation/pattern_reader.h"

// A section of the pattern is read twice: once to count its places, which tells how the digits are scaled and
// rounded, and once to write them. Every place stands for a power of ten. The first place in front of the
// point also takes the higher digits, which have no place of their own.

namespace amortix2 {
namespace {

struct Layout {
  std::int64_t integerPlaces = 0;
  std::int64_t requiredIntegers = 0;  // from the first required place to the point
  std::int64_t fractionPlaces = 0;
  std::int64_t requiredFractions = 0;  // from the point to the last required place
  std::int64_t scale = 0;              // the power of ten that the number is multiplied by
  bool isGrouped = false;
  bool hasExponent = false;
};

Layout Measure(std::string_view section) {
  constexpr int kPercent = 2;
  constexpr int kThousand = 3;
  Layout layout;
  bool isFraction = false;
  std::int64_t commas = 0;  // since the last place: they group when another place follows, else divide
  for (PatternReader reader(section); !reader.AtEnd();) {
    const Token token = reader.Next();
    const bool isRequired = token.kind == TokenKind::RequiredDigit;
    if (token.kind == TokenKind::Percent) layout.scale += kPercent;
    if (token.kind == TokenKind::Exponent) layout.hasExponent = true;
    if (token.kind == TokenKind::Point) isFraction = true;
    if (token.kind == TokenKind::Comma) ++commas;
    if (!token.IsPlace()) continue;
    if (isFraction) {
      ++layout.fractionPlaces;
      if (isRequired) layout.requiredFractions = layout.fractionPlaces;
    } else {
      ++layout.integerPlaces;
      if (isRequired || layout.requiredIntegers > 0) ++layout.requiredIntegers;
      layout.isGrouped = layout.isGrouped || commas > 0;
      commas = 0;
    }
  }
  layout.scale -= kThousand * commas;
  return layout;
}

class SectionWriter {
 public:
  SectionWriter(double value, std::string_view section)
      : section_(section), layout_(Measure(section)), number_(value), power_(layout_.integerPlaces) {
    number_.Scale(layout_.scale);
    if (layout_.hasExponent) {
      number_.RoundTo(number_.IntegerDigits() - layout_.integerPlaces - layout_.fractionPlaces);
      if (!number_.IsZero()) exponent_ = number_.IntegerDigits() - layout_.integerPlaces;
      number_.Scale(-exponent_);
    } else {
      number_.RoundTo(-layout_.fractionPlaces);
    }
  }

  void WriteTo(std::string& out) {
    for (PatternReader reader(section_); !reader.AtEnd();) WriteToken(reader.Next(), out);
  }

 private:
  void WriteToken(const Token& token, std::string& out) {
    switch (token.kind) {
      case TokenKind::OptionalDigit:
      case TokenKind::RequiredDigit:
        return --power_ >= 0 ? WriteIntegers(out) : WriteFraction(out);
      case TokenKind::Point:
        if (layout_.integerPlaces == 0) WriteIntegers(out);
        break;
      case TokenKind::Exponent:
        return WriteExponent(token.text, out);
      case TokenKind::Comma:
        return;
      default:
        break;
    }
    out += token.text;
  }

  /// The digit of the current power; at the first place those of the higher powers too.
  void WriteIntegers(std::string& out) const {
    const std::int64_t digits = std::max(number_.IntegerDigits(), layout_.requiredIntegers);
    const bool isFirst = power_ >= layout_.integerPlaces - 1;
    std::int64_t power = isFirst ? digits - 1 : std::min(power_, digits - 1);
    for (; power >= power_; --power) {
      out += number_.DigitAt(power);
      if (layout_.isGrouped && power > 0 && power % 3 == 0) out += ',';
    }
  }

  void WriteFraction(std::string& out) const {
    if (-power_ <= layout_.requiredFractions || power_ >= number_.LowestPower())
      out += number_.DigitAt(power_);
  }

  void WriteExponent(std::string_view text, std::string& out) const {
    out += text[0];
    if (exponent_ < 0) {
      out += '-';
    } else if (text[1] == '+') {
      out += '+';
    }
    const std::string digits = std::to_string(std::abs(exponent_));
    const auto required = static_cast<std::size_t>(std::ranges::count(text, '0'));
    if (digits.size() < required) out.append(required - digits.size(), '0');
    out += digits;
  }

  std::string_view section_;
  Layout layout_;
  Decimal number_;
  std::int64_t power_;  // of the place written last
  std::int64_t exponent_ = 0;
};

/// The pattern's sections for positive values, negative values and zero; empty where there is none.
std::array<std::string_view, 3> Sections(std::string_view pattern) {
  if (pattern.find(';') == std::string_view::npos) return {pattern};  // nearly always: saves a reading
  std::array<std::string_view, 3> sections{};
  PatternReader reader(pattern);
  for (std::string_view& section : sections) {
    const std::size_t begin = pattern.size() - reader.Remaining();
    std::size_t end = begin;
    while (!reader.AtEnd() && reader.Next().kind != TokenKind::SectionEnd)
      end = pattern.size() - reader.Remaining();
    section = pattern.substr(begin, end - begin);
  }
  return sections;
}

}  // namespace

std::string FormatNumber(double value, std::string_view pattern) {
  const auto [positive, negative, zero] = Sections(pattern);
  const std::string_view own = value < 0 ? negative : value == 0 ? zero : positive;
  const std::string_view section = own.empty() ? positive : own;
  if (section.empty()) return NumberText(value);
  std::string text;
  if (value < 0 && own.empty()) text += '-';
  SectionWriter(value, section).WriteTo(text);
  return text;
}

}  // namespace amortix2
