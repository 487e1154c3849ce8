#pragma once

// Values as text for people and for other programs' tables: dates as ISO has them, no marks for thousands.

#include <cstddef>
#include <string>
#include <string_view>

#include "amortix2/automation/variant.h"
#include "amortix2/component/meaning.h"

namespace amortix2::json {

bool IsNumber(VariantType type) noexcept;

/// A number, date, text or flag as a person reads it, on one line: money with two decimals, rates with three,
/// other numbers with at least so many decimals and at most six.
std::string PlainText(const Variant& value, Unit unit = Unit::None, std::size_t decimals = 0);

/// The decimals of a number's text; 0 for "1e+20", which has none to add to.
std::size_t DecimalsOf(std::string_view number) noexcept;

}  // namespace amortix2::json
