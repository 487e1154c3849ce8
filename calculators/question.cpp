#include "amortix2/calculators/question.h"

#include "amortix2/automation/error.h"

namespace amortix2::calculators {

void RequireOneUnknown(std::initializer_list<Quantity> quantities) {
  bool hasUnknown = false;
  for (const Quantity& quantity : quantities) {
    if (quantity.isGiven) continue;
    if (hasUnknown) Raise(ErrorNumber::InvalidProcedureCall, quantity.name);
    hasUnknown = true;
  }
}

}  // namespace amortix2::calculators
