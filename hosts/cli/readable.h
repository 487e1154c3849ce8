#pragma once

// The answer of a call as a person reads it: the sentence that answers, the results that are single values by
// name, value and title, then tables, records and texts, each under its name and with its titles.

#include <string>
#include <string_view>

#include "amortix2/cli/text_table.h"
#include "amortix2/json/execution.h"

namespace amortix2::cli {

struct Shown {
  Rows rows = Rows::All;
  bool sentence = true;
  std::string_view elsewhere{};  ///< the result that goes to a file ("response" too), so that it is left out
};

/// The by-reference results that have changed and what the method returned, of those that were asked for, of
/// a request that was carried out with Keep::GivenToo and did not fail. What went to the page's response is
/// only mentioned.
std::string ReadableAnswer(const json::Execution& execution, const Shown& shown);

}  // namespace amortix2::cli
