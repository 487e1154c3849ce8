#pragma once

// What a chart makes for a page: the bytes that it sent to the page, or the picture, markup or words that it
// returned.

#include <string>
#include <string_view>

#include "amortix2/json/execution.h"

namespace amortix2::cli {

struct Product {
  std::string_view name;  ///< of the result that it is, or "response"
  std::string bytes;
};

/// Raises RequestError when the call made none.
Product ProductOf(const json::Execution& execution);

}  // namespace amortix2::cli
