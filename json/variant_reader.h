#pragma once

// What a JSON value means as an automation value. null is Null, true and false are Boolean, an integer
// literal of 32 bits is a Long, any other number a Double, a text a String. {"type": "Date", "value":
// "2001-01-31"} is a value of a named type. An array is one-dimensional from 0, an array of equally long
// arrays two-dimensional; {"lower": [1], "values": [...]} is an array with other lower bounds, as many as it
// has dimensions.

#include <cstdint>
#include <optional>
#include <string_view>

#include "amortix2/automation/array.h"
#include "amortix2/automation/variant.h"
#include "amortix2/json/tree.h"

namespace amortix2::json {

/// Raises RequestError for an object of another shape, a type that there is not and a value that its type
/// cannot hold; OutOfMemory.
Variant ToVariant(const Tree& tree);

/// The bounds of `count` elements from `lower` on. Raises RequestError when they leave 32 bits.
Bounds BoundsFrom(std::int64_t lower, std::size_t count);

/// The day that "YYYY-MM-DD" names, years 0100 to 9999; nothing for any other text or a day that no month
/// has.
std::optional<Date> ParseIsoDate(std::string_view text);

}  // namespace amortix2::json
