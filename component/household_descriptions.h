#pragma once

// The members of Calculator that set two ways of a household side by side, described: several loans against
// one, and renting against buying.

#include "amortix2/component/comparison_descriptions.h"

namespace amortix2::describing {

inline constexpr HeadingInfo kCombinedColumns[] = {{"New loan"}};
inline constexpr TableInfo kCombinedGrid = Comparison(kCombinedColumns, 4);
inline constexpr HeadingInfo kSeveralColumns[] = {{"Current loan"}};
inline constexpr TableInfo kSeveralGrid{.title = "Current loans",
                                        .firstRow = 1,
                                        .columns = kSeveralColumns,
                                        .rows = std::span(kComparedRows).first(4),
                                        .repeats = true};

inline constexpr HeadingInfo kRentOrBuyColumns[] = {{"Rent"}, {"Buy"}};
inline constexpr HeadingInfo kRentOrBuyRows[] = {
    {"Monthly payment", Unit::Currency, Yearly::Nothing, Better::Lower},
    {"Paid up front", Unit::Currency, Yearly::Nothing, Better::Lower},
    {"Months compared", Unit::Months},
    {"All that is paid, in today's money", Unit::Currency, Yearly::Nothing, Better::Lower},
    {"Other charges of the first month", Unit::Currency, Yearly::Nothing, Better::Lower},
    {"Rents or loan payments", Unit::Currency, Yearly::Nothing, Better::Lower},
    {"Income tax saved", Unit::Currency, Yearly::Nothing, Better::Higher},
    {"Debt paid off at the sale, in today's money", Unit::Currency, Yearly::Nothing, Better::Lower},
    {"What the sale brings, in today's money", Unit::Currency, Yearly::Nothing, Better::Higher},
    {"Net cost in today's money", Unit::Currency, Yearly::Nothing, Better::Lower},
};
inline constexpr TableInfo kRentOrBuyGrid{
    .title = "Comparison", .firstRow = 1, .columns = kRentOrBuyColumns, .rows = kRentOrBuyRows};

inline constexpr auto kHouseholdMembers = std::tuple{
    method<&Calculator::LoanConsolidationCalculator>(
        {
            .number = 29,
            .group = Group::Comparisons,
            .title = "Consolidation",
            .address = "consolidate",
            .help = "Several current loans against one new loan for all of them.",
            .finds = {{.figure = "vGrid(4,1)",
                       .sentences =
                           {{.text = "The payment goes from {vCurrGrid(1,-1)} to {vGrid(1,1)} a month; in "
                                     "today's money the new loan costs less: {vGrid(4,1)} instead of "
                                     "{vCurrGrid(4,-1)}.",
                             .when = When::Below,
                             .figure = "vGrid(4,1)",
                             .than = "vCurrGrid(4,-1)"},
                            {"The payment goes from {vCurrGrid(1,-1)} to {vGrid(1,1)} a month; in "
                             "today's money the new loan costs no less: {vGrid(4,1)} instead of "
                             "{vCurrGrid(4,-1)}."}}}},
            .charts = {{.title = "The new loan's balance over the years",
                        .series = {{"New loan", "vNewDet", 5}}}},
            .lists = {{.title = "Current loan",
                       .inputs = {"vCurrBal", "vCurrPay", "vCurrRate"},
                       .most = 20,
                       .mostPayments = 360}},
            .comparison = {.current = {"vCurrGrid", -1}, .proposed = {"vGrid", 1}, .decides = kCostRow},
            .horizon = "vSellByDate",
        },
        {kCurrBal.Says("Owed on each current loan, a list").Example("[8000, 12000, 5000]"),
         kCurrPay
             .Says("Payment of each current loan a month; one below the interest: the whole debt, at once")
             .Example("[240, 380, 170]"),
         kCurrRate.Says("Nominal rate of each current loan a year").Example("[18.9, 8.5, 12]"),
         kIntRate.Named("vNewRate")
             .Titled("New rate")
             .Says("Nominal rate of the new loan a year")
             .Example("9"),
         kPoints, kFees.Example("150"),
         kPeriod.Named("vNewTerm").Titled("New term").Says("Monthly payments of the new loan").Example("60"),
         kIncTaxRate, kInvGrowthRate, kSellByDate.Example("36"),
         kGrid.Says("Payment, up-front cost, months and cost of the new loan").Of(kCombinedGrid),
         kGrid.Named("vCurrGrid")
             .Titled("Current loans")
             .Says("The same of each current loan, and in the last column of all together")
             .Of(kSeveralGrid),
         kCurrDet.Titled("Current loans' schedules")
             .Says("Schedules of the current loans side by side, six columns each")
             .Of(kSchedulesSideBySide),
         kNewLoanDet}),

    method<&Calculator::RentVsBuyComparison>(
        {
            .number = 30,
            .group = Group::Comparisons,
            .title = "Rent or buy",
            .address = "rent-or-buy",
            .help = "Renting a home against buying one, over the months that it would be kept.",
            .finds = {{.figure = "vGrid(10,2)",
                       .sentences =
                           {{.text = "Over {vGrid(3,1)} buying is the cheaper way: {vGrid(10,2)} in today's "
                                     "money after the sale, renting {vGrid(10,1)}.",
                             .when = When::Below,
                             .figure = "vGrid(10,2)",
                             .than = "vGrid(10,1)"},
                            {"Over {vGrid(3,1)} renting is the cheaper way: {vGrid(10,1)} in today's "
                             "money, buying {vGrid(10,2)} after the sale."}}}},
            .charts = {{.title = "Rents and loan payments over the years",
                        .kind = ChartKind::Columns,
                        .series = {{"Rent", "vRentDet", 2}, {"Loan payments", "vBuyDet", 2}}},
                       BalanceChart("vBuyDet")},
            .comparison = {.current = {"vGrid", 1}, .proposed = {"vGrid", 2}, .decides = 10},
            .horizon = "vSellByDate",
        },
        {MonthlyMoney("vRent", "Rent", "Rent a month in the first year").Example("1200"),
         kIntRate.Named("vRentInc")
             .Titled("Rise of the rent")
             .Says("Rise of the rent each year")
             .Span(-10, 20, 0.25)
             .Zero()
             .Example("3"),
         kInsurance.Named("vRentInsurance")
             .Titled("Tenant's charges")
             .Says("Tenant's insurance and other charges a month, which do not rise")
             .Example("15"),
         kPurchaseAmt.Example("200000"),
         kDownPayment.Example("40000"),
         kPeriod,
         kIntRate,
         kPoints.Named("vPoints"),
         kFees.Named("vFees"),
         kPropertyTax,
         kInsurance,
         kDues,
         MonthlyMoney("vMaintenance", "Upkeep", "Maintenance of the home a month").Zero().Example("150"),
         kInvGrowthRate.Named("vHomeGrowthRate")
             .Titled("Home's growth")
             .Says("Growth of the home's value a year")
             .Span(-10, 20, 0.25)
             .Example("3"),
         kPoints.Named("vSellCost")
             .Titled("Cost of selling")
             .Says("Cost of selling, in percent of the home's value then")
             .Span(0, 20, 0.25)
             .Example("6"),
         kIncTaxRate,
         kInvGrowthRate,
         kSellByDate.Says(
             "Months that the home is kept, then sold; a date counts as 0: as long as the loan runs"),
         kGrid.Says("Payments, costs and proceeds of both ways; the last row is the net cost")
             .Of(kRentOrBuyGrid),
         kDetArray.Named("vRentDet").Titled("Rents").Says("Rent of each month compared").Of(kRentSchedule),
         kDetArray.Named("vBuyDet").Titled("Loan's schedule").Says("Schedule of the loan, its whole term")}),
};

}  // namespace amortix2::describing
