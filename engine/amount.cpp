#include "amortix2/engine/amount.h"

namespace amortix2 {

double RoundAside(double x) { return RoundToCents(x); }

}  // namespace amortix2
