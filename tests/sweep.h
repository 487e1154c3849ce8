#pragma once

#include <cstdlib>

namespace amortix2 {

/// How many cases a sweep runs: a sample, or the whole where AMORTIX2_ALL is set (`./dev test --all`).
inline int Cases(int sample, int whole) { return std::getenv("AMORTIX2_ALL") ? whole : sample; }

}  // namespace amortix2
