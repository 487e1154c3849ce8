#include "automation/decimal.h"

#include <charconv>
#include <cmath>

namespace amortix2 {

Decimal::Decimal(double value) : count_(kDigits) {
  std::array<char, 32> text{};  // d.dddddddddddddde-ddd
  const auto written = std::to_chars(text.data(), text.data() + text.size(), std::abs(value),
                                     std::chars_format::scientific, kDigits - 1);
  digits_[0] = text[0];
  for (std::size_t i = 1; i < digits_.size(); ++i) digits_[i] = text[i + 1];
  const char* exponent = text.data() + kDigits + 2;  // after the "e"
  if (*exponent == '+') ++exponent;                  // from_chars takes no plus
  std::from_chars(exponent, written.ptr, integerDigits_);
  ++integerDigits_;
  DropTrailingZeros();
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
