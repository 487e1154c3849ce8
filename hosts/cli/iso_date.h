#pragma once

// Dates as requests and replies write them, "YYYY-MM-DD", and in no other way.

#include <optional>
#include <string_view>

#include "amortix2/automation/date.h"

namespace amortix2::cli {

/// The day that "YYYY-MM-DD" names, years 0100 to 9999; nothing for any other text or a day that no month
/// has.
std::optional<Date> ParseIsoDate(std::string_view text);

}  // namespace amortix2::cli
