#pragma once

// The members of Calculator that work on one savings or spending plan, described in the order in which they
// are shown.

#include "amortix2/calculators/calculator.h"
#include "amortix2/component/describe.h"
#include "amortix2/component/parameter_descriptions.h"

namespace amortix2::describing::savings {

inline constexpr Param kStart =
    kStartDate.Says("Day on which the plan starts; must be a date").Required().Example("2027-01-01");
inline constexpr Param kStartOrToday = kStartDate.Example("2027-01-01");
inline constexpr Param kEndOrToday =
    kStartDate.Named("vEndingDate").Titled("End").Says("Day on which it ends").Example("2037-01-01");
inline constexpr Param kBalance =
    Money("vCurrBal", "Balance at the start", "What is there at the start").Zero().Example("5000");
inline constexpr Param kDeposit =
    Money("vPayment", "Deposit", "Deposited each period", 1'000'000).Zero().Example("200");
inline constexpr Param kGoal = Money("vEndingBal", "Goal", "Balance wanted at the end").Example("50000");
inline constexpr Param kYears =
    Input("vPeriod", "Years", Unit::Years, "Length of the plan, cut down to whole years")
        .Span(1, 60, 1)
        .Limit(0, 100)
        .Example("10");
inline constexpr Param kPeriods =
    Input("vPeriod", "Periods", Unit::Periods, "Number of periods of the frequency; 0 may be found")
        .Span(0, 1200, 1)
        .Limit(0, 32767)
        .Find();
inline constexpr Param kRate = kIntRate.Says("Interest a year").Span(0, 25, 0.05).Zero().Example("4");
inline constexpr Param kInterestFreq = kFreq.Says("How often interest is credited");
inline constexpr Param kDetail =
    kDetArray.Says("Date, deposit, interest, growth, balance").Of(kSavingsSchedule);

inline constexpr Param kResBalance =
    Result("vResCurrBal", "Balance at the start", Unit::Currency, "What is there at the start")
        .Echoes("vCurrBal");
inline constexpr Param kResDeposit =
    Result("vResPayment", "Deposit", Unit::Currency, "Deposited each period").Echoes("vPayment");
inline constexpr Param kResRate =
    Result("vResIntRate", "Interest rate", Unit::AnnualPercent, "Interest a year").Echoes("vIntRate");
inline constexpr Param kEndBalance =
    Result("vEndBal", "Balance at the end", Unit::Currency, "What the plan comes to");

inline constexpr ShortList<ChartInfo, 3> kCharts{BalanceChart("vDetArray"), GrowthChart("vDetArray")};

/// A plan of which always the same is found.
constexpr About Plan(int number, std::string_view title, std::string_view address, std::string_view help,
                     const FindInfo& find) {
  return {.number = number,
          .group = Group::Savings,
          .title = title,
          .address = address,
          .help = help,
          .finds = {find},
          .charts = kCharts};
}

/// Of a plan whose deposit came back smaller: the engine's sign that no term brings it to its goal.
constexpr SentenceInfo NotReached(std::string_view deposit) {
  return {.text = "No number of deposits leads to the goal.",
          .when = SentenceInfo::When::Below,
          .figure = deposit,
          .than = "vPayment"};
}

/// What SimpleSavingsCalculator and IRACalculator find, in the order in which they look.
constexpr ShortList<FindInfo, 5> Finds(const std::array<FindInfo, 5>& found) {
  auto finds = found;
  finds[0].needs = {"vEndingBal"};
  finds[0].needsOne = {"vCurrBal", "vPayment"};
  finds[1].needsOne = {"vCurrBal", "vPayment"};
  finds[1].whenAllGiven = true;
  return {finds[0], finds[1], finds[2], finds[3], finds[4]};
}

inline constexpr auto kMembers = std::tuple{
    method<&Calculator::AmountSavedCalculator>(
        Plan(18, "Savings plan", "save", "What a savings plan comes to.",
             {.figure = "vEndBal", .sentences = {{"The plan comes to {vEndBal}."}}}),
        {kStart, kBalance, kDeposit, kFreq, kYears, kRate, kEndBalance, kDetail}),

    method<&Calculator::DepositCalculator>(
        Plan(21, "Deposit for a goal", "deposit", "The deposit that a savings plan needs to reach its goal.",
             {.figure = "vPayment", .sentences = {{"Depositing {vPayment} each time reaches the goal."}}}),
        {kStart, kBalance, kFreq, kYears, kRate, kGoal,
         kResDeposit.Named("vPayment").Says("Deposit needed each period").Echoes({}), kDetail}),

    method<&Calculator::StartingAmountCalculator>(
        Plan(20, "Starting balance for a goal", "starting-balance",
             "The balance that a savings plan needs at its start to reach its goal.",
             {.figure = "vCurrBal", .sentences = {{"Starting with {vCurrBal} reaches the goal."}}}),
        {kStart, kDeposit, kFreq, kYears, kRate, kGoal,
         kResBalance.Named("vCurrBal").Says("Balance needed at the start").Echoes({}), kDetail}),

    method<&Calculator::SavingsRateCalculator>(
        Plan(19, "Rate for a goal", "savings-rate",
             "The interest rate that a savings plan needs to reach its goal.",
             {.figure = "vIntRate",
              .sentences = {{.text = "No interest is needed, or no rate reaches the goal.",
                             .when = SentenceInfo::When::Equal,
                             .figure = "vIntRate"},
                            {"A rate of {vIntRate} reaches the goal."}}}),
        {kStart, kBalance, kDeposit, kFreq, kYears, kGoal,
         kResRate.Named("vIntRate").Says("Interest a year that is needed").Echoes({}), kDetail}),

    method<&Calculator::SimpleSavingsCalculator>(
        {
            .number = 25,
            .group = Group::Savings,
            .title = "Savings, any unknown",
            .address = "savings",
            .help = "Of balance, deposit, goal, term and rate of a savings plan, finds the one left out; the "
                    "goal when none is.",
            .finds = Finds({{{.input = "vPeriod",
                              .figure = "vResEndDate",
                              .sentences = {NotReached("vResPayment"),
                                            {"The goal of {vResEndingBal} is reached on {vResEndDate}."}}},
                             {.input = "vEndingBal",
                              .figure = "vResEndingBal",
                              .sentences = {{"The plan comes to {vResEndingBal} on {vResEndDate}."}}},
                             {.input = "vPayment",
                              .figure = "vResPayment",
                              .sentences = {{"Depositing {vResPayment} each time reaches {vResEndingBal} on "
                                             "{vResEndDate}."}}},
                             {.input = "vCurrBal",
                              .figure = "vResCurrBal",
                              .sentences = {{"Starting with {vResCurrBal} reaches {vResEndingBal} on "
                                             "{vResEndDate}."}}},
                             {.input = "vIntRate",
                              .figure = "vResIntRate",
                              .sentences = {{"A rate of {vResIntRate} reaches {vResEndingBal} on "
                                             "{vResEndDate}."}}}}}),
            .charts = kCharts,
        },
        {kStart, kBalance.Says("What is there at the start; 0 may be found").Find(),
         kDeposit.Says("Deposited each period; 0 may be found").Find(), kFreq,
         kGoal.Says("Balance wanted at the end; 0 may be found").Find().NoExample(),
         kPeriods.Titled("Deposits").Example("120"), kRate.Says("Interest a year; 0 may be found").Find(),
         kIncTaxRate.Says("Income tax on interest").Example("20"), kResBalance, kResDeposit,
         kEndBalance.Named("vResEndingBal").Echoes("vEndingBal"),
         Result("vResEndDate", "End", Unit::Date, "Day on which the plan ends"), kResRate, kDetail}),

    method<&Calculator::FutureValueCalculator>(
        Plan(23, "Future value", "future-value", "What a sum grows to by a later date.",
             {.figure = "vEndingBal", .sentences = {{"The sum grows to {vEndingBal}."}}}),
        {kStartOrToday, kEndOrToday, kBalance.Titled("Sum now").Says("Sum at the start").Required(), kRate,
         kInterestFreq, kEndBalance.Named("vEndingBal").Titled("Sum later").Says("What the sum comes to"),
         kDetail}),

    method<&Calculator::PresentValueCalculator>(
        Plan(22, "Present value", "present-value", "What a sum at a later date is worth at the start.",
             {.figure = "vCurrBal", .sentences = {{"The sum is worth {vCurrBal} at the start."}}}),
        {kStartOrToday, kEndOrToday, kGoal.Titled("Sum later").Says("Sum at the end"), kRate, kInterestFreq,
         Result("vCurrBal", "Sum now", Unit::Currency, "Its worth at the start"), kDetail}),

    method<&Calculator::YieldCalculator>(
        Plan(24, "Yield", "yield", "The interest rate that turns one sum into another.",
             {.figure = "vIntRate",
              .sentences = {{"A rate of {vIntRate} turns the one sum into the other."}}}),
        {kStartOrToday, kEndOrToday, kBalance.Titled("Sum now").Says("Sum at the start").Required(),
         kGoal.Titled("Sum later").Says("Sum at the end").Example("8000"), kInterestFreq,
         kResRate.Named("vIntRate").Says("Interest a year that is needed").Echoes({}),
         kEndBalance.Named("vResEndingBal")
             .Titled("Sum at that rate")
             .Says("What the sum comes to at that rate, to three decimals"),
         kDetail}),
};

// ---- Retirement

/// A withdrawal that came back larger is the engine's sign that the interest is more than it.
inline constexpr SentenceInfo kLastsForEver{
    .text = "The interest covers the withdrawals: the balance lasts for ever.",
    .when = SentenceInfo::When::Above,
    .figure = "vResPayment",
    .than = "vPayment"};
inline constexpr SentenceInfo kLastsForEverExactly{
    .text = kLastsForEver.text, .when = SentenceInfo::When::Equal, .figure = "vResPeriod", .value = -1};

inline constexpr auto kRetirementMembers = std::tuple{
    method<&Calculator::IRACalculator>(
        {
            .number = 26,
            .group = Group::Retirement,
            .title = "Retirement account",
            .address = "retirement",
            .help = "A retirement account with yearly contributions: finds the quantity left out, and the "
                    "balance after tax.",
            .finds =
                Finds({{{.input = "vPeriod",
                         .figure = "vGrid(5)",
                         .sentences = {NotReached("vGrid(2)"),
                                       {"The account reaches {vGrid(4)} after tax on {vGrid(5)}."}}},
                        {.input = "vEndingBal",
                         .figure = "vGrid(4)",
                         .sentences = {{"The account comes to {vGrid(4)} after tax, {vGrid(3)} before."}}},
                        {.input = "vPayment",
                         .figure = "vGrid(2)",
                         .sentences = {{"Contributing {vGrid(2)} a year reaches {vGrid(4)} after tax."}}},
                        {.input = "vCurrBal",
                         .figure = "vGrid(1)",
                         .sentences = {{"Starting with {vGrid(1)} reaches {vGrid(4)} after tax."}}},
                        {.input = "vIntRate",
                         .figure = "vGrid(6)",
                         .sentences = {{"A rate of {vGrid(6)} reaches {vGrid(4)} after tax."}}}}}),
            .charts = kCharts,
        },
        {kStart,
         Input("vTyp", "Kind of account", Unit::Text, "\"T\" for an account that is taxed on withdrawal")
             .Of(kAccountKind)
             .Nothing()
             .Example("T"),
         kBalance.Says("What is there at the start; 0 may be found").Find().Example("20000"),
         kDeposit.Titled("Contribution").Says("Contributed each year; 0 may be found").Find().Example("5000"),
         kGoal.Says("Balance wanted at the end, after tax; 0 may be found").Find().NoExample(),
         kYears.Says("Length of the plan; 0 may be found").Find().Span(0, 60, 1).Example("25"),
         kRate.Says("Interest a year; 0 may be found").Find().Example("6"),
         kIncTaxRate.Says("Income tax on withdrawal").Example("22"),
         Result("vGrid", "The account", Unit::List,
                "From 1: balance, contribution, ending balance before and after tax, end date, rate")
             .Of(kRetirementList),
         kDetail}),

    method<&Calculator::SpendingCalculator>(
        {
            .number = 27,
            .group = Group::Retirement,
            .title = "Spending plan",
            .address = "spend",
            .help =
                "Of balance, withdrawal, rate and term of a plan that spends a balance down, finds the one "
                "left out; the withdrawal when none is.",
            .finds =
                {
                    {.input = "vPeriod",
                     .figure = "vResPeriod",
                     .sentences = {{.text = "The first withdrawal takes more than there is.",
                                    .when = SentenceInfo::When::Below,
                                    .figure = "vResPayment",
                                    .than = "vPayment"},
                                   kLastsForEver,
                                   kLastsForEverExactly,
                                   {"The balance lasts for {vResPeriod}."}},
                     .needs = {"vPayment", "vCurrBal"}},
                    {.input = "vPayment",
                     .figure = "vResPayment",
                     .sentences = {{"{vResPayment} can be withdrawn each time for {vResPeriod}."}},
                     .needs = {"vCurrBal"},
                     .whenAllGiven = true},
                    {.input = "vCurrBal",
                     .figure = "vResCurrBal",
                     .sentences = {{"A balance of {vResCurrBal} carries the withdrawals for {vResPeriod}."}}},
                    {.input = "vIntRate",
                     .figure = "vResIntRate",
                     .sentences = {{"At a rate of {vResIntRate} the balance lasts for {vResPeriod}."}}},
                },
            .charts = {BalanceChart("vDetArray")},
        },
        {kStart, kBalance.Says("What is there at the start; 0 may be found").Find().Example("300000"),
         kDeposit.Titled("Withdrawal").Says("Withdrawn each period; 0 may be found").Find().Example("2000"),
         kRate.Says("Interest a year; 0 may be found").Find(),
         kFreq.Says("How often money is withdrawn and interest is credited"), kPeriods.Titled("Withdrawals"),
         kResBalance, kResDeposit.Titled("Withdrawal").Says("Withdrawn each period"), kResRate,
         Result("vResPeriod", "Withdrawals", Unit::Periods,
                "How many periods the balance lasts; -1: for ever")
             .Echoes("vPeriod"),
         kDetArray.Says("Date, withdrawal, interest, growth, balance").Of(kSpendingSchedule)}),
};

}  // namespace amortix2::describing::savings
