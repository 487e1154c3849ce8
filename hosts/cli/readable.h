#pragma once

// The answer of a call as a person reads it: the results that are single values by name and unit, then
// tables, records and texts, each under its name.

#include <string>

#include "amortix2/json/execution.h"

namespace amortix2::cli {

/// The by-reference results that have changed and what the method returned, of a request that was carried
/// out with Keep::GivenToo and did not fail. What went to the page's response is only mentioned.
std::string ReadableAnswer(const json::Execution& execution);

}  // namespace amortix2::cli
