#pragma once

// What the component offers, for a person to read: classes with their members, or one member with all that is
// to be known for calling it.

#include <string>
#include <string_view>

namespace amortix2::cli {

/// `name` is empty (everything), "CLASS" or "CLASS.MEMBER". Raises RequestError for a name that is not there.
std::string Listing(std::string_view name);

}  // namespace amortix2::cli
