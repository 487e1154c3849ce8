#include "amortix2/automation/decimal.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "amortix2/automation/error.h"

namespace amortix2 {

// The digits are cut, not rounded, out of the exact decimal value, so that the one behind the last tells a
// half.
Decimal::Decimal(double value) {
  if (!std::isfinite(value)) Raise(ErrorNumber::Overflow);
  constexpr int kExactDigits = 767;           // no double has more
  std::array<char, kExactDigits + 8> text{};  // d.ddd...e-ddd
  const auto written = std::to_chars(text.data(), text.data() + text.size(), std::abs(value),
                                     std::chars_format::scientific, kExactDigits - 1);
  digits_[0] = text[0];
  std::copy_n(text.data() + 2, digits_.size() - 1, digits_.data() + 1);
  count_ = static_cast<std::int64_t>(digits_.size());
  const char* exponent = text.data() + kExactDigits + 2;
  if (*exponent == '+') ++exponent;  // from_chars takes no plus
  std::from_chars(exponent, written.ptr, integerDigits_);
  ++integerDigits_;
  RoundTo(integerDigits_ - kSignificantDigits);
}

char Decimal::DigitAt(std::int64_t power) const noexcept {
  const std::int64_t index = integerDigits_ - 1 - power;
  return index >= 0 && index < count_ ? digits_[static_cast<std::size_t>(index)] : '0';
}

void Decimal::RoundTo(std::int64_t power) noexcept {
  const std::int64_t kept = integerDigits_ - power;
  if (kept >= count_) return;
  const bool up = kept >= 0 && digits_[static_cast<std::size_t>(kept)] >= '5';
  count_ = kept > 0 ? kept : 0;
  if (!up) return DropTrailingZeros();
  // The carry passes over nines; what it leaves behind are zeros, which are not kept.
  while (count_ > 0 && digits_[static_cast<std::size_t>(count_ - 1)] == '9') --count_;
  if (count_ > 0) {
    ++digits_[static_cast<std::size_t>(count_ - 1)];
  } else {
    digits_[0] = '1';
    count_ = 1;
    ++integerDigits_;
  }
}

void Decimal::DropTrailingZeros() noexcept {
  while (count_ > 0 && digits_[static_cast<std::size_t>(count_ - 1)] == '0') --count_;
}

}  // namespace amortix2
