#pragma once

// The door for programs: POST /call takes a request as `amortix2 batch` reads it and gives its reply,
// GET /api the description of all that there is, GET /openapi.json the same for makers of clients.

#include <optional>

#include "amortix2/automation/date.h"
#include "amortix2/pages/site.h"

namespace amortix2::pages {

/// Nothing for an address that is none of the three. A reply to /call has status 400 where the request itself
/// is at fault, and 200 also when the component raised an error, which the reply tells.
std::optional<Page> ApiPage(const Request& request, const Clock& clock);

}  // namespace amortix2::pages
