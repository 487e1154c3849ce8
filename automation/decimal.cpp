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
  value = std::abs(value);
  if (value >= 1 && value < 0x1p53) {
    CutBinary(value);
  } else {
    CutText(value);
  }
  RoundTo(integerDigits_ - kSignificantDigits);
}

// From 1 up to 2^53 a double is a whole number and a fraction of at most 52 bits, so that each of its digits
// comes out of a 64-bit product that is exact.
void Decimal::CutBinary(double value) noexcept {
  constexpr int kFractionBits = 52;
  const auto whole = static_cast<std::uint64_t>(value);
  char* const end = std::to_chars(digits_.data(), digits_.data() + digits_.size(), whole).ptr;
  integerDigits_ = end - digits_.data();
  auto rest = static_cast<std::uint64_t>((value - static_cast<double>(whole)) * 0x1p52);
  for (char* digit = end; digit != digits_.data() + digits_.size(); ++digit) {
    rest *= 10;
    *digit = static_cast<char>('0' + (rest >> kFractionBits));
    rest &= (std::uint64_t{1} << kFractionBits) - 1;
  }
  count_ = static_cast<std::int64_t>(digits_.size());
}

void Decimal::CutText(double value) noexcept {
  constexpr int kExactDigits = 767;           // no double has more
  std::array<char, kExactDigits + 8> text{};  // d.ddd...e-ddd
  const auto written = std::to_chars(text.data(), text.data() + text.size(), value,
                                     std::chars_format::scientific, kExactDigits - 1);
  digits_[0] = text[0];
  std::copy_n(text.data() + 2, digits_.size() - 1, digits_.data() + 1);
  count_ = static_cast<std::int64_t>(digits_.size());
  const char* exponent = text.data() + kExactDigits + 2;
  if (*exponent == '+') ++exponent;  // from_chars takes no plus
  std::from_chars(exponent, written.ptr, integerDigits_);
  ++integerDigits_;
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
