// Whatever the floating-point state of a host, a call gives the same bits and leaves the state as it was.

#include <gtest/gtest.h>

#include <cfenv>
#include <vector>

#include "amortix2/component/invocation.h"
#include "support.h"

namespace amortix2 {
namespace {

/// All arguments of a loan's calculation, or the number of the error that it raises.
std::vector<Variant> LoanOf(double amount) {
  const ClassInfo& type = *FindClass("Calculator");
  Object calculator(type, kClock);
  Invocation call(*FindMember(type, "SimpleLoanCalculator"));
  const Variant given[] = {"", amount, 0.0, 360.0, 6.5};
  for (std::size_t i = 0; i < std::size(given); ++i) {
    call.Arguments()[i].Type().write(call.Arguments()[i].Get(), given[i]);
  }
  if (const auto error = ErrorOf([&] { call.Call(calculator); })) return {static_cast<std::int32_t>(*error)};
  std::vector<Variant> all;
  for (const Value& value : call.Arguments()) all.push_back(value.Type().read(value.Get()));
  return all;
}

#ifdef __GLIBC__
TEST(HostArithmetic, StateNeitherReachesACallNorChanges) {
  const std::vector<Variant> loan = LoanOf(200000);
  const std::vector<Variant> overflow = LoanOf(1e308);
  EXPECT_EQ(overflow, std::vector<Variant>{6});
  for (const int rounding : {FE_TONEAREST, FE_TOWARDZERO, FE_UPWARD, FE_DOWNWARD}) {
    for (const int traps : {0, FE_OVERFLOW | FE_INVALID | FE_DIVBYZERO, FE_ALL_EXCEPT}) {
      std::fenv_t usual;
      std::feholdexcept(&usual);
      std::fesetround(rounding);
      feenableexcept(traps);
      const std::vector<Variant> sameLoan = LoanOf(200000);
      const std::vector<Variant> sameOverflow = LoanOf(1e308);
      const bool kept =
          std::fegetround() == rounding && fegetexcept() == traps && std::fetestexcept(FE_ALL_EXCEPT) == 0;
      std::fesetenv(&usual);
      EXPECT_TRUE(kept && sameLoan == loan && sameOverflow == overflow) << rounding << ' ' << traps;
    }
  }
}
#endif

}  // namespace
}  // namespace amortix2
