#pragma once

// The site's addresses as OpenAPI 3.1 has them, made of the description: a page for each calculator with its
// inputs, and the addresses for programs (api.h).

#include <string>

namespace amortix2::pages {

std::string OpenApiJson();

}  // namespace amortix2::pages
