#include "component/classes.h"

#include <array>

namespace amortix2 {

std::span<const ClassInfo* const> Classes() noexcept {
  static constexpr std::array<const ClassInfo*, 1> kClasses{&kCalculatorClass};
  return kClasses;
}

}  // namespace amortix2
