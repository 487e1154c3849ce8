#include "amortix2/json/request_error.h"

namespace amortix2::json {

std::string_view Shortened(std::string_view text) noexcept {
  constexpr std::size_t kShown = 60;
  if (text.size() <= kShown) return text;
  std::size_t end = kShown;
  // A character is not cut into its bytes.
  while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) --end;
  return text.substr(0, end);
}

std::string Quoted(std::string_view text) {
  const std::string_view shown = Shortened(text);
  return '"' + std::string(shown) + (shown.size() < text.size() ? "...\"" : "\"");
}

Failure CurrentFailure() noexcept {
  try {
    throw;
  } catch (RequestError& error) {
    const ErrorNumber number = error.Number();
    return {number, number == ErrorNumber{0} ? "BadRequest" : ErrorName(number), error.TakeMessage(), true};
  } catch (...) {
    const ErrorNumber number = CurrentErrorNumber();
    return {number, ErrorName(number)};
  }
}

}  // namespace amortix2::json
