#pragma once

// What the component offers, for a person at a terminal to read.

#include <string>
#include <vector>

#include "amortix2/component/description.h"

namespace amortix2::cli {

/// The page of one member: what it asks, what it gives, an example with its answer, errors and notes.
std::string MemberPage(const ClassInfo& type, const MemberInfo& member);

/// What is called by these names, or all members when there are none. A name is that of a class, a
/// CLASS.MEMBER, a member, a member's short name, a record, an enumeration or a group; any other text is
/// looked for in titles and helps. `asJson`: the whole description for programs, whatever the names. Raises
/// RequestError for what is not found.
std::string ListingOf(const std::vector<std::string>& names, bool asJson = false);

}  // namespace amortix2::cli
