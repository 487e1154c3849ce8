#pragma once

// A double's decimal digits, as far as a double is sure of them: 15 significant digits and the place of the
// decimal point. Number formats round on these digits, so that 2.675 is a half although its binary value lies
// just below one.

#include <array>
#include <cstdint>

namespace amortix2 {

class Decimal {
 public:
  /// The magnitude of a finite number, to the nearest 15 digits; the sign is dropped.
  explicit Decimal(double value);

  bool IsZero() const noexcept { return count_ == 0; }

  /// Digits in front of the decimal point; 0 below one, negative when zeros follow the point.
  std::int64_t IntegerDigits() const noexcept { return IsZero() ? 0 : integerDigits_; }

  /// The digit, '0' to '9', that counts 10 to the `power`.
  char DigitAt(std::int64_t power) const noexcept;

  /// The power of the lowest digit that is not zero; 0 for zero.
  std::int64_t LowestPower() const noexcept { return IsZero() ? 0 : integerDigits_ - count_; }

  /// Multiplies by 10 to the `power`.
  void Scale(std::int64_t power) noexcept { integerDigits_ += power; }

  /// Rounds to a multiple of 10 to the `power`, halves away from zero.
  void RoundTo(std::int64_t power) noexcept;

 private:
  static constexpr int kDigits = 15;

  void DropTrailingZeros() noexcept;

  std::array<char, kDigits> digits_{};  // the first `count_` are significant, the last of them not '0'
  std::int64_t count_ = 0;
  std::int64_t integerDigits_ = 0;
};

}  // namespace amortix2
