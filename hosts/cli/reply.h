#pragma once

// What a call came to, as one JSON object on one line: {"id": ..., "results": {...}, "return": ...,
// "response":
// "<base64>"}, or {"id": ..., "error": {"number": ..., "name": ...}, "results": {...}}.

#include <string>
#include <string_view>

#include "amortix2/automation/date.h"
#include "amortix2/cli/call.h"
#include "amortix2/cli/json.h"
#include "amortix2/cli/variant_to_json.h"

namespace amortix2::cli {

/// A line longer than this is no request.
inline constexpr std::size_t kLongestLine = std::size_t{16} << 20;

/// The reply to a call; `id` may be null. A result that cannot be written makes it an error.
std::string ReplyTo(const Call& call, const Json* id, JsonForm form);

/// Answers one line of a batch, whatever is in it. An empty text: there was no memory even for an error.
std::string Answer(std::string_view line, const Clock& clock, JsonForm form) noexcept;

}  // namespace amortix2::cli
