#pragma once

// amortix2 rows: one call for each row of a table, from standard input to standard output, in constant
// memory.

#include <functional>
#include <string>

#include "amortix2/automation/date.h"
#include "amortix2/cli/command_line.h"

namespace amortix2::cli {

/// Answers row after row, or adds the rows' schedules up (--sum), or adds such sums (--merge). A row that
/// fails says so in its place, and the first of them through `say`, which writes a line for a person. Returns
/// the exit status: 0, or kRowsFailed and one more for each row that failed, 100 at most. Raises RequestError
/// for a command that cannot be carried out, std::system_error when reading or writing fails.
int RunRows(const CommandLine& line, const Clock& clock, const std::function<void(const std::string&)>& say);

}  // namespace amortix2::cli
