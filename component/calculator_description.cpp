#include "component/classes.h"
#include "component/comparison_descriptions.h"
#include "component/loan_descriptions.h"
#include "component/savings_descriptions.h"

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
