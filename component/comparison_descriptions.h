#pragma once

// The members of Calculator that set two ways side by side, described in the order in which they are shown.

#include "amortix2/calculators/calculator.h"
#include "amortix2/component/describe.h"
#include "amortix2/component/parameter_descriptions.h"

namespace amortix2::describing {

inline constexpr Param kCurrBal = Money("vCurrBal", "Balance", "Owed on the current loan").Example("150000");
inline constexpr Param kCurrPay =
    MonthlyMoney(
        "vCurrPay", "Monthly payment",
        "Payment of the current loan a month; one below its interest counts as the whole debt, at once")
        .Example("1300");
inline constexpr Param kCurrRate =
    kIntRate.Named("vCurrRate").Says("Nominal rate of the current loan a year").Example("8");

inline constexpr Param kGrid = Result("vGrid", "Comparison", Unit::Table,
                                      "Payment, up-front cost, months and cost of both, and the difference");
inline constexpr Param kCurrDet =
    kDetArray.Named("vCurrDet").Titled("Current loan's schedule").Says("Schedule of the current loan");
inline constexpr Param kNewLoanDet =
    kDetArray.Named("vNewDet").Titled("New loan's schedule").Says("Schedule of the new loan");

/// A comparison in one grid: the current way in column 1, the proposed one in 2, the difference in 3.
constexpr ComparisonInfo InGrid(std::string_view grid) {
  return {.current = {grid, 1}, .proposed = {grid, 2}, .difference = 3, .decides = kCostRow};
}
constexpr ChartInfo BalancesChart(std::string_view currentTitle, std::string_view current,
                                  std::string_view proposedTitle, std::string_view proposed) {
  return {.title = "Both balances over the years",
          .series = {{currentTitle, current, 5}, {proposedTitle, proposed, 5}}};
}

using When = SentenceInfo::When;

inline constexpr Param kPrepaidDet = kDetArray.Named("vNewDet")
                                         .Titled("Schedule with extra payments")
                                         .Says("Schedule with the extra payments");
inline constexpr ShortList<FindInfo, 5> kSoonerFinds{
    {.figure = "vGrid(3,3)",
     .sentences =
         {NeverPaidOff("vGrid(1,1)", "vCurrPay"),
          {.text = "The loan is paid off after {vGrid(3,2)} instead of {vGrid(3,1)}, {vGrid(3,3)} sooner.",
           .when = When::Above,
           .figure = "vGrid(3,3)"},
          {"The loan is paid off after {vGrid(3,2)}, no sooner than now."}}},
};

// ---- Two offers for one purchase

inline constexpr Param kDownpayment1 = kDownPayment.Named("vDownpayment1").Titled("Offer 1: down payment");
inline constexpr Param kDownpayment2 = kDownPayment.Named("vDownpayment2").Titled("Offer 2: down payment");
inline constexpr Param kPeriod1 = kPeriod.Named("vPeriod1").Titled("Offer 1: term");
inline constexpr Param kPeriod2 = kPeriod.Named("vPeriod2").Titled("Offer 2: term");
inline constexpr Param kIntRate1 =
    kIntRate.Named("vIntRate1").Titled("Offer 1: interest rate").Example("6.75");
inline constexpr Param kIntRate2 =
    kIntRate.Named("vIntRate2").Titled("Offer 2: interest rate").Example("6.25");
inline constexpr Param kPoints1 = kPoints.Named("vPoints1").Titled("Offer 1: points").Example("0");
inline constexpr Param kPoints2 = kPoints.Named("vPoints2").Titled("Offer 2: points").Example("2");
inline constexpr Param kFees1 = kFees.Named("vFees1").Titled("Offer 1: closing fees");
inline constexpr Param kFees2 = kFees.Named("vFees2").Titled("Offer 2: closing fees");
inline constexpr Param kOfferGrid =
    kGrid.Says("Payment, up-front cost, months, cost and annual percentage rate of both, and the difference");
inline constexpr Param kOffer1Det =
    kDetArray.Named("vNewDet").Titled("Offer 1's schedule").Says("Schedule of offer 1");
inline constexpr Param kOffer2Det =
    kDetArray.Named("vCurrDet").Titled("Offer 2's schedule").Says("Schedule of offer 2");
inline constexpr SentenceInfo kOffersAreEqual{"Both offers cost the same in today's money, {vGrid(4,1)}."};

inline constexpr auto kComparisonMembers = std::tuple{
    method<&Calculator::RefinancingCalculator>(
        {
            .number = 12,
            .group = Group::Comparisons,
            .title = "Refinancing",
            .address = "refinance",
            .help = "The current loan against a new one.",
            .finds =
                {{.figure = "vGrid(4,3)",
                  .sentences = {NeverPaidOff("vGrid(1,1)", "vCurrPay"),
                                {.text = "The payment goes from {vGrid(1,1)} to {vGrid(1,2)} a month; in "
                                         "today's money the new loan costs {vGrid(4,3)} less.",
                                 .when = When::Above,
                                 .figure = "vGrid(4,3)"},
                                {.text = "The payment goes from {vGrid(1,1)} to {vGrid(1,2)} a month; in "
                                         "today's money the new loan costs {vGrid(4,3):size} more.",
                                 .when = When::Below,
                                 .figure = "vGrid(4,3)"},
                                {"Both loans cost the same in today's money, {vGrid(4,1)}."}}}},
            .charts = {BalancesChart("Current loan", "vCurrDet", "New loan", "vNewDet")},
            .comparison = InGrid("vGrid"),
            .horizon = "vSellByDate",
        },
        {kCurrBal, kCurrPay, kCurrRate,
         kIntRate.Named("vNewRate").Titled("New rate").Says("Nominal rate of the new loan a year"), kPoints,
         kFees,
         kPeriod.Named("vNewTerm").Titled("New term").Says("Monthly payments of the new loan").Example("240"),
         kIncTaxRate, kInvGrowthRate, kSellByDate, kGrid.Of(kRefinancingGrid), kCurrDet, kNewLoanDet}),

    method<&Calculator::PrePayCalculator>(
        {
            .number = 13,
            .group = Group::Comparisons,
            .title = "Extra payments",
            .address = "prepay",
            .help = "The current loan against paying more each month.",
            .finds = kSoonerFinds,
            .charts = {BalancesChart("Current loan", "vCurrDet", "With extra payments", "vNewDet")},
            .comparison = InGrid("vGrid"),
            .horizon = "vSellByDate",
        },
        {kCurrBal, kCurrPay, kCurrRate,
         MonthlyMoney("vExtraPayment", "Extra payment", "Paid on top each month").Example("200"), kIncTaxRate,
         kInvGrowthRate, kSellByDate, kGrid.Of(kPrepaymentGrid), kCurrDet, kPrepaidDet}),

    method<&Calculator::FastPrePayCalculator>(
        {
            .number = 14,
            .group = Group::Comparisons,
            .title = "Paid off by a target",
            .address = "payoff",
            .help = "The current loan against paying it off by a target term.",
            .finds = {{.figure = "grid(1,2)",
                       .sentences =
                           {NeverPaidOff("grid(1,1)", "currPay"),
                            {.text = "Paying {grid(1,2)} a month, {grid(1,3):size} more than now, pays the "
                                     "loan off after {grid(3,2)} instead of {grid(3,1)}.",
                             .when = When::Below,
                             .figure = "grid(1,3)"},
                            {"The current payment of {grid(1,1)} a month meets the target: the loan is paid "
                             "off after {grid(3,1)}."}}}},
            .charts = {BalancesChart("Current loan", "currdet", "With extra payments", "newdet")},
            .comparison = InGrid("grid"),
            .horizon = "keep",
        },
        {kCurrBal.Named("currBal"),
         kCurrPay.Named("currPay")
             .Says("Payment of the current loan a month; comes back as a number")
             .ComesBack(),
         kCurrRate.Named("currRate"),
         kPeriod.Named("targetPeriod")
             .Titled("Target")
             .Says("Months after which the loan is to be paid off")
             .Example("120"),
         kIncTaxRate.Named("taxRate"), kInvGrowthRate.Named("invRate"), kSellByDate.Named("keep"),
         kGrid.Named("grid").Of(kPrepaymentGrid), kCurrDet.Named("currdet"), kPrepaidDet.Named("newdet")}),

    method<&Calculator::BiWeeklyComparison>(
        {
            .number = 15,
            .group = Group::Comparisons,
            .title = "Bi-weekly payments",
            .address = "biweekly",
            .help = "The current loan against half payments every two weeks.",
            .finds = kSoonerFinds,
            .charts = {BalancesChart("Current loan", "vCurrDet", "Bi-weekly plan", "vNewDet")},
            .comparison = InGrid("vGrid"),
            .horizon = "vSellByDate",
        },
        {kCurrBal, kCurrPay, kCurrRate,
         kStartDate.Named("vPaymentDate").Says("Day from which both loans run"),
         kFees.Titled("Fee of the switch").Says("Paid in cash for the switch").Example("300"),
         kStartDate.Named("vSwitchDate")
             .Titled("First half payment")
             .Says("Day of the first half payment")
             .Example("2026-12-15"),
         kIncTaxRate, kInvGrowthRate, kSellByDate, kGrid.Of(kBiWeeklyGrid), kCurrDet,
         kDetArray.Named("vNewDet")
             .Titled("Bi-weekly schedule")
             .Says("Schedule of the bi-weekly plan, a line each two weeks")}),

    method<&Calculator::PointsAdvisor>(
        {
            .number = 16,
            .group = Group::Comparisons,
            .title = "Points",
            .address = "points",
            .help = "Two fixed-rate offers with points and fees.",
            .finds = {{.figure = "vGrid(4,3)",
                       .sentences = {{.text = "Offer 1 costs {vGrid(4,3)} less in today's money.",
                                      .when = When::Above,
                                      .figure = "vGrid(4,3)"},
                                     {.text = "Offer 2 costs {vGrid(4,3):size} less in today's money.",
                                      .when = When::Below,
                                      .figure = "vGrid(4,3)"},
                                     kOffersAreEqual}}},
            .charts = {BalancesChart("Offer 1", "vNewDet", "Offer 2", "vCurrDet")},
            .comparison = InGrid("vGrid"),
            .horizon = "vSellByDate",
        },
        {kPurchaseAmt, kIncTaxRate, kSellByDate, kDownpayment1, kPeriod1, kIntRate1, kPoints1, kFees1,
         kDownpayment2, kPeriod2, kIntRate2, kPoints2, kFees2, kOfferGrid.Of(kPointsGrid), kOffer2Det,
         kOffer1Det}),

    method<&Calculator::ARMComparison>(
        {
            .number = 17,
            .group = Group::Comparisons,
            .title = "Adjustable-rate offers",
            .address = "arm",
            .help = "Two adjustable-rate offers.",
            .finds = {{.figure = "vGrid(4,3)",
                       .sentences = {{.text = "Offer 2 costs {vGrid(4,3)} less in today's money.",
                                      .when = When::Above,
                                      .figure = "vGrid(4,3)"},
                                     {.text = "Offer 1 costs {vGrid(4,3):size} less in today's money.",
                                      .when = When::Below,
                                      .figure = "vGrid(4,3)"},
                                     kOffersAreEqual}}},
            .charts = {BalancesChart("Offer 1", "vNewDet", "Offer 2", "vCurrDet"),
                       {.title = "Both rates over the years",
                        .series = {{"Offer 1", "vNewDet", 6}, {"Offer 2", "vCurrDet", 6}}}},
            .comparison = InGrid("vGrid"),
            .horizon = "vSellByDate",
        },
        {kPurchaseAmt,
         kIncTaxRate,
         kSellByDate,
         kDownpayment1,
         kPeriod1,
         kIntRate1.Example("5.5"),
         kPoints1,
         kFees1,
         kRateInc.Named("vRateInc1").Titled("Offer 1: rate change"),
         kIncDelay.Named("vIncDelay1").Titled("Offer 1: months between changes").Example("36"),
         kRateCap.Named("vRateCap1").Titled("Offer 1: highest rate"),
         kDownpayment2,
         kPeriod2,
         kIntRate2.Example("5.25"),
         kPoints2.Example("0"),
         kFees2,
         kRateInc.Named("vRateInc2").Titled("Offer 2: rate change"),
         kIncDelay.Named("vIncDelay2").Titled("Offer 2: months between changes"),
         kRateCap.Named("vRateCap2").Titled("Offer 2: highest rate").Example("9.5"),
         kOfferGrid.Of(kArmGrid),
         kOffer2Det.Of(kLoanScheduleWithRate),
         kOffer1Det.Of(kLoanScheduleWithRate)}),
};

}  // namespace amortix2::describing
