#pragma once

// Values that nobody planned for: random variants of every type, with the numbers, texts and arrays that
// break things mixed with plausible ones.

#include <array>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <string_view>

#include "amortix2/automation/array.h"
#include "amortix2/automation/variant.h"

namespace amortix2::testing {

class RandomValues {
 public:
  explicit RandomValues(std::uint64_t seed) : random_(seed) {}

  /// 0 to `count` - 1.
  std::int64_t Pick(std::int64_t count) {
    return static_cast<std::int64_t>(random_() % static_cast<std::uint64_t>(count));
  }

  template <class T, std::size_t N>
  T OneOf(const std::array<T, N>& values) {
    return values[random_() % N];
  }

  /// Of lines, months, payments or steps: mostly a few, some below 0, some beyond 16 bits.
  std::int64_t Count() {
    constexpr std::int64_t kFar = 40'000;
    return Pick(2) == 0 ? Pick(60) - 20 : Pick(2 * kFar + 1) - kFar;
  }

  double Number() {
    static constexpr std::array kNumbers{0.0,
                                         -0.0,
                                         1.0,
                                         -1.0,
                                         0.5,
                                         6.5,
                                         12.0,
                                         30.0,
                                         60.0,
                                         100.0,
                                         360.0,
                                         1264.1,
                                         2e5,
                                         -12345.0,
                                         32767.5,
                                         2147483647.5,
                                         4294967296.0,
                                         0x1p53,
                                         1e15,
                                         1e16,
                                         1e100,
                                         1e308,
                                         -1e308,
                                         5e-324,
                                         2.2e-308,
                                         1e-7,
                                         -99.999,
                                         1200.0,
                                         1e9,
                                         -1e9,
                                         std::numeric_limits<double>::max()};
    if (Pick(8) == 0) return static_cast<double>(Count());
    if (Pick(3) > 0) return OneOf(kNumbers);
    return std::uniform_real_distribution<>(-1000, 1000)(random_);
  }

  Variant Any(int depth = 2) {
    const std::int64_t type = Pick(depth > 0 ? 14 : 12);
    if (type == 0) return {};
    if (type == 1) return kNull;
    if (type == 2) return kMissing;
    if (type == 3) return Pick(2) == 0;
    if (type == 4) return static_cast<std::uint8_t>(random_());
    if (type == 5) return static_cast<std::int16_t>(Pick(4) == 0 ? random_() : random_() % 500);
    if (type == 6)
      return static_cast<std::int32_t>(Pick(4) == 0 ? random_() : static_cast<std::uint64_t>(Count()));
    if (type == 7)
      return Currency{static_cast<std::int64_t>(Pick(2) == 0 ? random_() : random_() % 10'000'000)};
    if (type == 8) {
      const std::int64_t days = std::int64_t{kLastDay.serial} - kFirstDay.serial + 1;
      return Date{static_cast<std::int32_t>(kFirstDay.serial + Pick(days))};
    }
    if (type == 9) return std::string_view(Text());
    return type < 12 ? Variant(Number()) : AnyArray(depth - 1);
  }

  Variant AnyArray(int depth) {
    const auto bounds = [&] {
      const auto lower = static_cast<std::int32_t>(Pick(4) == 0 ? Pick(9) - 4 : Pick(2));
      return Bounds{lower, lower + static_cast<std::int32_t>(Pick(6)) - 1};
    };
    // A table without rows cannot say how many columns it has.
    const Bounds rows = bounds();
    Array array = rows.Count() == 0 || Pick(2) == 0 ? Array(rows) : Array(rows, bounds());
    for (Variant& cell : array.Cells()) cell = Any(depth);
    return array;
  }

  std::string Text() {
    static constexpr std::array<std::string_view, 26> kTexts{
        "",           "abc",        "nan",       "inf",       "-inf",
        "1e308",      "1e400",      "-1",        "$1,234.56", "(5)",
        "&HFF",       "2001-01-31", "1/31/2001", "C",         "OL",
        "SR",         "HR",         "LINE",      "HZ",        "6,5",
        "31 January", "9999-12-31", "0",         " 12 ",      "\xC3\xA9\xE2\x82\xAC",
        "#,##0.00"};
    if (Pick(8) > 0) return std::string(OneOf(kTexts));
    std::string text(static_cast<std::size_t>(Pick(30)), ' ');
    for (char& c : text) c = static_cast<char>(Pick(128));
    return text;
  }

 private:
  std::mt19937_64 random_;
};

}  // namespace amortix2::testing
