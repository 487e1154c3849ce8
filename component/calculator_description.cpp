#include "amortix2/component/classes.h"
#include "amortix2/component/comparison_descriptions.h"
#include "amortix2/component/loan_descriptions.h"
#include "amortix2/component/savings_descriptions.h"

namespace amortix2 {
namespace {

constexpr auto kDescription = describe<Calculator>(
    "Answers personal-finance questions: loans, leases, mortgages, refinancing, savings and retirement.",
    std::tuple_cat(describing::kRecordMembers, describing::kLoanMembers, describing::kComparisonMembers,
                   describing::kSavingsMembers));

constexpr auto kMembers = kDescription.Table();

}  // namespace

constinit const ClassInfo kCalculatorClass = kDescription.Info(kMembers);

}  // namespace amortix2
