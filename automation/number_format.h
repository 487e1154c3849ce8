#pragma once

// Numbers as text by a pattern, the way page scripts write amounts: "#" an optional digit, "0" a required
// digit,
// "." the decimal point, "," between digit places thousands grouping, "%" a percentage; anything else stands
// for itself.

#include <string>
#include <string_view>

namespace amortix2 {

/// `value` by `pattern`. Rounds halves away from zero, on the 15 significant digits that a double is sure of.
/// A negative value has its minus sign in front of the whole text ("-$1,234"). `value` must be finite.
std::string FormatNumber(double value, std::string_view pattern);

}  // namespace amortix2
