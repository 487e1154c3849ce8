#pragma once

// What a request asks for, as its first line has it.

#include <optional>
#include <string_view>

namespace amortix2::web {

/// True when all bytes are visible ASCII.
bool IsVisible(std::string_view text) noexcept;

struct Target {
  std::string_view path;
  std::string_view query;  ///< without "?"
};

/// Nothing is decoded. A whole address is taken from its path on. Nothing for what is no target of a page.
std::optional<Target> ReadTarget(std::string_view text) noexcept;

}  // namespace amortix2::web
