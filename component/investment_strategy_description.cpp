#include "amortix2/component/classes.h"
#include "amortix2/component/describe.h"
#include "amortix2/component/parameter_descriptions.h"
#include "amortix2/component/survey_description.h"
#include "amortix2/strategy/investment_strategy.h"

namespace amortix2 {
namespace {

using namespace describing;  // NOLINT(google-build-using-namespace): the words of descriptions

constexpr auto kDescription = describe<InvestmentStrategy>(
    "Investment strategy", "Maps the answers to a risk questionnaire to an investment profile.",
    method<&InvestmentStrategy::AssetAllocation>(
        {.number = 1,
         .group = Group::Survey,
         .title = "Investment profile",
         .address = "invest",
         .help = "Finds the profile, 1 (most cautious) to 5 (most aggressive), and splits an amount by it.",
         .finds =
             {{.figure = "vStratNumber",
               .sentences = {{"Your profile is {vStratTitle}: {vResult(1,1)} short term, {vResult(2,1)} in "
                              "stocks and {vResult(3,1)} in bonds."}}}},
         .charts = {{.title = "Where the money goes",
                     .kind = ChartKind::Columns,
                     .perYear = false,
                     .series = {{"Amount", "vResult", 1}}}}},
        {Money("vInvAmount", "Amount to invest", "Amount to invest").Example("10000"),
         Input("vSurvey", "Answers", Unit::List,
               "Answers from index 1 on: numbers, or letters from A (1) to E (5)")
             .Asks(kRiskSurvey)
             .Example(R"([null, "D", "C", "D", "C", "C"])"),
         Result("vStratNumber", "Profile", Unit::Count, "1 (most cautious) to 5 (most aggressive)"),
         Result("vStratTitle", "Profile's name", Unit::Text, "Title of the profile"),
         Result("vStratDesc", "About the profile", Unit::Text, "Description of the profile"),
         Result("vResult", "Allocation", Unit::Table, "Rows 1 to 3: asset class and amount")
             .Of(kAllocation)}));

}  // namespace

constinit const ClassInfo kInvestmentStrategyClass = ClassTables<InvestmentStrategy, kDescription>::Info();

}  // namespace amortix2
