// Prints one number for each function whose bits could differ from platform to platform: a checksum of its
// results over many arguments, ties and their neighbours among them. Built for every platform; the lines must
// be the same.
//
// With the argument "short" the older floating-point unit is told to keep 53 bits, as some hosts do to a DLL.

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/number_format.h"
#include "amortix2/engine/elementary.h"
#include "amortix2/engine/rounding.h"

using namespace amortix2;

namespace {

void Mix(std::uint64_t& sum, std::uint64_t bits) { sum = (sum ^ bits) * 1099511628211U; }
void Mix(std::uint64_t& sum, double value) { Mix(sum, std::bit_cast<std::uint64_t>(value)); }
void Mix(std::uint64_t& sum, const std::string& text) {
  for (const char c : text) Mix(sum, static_cast<std::uint64_t>(c));
}

class Arguments {
 public:
  /// A double between -2^`power` and 2^`power`, of any size in between.
  double Next(int power) {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    const double fraction = static_cast<double>(state_ >> 11) * 0x1p-53;
    return std::ldexp(state_ & 1024 ? fraction : -fraction,
                      static_cast<int>(state_ >> 20 & 63) % (power + 10) - 10);
  }

  /// A half of 1 / `scale`, or a double next to one.
  double Tie(double scale) {
    const double half = (std::floor(Next(40)) + 0.5) / scale;
    const auto step = static_cast<int>(state_ >> 33 & 3);
    return step > 1 ? half : std::nextafter(half, step == 0 ? -1e300 : 1e300);
  }

 private:
  std::uint64_t state_ = 20010131;
};

template <class Function>
void Print(const char* name, int count, Function function) {
  Arguments arguments;
  std::uint64_t sum = 14695981039346656037U;
  for (int i = 0; i < count; ++i) Mix(sum, function(arguments));
  std::printf("%s %llx\n", name, static_cast<unsigned long long>(sum));
}

#ifdef _WIN32
void KeepFewerBits() {
  std::uint16_t control = 0;
  asm volatile("fnstcw %0" : "=m"(control));
  control = static_cast<std::uint16_t>((control & ~0x300) | 0x200);
  asm volatile("fldcw %0" : : "m"(control));
}
#endif

}  // namespace

int main(int count, char**) {
#ifdef _WIN32
  if (count > 1) KeepFewerBits();
#endif
  static_cast<void>(count);
  Print("cents", 500000, [](Arguments& a) { return RoundToCents(a.Next(50)); });
  Print("cents' halves", 500000, [](Arguments& a) { return RoundToCents(a.Tie(100)); });
  Print("mills' halves", 500000, [](Arguments& a) { return RoundToMills(a.Tie(1000)); });
  Print("powers", 100000,
        [](Arguments& a) { return Power(1 + a.Next(0) / 8, static_cast<std::int32_t>(a.Next(9))); });
  Print("exponentials", 200000, [](Arguments& a) { return Exponential(a.Next(9)); });
  Print("logarithms", 200000, [](Arguments& a) { return NaturalLogarithm(std::abs(a.Next(50))); });
  Print("real powers", 200000, [](Arguments& a) { return RealPower(std::abs(a.Next(4)), a.Next(5)); });
  Print("whole numbers", 200000, [](Arguments& a) { return double{ToLong(a.Next(30)) + 0.0}; });
  Print("texts", 100000, [](Arguments& a) { return NumberText(a.Next(50)); });
  Print("formats", 100000, [](Arguments& a) { return NumberPattern("$#,##0.00").Format(a.Tie(100)); });
  Print("numbers", 100000, [](Arguments& a) { return ParseNumber(std::to_string(a.Next(40))).value(); });
}
