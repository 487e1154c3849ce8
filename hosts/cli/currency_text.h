#pragma once

// Currency amounts as decimal text, exact to their four decimals where a double is not.

#include <optional>
#include <string>
#include <string_view>

#include "amortix2/automation/variant.h"

namespace amortix2::cli {

/// "-12.5": no more decimals than needed.
std::string CurrencyText(Currency amount);

/// An optional minus sign, digits, and at most four decimals; nothing for other text or outside the range.
std::optional<Currency> ParseCurrency(std::string_view text);

}  // namespace amortix2::cli
