#pragma once

// The answer of a call as a person reads it: the results that are single values by name and unit, then
// tables, records and texts, each under its name.

#include <string>

#include "amortix2/cli/call.h"
#include "amortix2/cli/request.h"

namespace amortix2::cli {

/// The by-reference results that have changed and what the method returned, of a call that succeeded. What
/// went to the page's response is only mentioned.
std::string ReadableAnswer(const Call& call, const Request& request);

}  // namespace amortix2::cli
