#pragma once

// Numbers as text by a pattern, the way page scripts write amounts: "$#,##0.00" writes 1234.5 as "$1,234.50".
// - "#" is an optional digit, "0" a required one, "." the decimal point.
// - "," between digit places groups thousands; behind the last integer place it divides by 1000.
// - "%" makes a percentage, "E+00" or "E-00" a power of ten.
// - ";" parts the patterns of positive values, of negative values and of zero.
// - A character behind a backslash, a text in double quotes and any other character stand for themselves.

#include <array>
#include <string>
#include <string_view>

#include "amortix2/automation/pattern_section.h"

namespace amortix2 {

/// A pattern, read once for any number of values. Holds nothing of the text that it was read from, and at
/// most a small multiple of that text's length. Any number of threads may format by it at once.
class NumberPattern {
 public:
  /// `pattern` may be any text.
  explicit NumberPattern(std::string_view pattern);

  /// Appends `value` to `text`. Rounds halves away from zero, on the 15 significant digits that a double is
  /// sure of. A negative value has its minus sign in front of the whole text ("-$1,234"), also where it
  /// rounds to zero, unless the pattern has a part for negative values. An empty pattern gives NumberText.
  /// Raises Overflow when `value` is not finite; `text` is then as before.
  void AppendTo(std::string& text, double value) const;

  /// What AppendTo appends.
  std::string Format(double value) const;

  /// As people read a figure: without a point that no decimal follows, and without the minus sign of a value
  /// that rounds to zero. Raises as AppendTo does.
  std::string FormatFigure(double value) const;

 private:
  std::array<PatternSection, 3> sections_;  // for positive values, for negative values, for zero
};

/// Takes the minus sign off a number that rounding made zero.
void DropMinusOfZero(std::string& number);

}  // namespace amortix2
