#include "amortix2/common/system_clock.h"

#include <ctime>

#include "amortix2/automation/error.h"

namespace amortix2 {
namespace {

bool ToLocal(std::time_t instant, std::tm& local) noexcept {
#ifdef _WIN32
  return localtime_s(&local, &instant) == 0;
#else
  return localtime_r(&instant, &local) != nullptr;
#endif
}

}  // namespace

Date SystemClock::Today() const {
  std::tm local{};
  if (!ToLocal(std::time(nullptr), local)) Raise(ErrorNumber::InvalidProcedureCall);
  return MakeDate(std::int64_t{local.tm_year} + 1900, std::int64_t{local.tm_mon} + 1, local.tm_mday);
}

}  // namespace amortix2
