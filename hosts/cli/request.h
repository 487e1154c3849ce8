#pragma once

// A request as its JSON object says it: {"id": ..., "call": "CLASS.METHOD", "args": {...}, "with": {...}}.
// Only the shape is settled here; names and values are looked at when the call is made.

#include <string_view>

#include "amortix2/cli/json.h"

namespace amortix2::cli {

/// Refers to the JSON it was read from.
struct Request {
  std::string_view call;
  const Json::Fields& arguments;
  const Json::Fields& settings;  ///< applied to the fresh object in this order, before the call
};

/// Raises RequestError when the JSON is no request.
Request ReadRequest(const Json& json);

/// What is to be echoed as "id", whether the rest is a request or not; null when there is nothing.
const Json* FindId(const Json& json) noexcept;

}  // namespace amortix2::cli
