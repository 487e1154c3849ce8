#pragma once

// A request: what to call, with which arguments, on an object with which settings. As JSON it is {"id": ...,
// "call": "CLASS.METHOD", "args": {...}, "with": {...}, "only": [...]}; a caller that has the parts makes a
// Request of them.
// Only the shape is settled here; names and values are looked at when the request is carried out.

#include <optional>
#include <string_view>
#include <vector>

#include "amortix2/json/tree.h"

namespace amortix2::json {

/// Refers to what it was made of.
struct Request {
  std::string_view call;
  const Fields& arguments;
  const Fields& settings;  ///< applied to the fresh object in this order, before the call
  /// The results that are wanted by name, "return" and "response" too; all when there is no list.
  std::optional<std::vector<std::string_view>> only{};
};

/// Raises RequestError when the JSON is no request.
Request ReadRequest(const Tree& tree);

}  // namespace amortix2::json
