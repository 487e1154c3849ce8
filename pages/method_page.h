#pragma once

// How the figures are made: rounding, rates, dates, today's money; and what they are not.

#include "amortix2/pages/site.h"

namespace amortix2::pages {

Page MethodPage();

}  // namespace amortix2::pages
