#pragma once

// Requests line by line, each answered by one line, in the same order.

#include "amortix2/automation/date.h"
#include "amortix2/cli/variant_to_json.h"

namespace amortix2::cli {

/// Answers until the input ends. Replies are sent at the latest when no complete line is waiting. Raises
/// std::system_error when reading or writing fails.
void RunBatch(int input, int output, const Clock& clock, JsonForm form);

}  // namespace amortix2::cli
