#pragma once

// The command line as a person typed it.

#include <optional>
#include <string>
#include <vector>

#include "amortix2/automation/date.h"

namespace amortix2::cli {

enum class Command { List, Call, Batch };

struct CommandLine {
  Command command{};
  std::string target;                  ///< list: what, empty for everything; call: CLASS.METHOD
  std::vector<std::string> arguments;  ///< NAME=VALUE
  std::vector<std::string> settings;   ///< NAME=VALUE
  bool json = false;
  bool types = false;
  std::optional<std::string> out;  ///< the file for the page's response
  std::optional<Date> today;       ///< instead of the machine's date
};

/// Exit statuses.
inline constexpr int kSuccess = 0;
inline constexpr int kComponentError = 1;  ///< the component raised an error
inline constexpr int kBadRequest = 2;      ///< a wrong command line or request
inline constexpr int kInputOutput = 3;     ///< reading or writing failed

/// Nothing when the program has only to end with `status`: help was asked for and printed, or the command
/// line was wrong and the reason has been written to standard error.
std::optional<CommandLine> ReadCommandLine(int argc, const char* const* argv, int& status);

}  // namespace amortix2::cli
