#pragma once

// The first page: all calculators in their groups with a line each, and a search among them.

#include "amortix2/component/description.h"
#include "amortix2/pages/query.h"
#include "amortix2/pages/site.h"

namespace amortix2::pages {

/// True for members that have a page: those that find something for people, not charts and records.
bool HasPage(const ClassMember& member);

/// `q` holds the words that are looked for.
Page HomePage(const Query& query);

}  // namespace amortix2::pages
