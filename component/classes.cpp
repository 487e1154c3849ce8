#include "amortix2/component/classes.h"

#include <array>

namespace amortix2 {

std::span<const ClassInfo* const> Classes() noexcept {
  static constexpr std::array<const ClassInfo*, 5> kClasses{
      &kCalculatorClass, &kBarChartClass, &kGifChartClass, &kInvestmentStrategyClass, &kSvgChartClass};
  return kClasses;
}

}  // namespace amortix2
