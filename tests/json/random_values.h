#pragma once

// Values that nobody planned for: random variants of every type, with the numbers, texts and arrays that
// break things mixed with plausible ones.

#include <cfloat>
#include <cstdint>
#include <string>
#include <string_view>

#include "amortix2/automation/array.h"
#include "amortix2/automation/variant.h"
#include "random.h"

namespace amortix2 {

class RandomValues {
 public:
  explicit RandomValues(Random& random) : random_(random) {}

  std::int64_t Pick(std::int64_t count) { return random_.Below(count); }

  /// Of lines, months, payments or steps: mostly a few, some below 0, some beyond 16 bits.
  std::int64_t Count() {
    constexpr std::int64_t kFar = 40'000;
    return Pick(2) == 0 ? Pick(60) - 20 : Pick(2 * kFar + 1) - kFar;
  }

  double Number() {
    static constexpr double kNumbers[] = {
        0.0,    -0.0,   1.0,      -1.0,    0.5,          6.5,          12.0,   30.0, 60.0,   100.0, 360.0,
        1264.1, 2e5,    -12345.0, 32767.5, 2147483647.5, 4294967296.0, 0x1p53, 1e15, 1e16,   1e100, 1e308,
        -1e308, 5e-324, 2.2e-308, 1e-7,    -99.999,      1200.0,       1e9,    -1e9, DBL_MAX};
    if (Pick(8) == 0) return static_cast<double>(Count());
    if (Pick(3) > 0) return random_.OneOf(kNumbers);
    return 2000 * (random_.Unit() - 0.5);
  }

  Variant Any(int depth = 2) {
    const std::int64_t type = Pick(depth > 0 ? 14 : 12);
    if (type == 0) return {};
    if (type == 1) return kNull;
    if (type == 2) return kMissing;
    if (type == 3) return Pick(2) == 0;
    if (type == 4) return static_cast<std::uint8_t>(Pick(256));
    if (type == 5) return static_cast<std::int16_t>(Pick(4) == 0 ? Pick(65536) - 32768 : Pick(500));
    if (type == 6) return static_cast<std::int32_t>(Pick(4) == 0 ? Pick(1LL << 32) - (1LL << 31) : Count());
    if (type == 7) return Currency{Pick(2) == 0 ? Pick(INT64_MAX) - (1LL << 62) : Pick(10'000'000)};
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
    static constexpr std::string_view kTexts[] = {
        "",           "abc",        "nan",       "inf",       "-inf",
        "1e308",      "1e400",      "-1",        "$1,234.56", "(5)",
        "&HFF",       "2001-01-31", "1/31/2001", "C",         "OL",
        "SR",         "HR",         "LINE",      "HZ",        "6,5",
        "31 January", "9999-12-31", "0",         " 12 ",      "\xC3\xA9\xE2\x82\xAC",
        "#,##0.00"};
    if (Pick(8) > 0) return std::string(random_.OneOf(kTexts));
    std::string text(static_cast<std::size_t>(Pick(30)), ' ');
    for (char& c : text) c = static_cast<char>(Pick(128));
    return text;
  }

 private:
  Random& random_;
};

}  // namespace amortix2
