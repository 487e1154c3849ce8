#pragma once

// Conversions between variants, numbers, dates and text, under US English conventions whatever the machine's
// locale. Numbers that leave a type raise Overflow; nothing wraps and nothing becomes infinite.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "amortix2/automation/public.h"
#include "amortix2/automation/variant.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// The value of a variant as a double: Boolean (True is -1), Byte, Integer, Long, Double, Currency, and text
/// that ParseNumber reads. 0 for everything else (Empty, Null, Missing, Date, other text, arrays, and a
/// Double that is infinite or no number).
double NumericOrZero(const Variant& value);

/// A number as automation reads it: a parameter that takes any variant, and counts as 0 when that is none.
class Number {
 public:
  // Implicit on purpose, both ways: a Number stands where a caller has a variant and a calculation a double.
  Number(const Variant& value) : value_(NumericOrZero(value)) {}
  Number(double value) noexcept : value_(value) {}
  operator double() const noexcept { return value_; }

 private:
  double value_;
};

/// True for the types that NumericOrZero reads, for text that ParseNumber reads, and for Empty.
bool IsNumeric(const Variant& value);

/// Strict numeric conversion: as NumericOrZero, and a Date gives its day count, Empty 0. Raises TypeMismatch
/// for anything else.
double ToDouble(const Variant& value);

/// Numeric text: surrounding blanks, a leading or trailing sign, parentheses for a negative, a "$", "," as
/// thousands separator, "." as decimal point, an exponent with e, E, d or D, and "&H"/"&O" integers, which
/// are the bits of an Integer or a Long ("&HFFFF" is -1). Nothing when the text is no such number or leaves
/// the range of doubles.
std::optional<double> ParseNumber(std::string_view text);

/// True for a Date and for text that ParseDate reads. A number is not a date.
bool IsDate(const Variant& value);

/// Strict date conversion: a Date, text that ParseDate reads, a number as day count (its fraction, a time of
/// day, is dropped), Empty as day 0. Raises TypeMismatch for anything else, Overflow for a number outside the
/// valid days.
Date ToDate(const Variant& value);

/// Date text: "1/31/2001", "2001-01-31", "31 January 2001", "January 31, 2001", "31-Jan-2001", each with an
/// optional time of day, which is dropped. Years 0 to 29 are in the 2000s, 30 to 99 in the 1900s. A month and
/// a year are the first of the month. Nothing for any other text, such as one without a year.
std::optional<Date> ParseDate(std::string_view text);

/// The nearest whole number, halves to even. Raises Overflow outside the type's range (and for NaN).
std::uint8_t ToByte(double value);
std::int16_t ToInteger(double value);
std::int32_t ToLong(double value);

/// The value as text: numbers with up to 15 significant digits, "True" or "False", a Date as "m/d/yyyy",
/// Empty as "". Raises TypeMismatch for Null, Missing and arrays.
std::string ToText(const Variant& value);

/// A number's text with up to 15 significant digits ("0.1", "1E+20", "-3"). Raises Overflow when it is not
/// finite.
std::string NumberText(double value);

}  // namespace amortix2
