#include "amortix2/cli/request_error.h"

namespace amortix2::cli {

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

}  // namespace amortix2::cli
