#include "amortix2/cli/failure.h"

#include <utility>

#include "amortix2/cli/request_error.h"

namespace amortix2::cli {
namespace {

Failure Of(ErrorNumber number) noexcept { return {number, ErrorName(number)}; }

Failure Of(RequestError& error) noexcept {
  const ErrorNumber number = error.Number();
  return {number, number == ErrorNumber{0} ? "BadRequest" : ErrorName(number), error.TakeMessage(), true};
}

}  // namespace

Failure CurrentFailure() noexcept {
  try {
    throw;
  } catch (RequestError& error) {
    return Of(error);
  } catch (...) {
    return Of(CurrentErrorNumber());
  }
}

}  // namespace amortix2::cli
