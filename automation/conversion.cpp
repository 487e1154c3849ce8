#include "amortix2/automation/conversion.h"

#include <cmath>
#include <limits>

#include "amortix2/automation/error.h"

namespace amortix2 {
namespace {

constexpr double kCurrencyScale = 10'000;

/// The number that a variant is or reads as; nothing for all others, among them infinities and NaN, which no
/// calculation could go on with.
std::optional<double> NumberIn(const Variant& value) {
  switch (value.Type()) {
    case VariantType::Boolean:
      return value.GetBoolean() ? -1.0 : 0.0;
    case VariantType::Byte:
      return value.GetByte();
    case VariantType::Integer:
      return value.GetInteger();
    case VariantType::Long:
      return value.GetLong();
    case VariantType::Double:
      return std::isfinite(value.GetDouble()) ? std::optional(value.GetDouble()) : std::nullopt;
    case VariantType::Currency:
      return static_cast<double>(value.GetCurrency().scaled) / kCurrencyScale;
    case VariantType::String:
      return ParseNumber(value.GetString());
    default:
      return std::nullopt;
  }
}

/// A Currency's text: up to four decimals, all of its digits, which may be more than a double has.
std::string CurrencyText(Currency amount) {
  std::string text = std::to_string(amount.scaled);
  const std::size_t firstDigit = text.front() == '-' ? 1 : 0;
  const std::size_t digits = text.size() - firstDigit;
  constexpr std::size_t kDecimals = 4;
  if (digits <= kDecimals) text.insert(firstDigit, kDecimals + 1 - digits, '0');
  text.insert(text.size() - kDecimals, 1, '.');
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

std::string ShortDateText(Date date) {
  const CivilDate civil = ToCivil(date);
  return std::to_string(civil.month) + '/' + std::to_string(civil.day) + '/' + std::to_string(civil.year);
}

template <class Whole>
Whole NearestWhole(double value) {
  const double nearest = std::nearbyint(value);  // halves to even
  if (nearest >= std::numeric_limits<Whole>::min() && nearest <= std::numeric_limits<Whole>::max()) {
    return static_cast<Whole>(nearest);
  }
  Raise(ErrorNumber::Overflow);
}

}  // namespace

double NumericOrZero(const Variant& value) { return NumberIn(value).value_or(0.0); }

bool IsNumeric(const Variant& value) {
  return value.Type() == VariantType::Empty || NumberIn(value).has_value();
}

double ToDouble(const Variant& value) {
  if (value.Type() == VariantType::Empty) return 0.0;
  if (value.Type() == VariantType::Date) return value.GetDate().serial;
  if (const std::optional<double> number = NumberIn(value)) return *number;
  Raise(ErrorNumber::TypeMismatch);
}

bool IsDate(const Variant& value) {
  return value.Type() == VariantType::Date ||
         (value.Type() == VariantType::String && ParseDate(value.GetString()).has_value());
}

Date ToDate(const Variant& value) {
  if (value.Type() == VariantType::Date) return value.GetDate();
  if (value.Type() == VariantType::String) {
    if (const std::optional<Date> date = ParseDate(value.GetString())) return *date;
    Raise(ErrorNumber::TypeMismatch);
  }
  const double days = std::trunc(ToDouble(value));
  if (days < kFirstDay.serial || days > kLastDay.serial) Raise(ErrorNumber::Overflow);
  return Date{static_cast<std::int32_t>(days)};
}

std::uint8_t ToByte(double value) { return NearestWhole<std::uint8_t>(value); }
std::int16_t ToInteger(double value) { return NearestWhole<std::int16_t>(value); }
std::int32_t ToLong(double value) { return NearestWhole<std::int32_t>(value); }

std::string ToText(const Variant& value) {
  switch (value.Type()) {
    case VariantType::Empty:
      return {};
    case VariantType::Boolean:
      return value.GetBoolean() ? "True" : "False";
    case VariantType::Byte:
    case VariantType::Integer:
    case VariantType::Long:
    case VariantType::Double:
      return NumberText(ToDouble(value));
    case VariantType::Currency:
      return CurrencyText(value.GetCurrency());
    case VariantType::Date:
      return ShortDateText(value.GetDate());
    case VariantType::String:
      return std::string(value.GetString());
    default:
      Raise(ErrorNumber::TypeMismatch);
  }
}

}  // namespace amortix2
