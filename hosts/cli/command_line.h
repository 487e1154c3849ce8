#pragma once

// The command line as a person typed it.

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "amortix2/automation/date.h"
#include "amortix2/cli/rows_format.h"
#include "amortix2/common/serving.h"

namespace amortix2::cli {

enum class Command { List, Call, Batch, Serve, Rows };

/// Their words, in that order.
inline constexpr std::array<std::string_view, 5> kCommands{"list", "call", "batch", "serve", "rows"};

/// What only rows takes.
struct RowsLine {
  Format from = Format::Csv;
  std::optional<Format> to;  ///< as the input is
  bool drop = false;         ///< columns that are no inputs are left out
  unsigned threads = 1;
  std::optional<std::string> sum;    ///< the schedule to add up
  std::vector<std::string> merge{};  ///< files of sums to add up instead of calls
};

struct CommandLine {
  Command command{};
  std::string target;                  ///< call, rows: CLASS.METHOD, or less where that is enough
  std::vector<std::string> names;      ///< list: what; empty for everything
  std::vector<std::string> arguments;  ///< NAME=VALUE
  std::vector<std::string> settings;   ///< NAME=VALUE
  bool json = false;
  bool types = false;
  bool notes = false;              ///< batch: notes in the replies
  bool strangers = false;          ///< batch: requests are written by strangers
  bool help = false;               ///< call: the page of the method
  std::vector<std::string> only;   ///< names of results; empty for all
  std::optional<std::string> csv;  ///< the name of a result
  std::optional<std::string> out;  ///< the file for the page's response, or "-"
  std::optional<Date> today;       ///< instead of the machine's date
  Serving serving;                 ///< serve
  RowsLine rows;
};

/// Exit statuses.
inline constexpr int kSuccess = 0;
inline constexpr int kComponentError = 1;  ///< the component raised an error
inline constexpr int kBadRequest = 2;      ///< a wrong command line or request
inline constexpr int kInputOutput = 3;     ///< reading or writing failed
inline constexpr int kRowsFailed = 10;     ///< rows: and as many more as rows failed, 100 at most

/// What --help prints of a command.
std::string HelpOf(const std::string& command);

/// Nothing when the program has only to end with `status`: help was asked for and printed, or the command
/// line was wrong and the reason has been written to standard error. Raises std::system_error when it cannot
/// be printed.
std::optional<CommandLine> ReadCommandLine(int argc, const char* const* argv, int& status);

}  // namespace amortix2::cli
