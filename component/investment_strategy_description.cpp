#include "amortix2/component/classes.h"
#include "amortix2/component/describe.h"
#include "amortix2/component/investment_strategy.h"

namespace amortix2 {
namespace {

constexpr auto kDescription = describe<InvestmentStrategy>(
    "Maps the answers to a risk questionnaire to an investment profile.",
    method<&InvestmentStrategy::AssetAllocation>(
        "Finds the profile, 1 (most cautious) to 5 (most aggressive), and splits an amount by it.",
        {{"vInvAmount", Unit::Currency, "Amount to invest"},
         {"vSurvey", Unit::List, "Answers from index 1 on: numbers, or letters from A (1) to E (5)"},
         {"vStratNumber", Unit::Count, "Number of the profile"},
         {"vStratTitle", Unit::Text, "Title of the profile"},
         {"vStratDesc", Unit::Text, "Description of the profile"},
         {"vResult", Unit::Table, "Rows 1 to 3: asset class and amount"}}));

constexpr auto kMembers = kDescription.Table();

}  // namespace

constinit const ClassInfo kInvestmentStrategyClass = kDescription.Info(kMembers);

}  // namespace amortix2
