#pragma once

// The files that are made of the description for people and their shells. Nothing in them is written by hand
// but what binds them together.

#include <string>
#include <string_view>
#include <vector>

namespace amortix2::cli {

/// docs/calculators.md: every member but the charts', the survey, the records and the enumerations.
std::string CalculatorsGuide();

/// docs/chart_reference.md: the chart classes with their settings.
std::string ChartReference();

/// The manual page amortix2(1). `usage` is what the program prints for --help, by command.
struct Usage {
  std::string_view command;
  std::string help;
};
std::string ManualPage(std::string_view version, const std::vector<Usage>& usage);

}  // namespace amortix2::cli
