#include "amortix2/automation/standard_arithmetic.h"

#if defined(__i386__) || defined(__x86_64__)
#include <xmmintrin.h>
#endif

namespace amortix2 {

#if defined(__i386__) || defined(__x86_64__)
namespace {

/// Nothing trapped, nearest rounding, subnormal numbers kept; no flag raised.
constexpr std::uint32_t kSse = 0x1F80;

/// The same, with all 64 bits of precision; 53 do as well, since no more than doubles are computed.
constexpr std::uint16_t kX87 = 0x37F;
constexpr std::uint16_t kX87Matters = 0xE3F;  // all but the lower bit of the precision, and reserved bits

std::uint16_t X87Control() noexcept {
  std::uint16_t control = 0;
  asm volatile("fnstcw %0" : "=m"(control));
  return control;
}

}  // namespace

StandardArithmetic::StandardArithmetic() noexcept
    : sse_(_mm_getcsr()), x87Changed_((X87Control() & kX87Matters) != (kX87 & kX87Matters)) {
  _mm_setcsr(kSse);
  if (!x87Changed_) return;
  // Neither instruction waits for a trap that the host has pending.
  asm volatile("fnstenv %0" : "=m"(x87_));
  asm volatile("fnclex\n\tfldcw %0" : : "m"(kX87));
}

StandardArithmetic::~StandardArithmetic() {
  if (x87Changed_) asm volatile("fldenv %0" : : "m"(x87_));
  _mm_setcsr(sse_);
}
#else
StandardArithmetic::StandardArithmetic() noexcept : before_{} {
  std::fegetenv(&before_);
  std::fesetenv(FE_DFL_ENV);
}

StandardArithmetic::~StandardArithmetic() { std::fesetenv(&before_); }
#endif

}  // namespace amortix2
