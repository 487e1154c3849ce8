#pragma once

// The site's one style sheet and its icon.

#include <string_view>

namespace amortix2::pages {

/// text/css: light and dark as the reader's system has it, narrow and wide, on paper.
std::string_view StyleSheet() noexcept;

/// image/svg+xml
std::string_view Icon() noexcept;

}  // namespace amortix2::pages
