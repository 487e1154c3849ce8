#include "amortix2/web/target.h"

#include <algorithm>

namespace amortix2::web {

bool IsVisible(std::string_view text) noexcept {
  return std::ranges::all_of(text, [](char c) { return c > ' ' && c < '\x7f'; });
}

std::optional<Target> ReadTarget(std::string_view text) noexcept {
  constexpr std::string_view kScheme = "http://";
  if (text.starts_with(kScheme)) {
    const std::size_t slash = text.find('/', kScheme.size());
    text = slash == std::string_view::npos ? "/" : text.substr(slash);
  }
  if (!text.starts_with('/') || text.find('#') != std::string_view::npos || !IsVisible(text)) {
    return std::nullopt;
  }
  const std::size_t mark = text.find('?');
  return Target{text.substr(0, mark), mark == std::string_view::npos ? "" : text.substr(mark + 1)};
}

}  // namespace amortix2::web
