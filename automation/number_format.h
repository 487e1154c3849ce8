#pragma once

// Numbers as text by a pattern, the way page scripts write amounts: "$#,##0.00" writes 1234.5 as "$1,234.50".
// - "#" is an optional digit, "0" a required one, "." the decimal point.
// - "," between digit places groups thousands; behind the last integer place it divides by 1000.
// - "%" makes a percentage, "E+00" or "E-00" a power of ten.
// - ";" parts the patterns of positive values, of negative values and of zero.
// - A character behind a backslash, a text in double quotes and any other character stand for themselves.

#include <string>
#include <string_view>

namespace amortix2 {

/// `value` by `pattern`, any text. Rounds halves away from zero, on the 15 significant digits that a double
/// is sure of. A negative value has its minus sign in front of the whole text ("-$1,234"), also where it
/// rounds to zero, unless the pattern has a part for negative values. An empty pattern gives NumberText.
/// Raises Overflow when `value` is not finite.
std::string FormatNumber(double value, std::string_view pattern);

}  // namespace amortix2
