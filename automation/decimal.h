#pragma once

// A double's decimal digits, as far as a double is sure of them: 15 significant digits and the place of the
// decimal point. Numbers are written and number formats round from these digits, so that 2.675 is a half
// although its binary value lies just below one. Halves are rounded away from zero.

#include <array>
#include <cstdint>

namespace amortix2 {

class Decimal {
 public:
  static constexpr int kSignificantDigits = 15;

  /// The magnitude of a number; its sign is dropped. Raises Overflow for infinities and NaN.
  explicit Decimal(double value);

  bool IsZero() const noexcept { return count_ == 0; }

  /// Digits in front of the decimal point; 0 when the first digit stands right behind the point, negative
  /// when zeros do. 0 for zero.
  std::int64_t IntegerDigits() const noexcept { return IsZero() ? 0 : integerDigits_; }

  /// The digit, '0' to '9', that counts 10 to the `power`.
  char DigitAt(std::int64_t power) const noexcept;

  /// The power of the lowest digit that is not zero; 0 for zero.
  std::int64_t LowestPower() const noexcept { return IsZero() ? 0 : integerDigits_ - count_; }

  /// Multiplies by 10 to the `power`.
  void Scale(std::int64_t power) noexcept { integerDigits_ += power; }

  /// Rounds to a multiple of 10 to the `power`.
  void RoundTo(std::int64_t power) noexcept;

 private:
  void CutBinary(double value) noexcept;
  void CutText(double value) noexcept;
  void DropTrailingZeros() noexcept;

  // One more than the significant ones, from which these are rounded.
  std::array<char, kSignificantDigits + 1> digits_{};
  std::int64_t count_ = 0;  // of digits, the last of which is not '0'
  std::int64_t integerDigits_ = 0;
};

}  // namespace amortix2
