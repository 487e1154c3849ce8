#pragma once

// The floating-point state in which everything here computes: no exception is trapped, results are rounded to
// the nearest. A host may run in another one (some languages' runtimes trap overflows, some programs round
// another way), so what a host calls declares a StandardArithmetic before it computes.
//
// It never touches the state of other threads. The standard's own functions would do the same, but those of
// one of the platforms forget the SSE unit; they are used where neither that nor the x87 unit exists.

#if defined(__i386__) || defined(__x86_64__)
#include <cstdint>
#else
#include <cfenv>
#endif

namespace amortix2 {

/// Sets the standard state of the calling thread, and what was there again when it goes out of scope, also
/// past an exception: traps, rounding, precision, and the flags of the SSE unit. The x87 unit's flags stay as
/// they become when its state was a standard one already. They nest.
class StandardArithmetic {
 public:
  StandardArithmetic() noexcept;
  ~StandardArithmetic();
  StandardArithmetic(const StandardArithmetic&) = delete;
  StandardArithmetic& operator=(const StandardArithmetic&) = delete;

 private:
#if defined(__i386__) || defined(__x86_64__)
  std::uint32_t sse_;
  std::uint32_t x87_[7] = {};  // the unit's environment, if it had to be changed
  bool x87Changed_;
#else
  std::fenv_t before_;
#endif
};

}  // namespace amortix2
