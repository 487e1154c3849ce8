#pragma once

// What the server asks of the system that it runs on.

#include <cstddef>
#include <string>

namespace amortix2::web {

/// Lets the process have as many connections as `wanted`, and `more` for a moment. Returns how many of those
/// that were wanted the system grants, at least 1.
std::size_t RaiseFileLimit(std::size_t wanted, std::size_t more) noexcept;

/// The time in UTC in a format of strftime.
std::string UtcText(const char* format);

}  // namespace amortix2::web
