// All members of Calculator. A new one is described in the header of its group, at the place where it is to
// be shown, with the next free number.

#include "amortix2/component/classes.h"
#include "amortix2/component/comparison_descriptions.h"
#include "amortix2/component/household_descriptions.h"
#include "amortix2/component/mortgage_descriptions.h"
#include "amortix2/component/record_entry_descriptions.h"
#include "amortix2/component/savings_descriptions.h"

namespace amortix2 {
namespace {

constexpr auto kDescription = describe<Calculator>(
    "Calculator",
    "Answers personal-finance questions: loans, leases, mortgages, refinancing, savings and retirement.",
    std::tuple_cat(describing::kLoanMembers, describing::kLeaseMembers, describing::kMortgageMembers,
                   describing::kComparisonMembers, describing::kHouseholdMembers,
                   describing::savings::kMembers, describing::savings::kRetirementMembers,
                   describing::kRecordMembers));

}  // namespace

constinit const ClassInfo kCalculatorClass = describing::ClassTables<Calculator, kDescription>::Info();

}  // namespace amortix2
