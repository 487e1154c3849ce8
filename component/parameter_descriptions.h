#pragma once

// The parameters that several members of Calculator share, each said once. A member varies what is different
// for it: kIntRate.Find(), kIntRate.Named("vNewRate").

#include "amortix2/component/choice_descriptions.h"
#include "amortix2/component/describe_parameters.h"
#include "amortix2/component/table_descriptions.h"

namespace amortix2::describing {

// What a server lets in: bounds the lines of a schedule, not what a sensible person asks.
inline constexpr double kMostMonths = 1200;
inline constexpr double kMostMoney = 1e9;

// ---- Amounts

constexpr Param Money(std::string_view name, std::string_view title, std::string_view help,
                      double most = 10'000'000) {
  return Input(name, title, Unit::Currency, help).Span(0, most).Limit(-kMostMoney, kMostMoney);
}
constexpr Param MonthlyMoney(std::string_view name, std::string_view title, std::string_view help,
                             double most = 100'000) {
  return Money(name, title, help, most).In(Unit::MonthlyCurrency);
}
inline constexpr Param kPurchaseAmt =
    Money("vPurchaseAmt", "Purchase price", "Price of what is bought").Example("250000");
inline constexpr Param kDownPayment =
    Money("vDownPayment", "Down payment", "Paid in cash; the rest is borrowed").Zero().Example("50000");
inline constexpr Param kPropertyTax =
    Input("vPropertyTax", "Property tax", Unit::AnnualPercent, "Property tax a year, in percent of the price")
        .Span(0, 5, 0.05)
        .Limit(-100, 100)
        .Zero()
        .Example("1.2");
inline constexpr Param kInsurance =
    MonthlyMoney("vInsurance", "Home insurance", "Home insurance a month").Zero().Example("80");
inline constexpr Param kDues =
    MonthlyMoney("vDues", "Association dues", "Association dues a month").Zero().Example("50");
inline constexpr Param kFees =
    Money("vNewFees", "Closing fees", "Paid in cash at closing", 100'000).Zero().Example("1500");

// ---- Rates

inline constexpr Param kIntRate =
    Input("vIntRate", "Interest rate", Unit::AnnualPercent, "Nominal rate a year, charged monthly")
        .Span(0, 40, 0.125)
        .Limit(-100, 1000)
        .Example("6.5");
inline constexpr Param kPoints =
    Input("vNewPoints", "Points", Unit::Percent, "Loan points, in percent of the loan, paid at closing")
        .Span(0, 10, 0.125)
        .Limit(-100, 100)
        .Zero()
        .Example("1");
inline constexpr Param kIncTaxRate =
    Input("vIncTaxRate", "Income tax rate", Unit::Percent, "Income tax that deductible interest saves")
        .Span(0, 60, 0.5)
        .Limit(-100, 100)
        .Zero()
        .Example("25");
inline constexpr Param kInvGrowthRate =
    kIntRate.Named("vInvGrowthRate")
        .Titled("Investment growth")
        .Says("Earned a year on money not spent; discounts later costs to today's money")
        .Span(0, 20, 0.25)
        .Zero()
        .Example("4");

inline constexpr Param kRateInc =
    Input("vRateInc", "Rate change", Unit::PercentagePoints, "Change of the rate each time")
        .Span(-5, 5, 0.125)
        .Limit(-100, 100)
        .Zero()
        .Example("1");
inline constexpr Param kRateCap = kIntRate.Named("vRateCap")
                                      .Titled("Highest rate")
                                      .Says("Cap of a changed rate; 0 caps at 0 %")
                                      .Example("11.5");

// ---- Terms and dates

inline constexpr Param kPeriod = Input("vPeriod", "Term", Unit::Months, "Number of monthly payments")
                                     .Span(1, 600, 1)
                                     .Limit(0, kMostMonths)
                                     .Example("360");
inline constexpr Param kSellByDate =
    Input("vSellByDate", "Months kept", Unit::Months,
          "Months that the loan is kept, then the rest is paid off; a date counts as 0: the whole term")
        .Span(0, 600, 1)
        .Limit(0, kMostMonths)
        .WholeTerm()
        .Example("84");
inline constexpr Param kIncDelay = kPeriod.Named("vIncDelay")
                                       .Titled("Months between changes")
                                       .Says("Months between changes of the rate; 0: none")
                                       .Span(0, 600, 1)
                                       .Zero()
                                       .Example("12");
inline constexpr Param kSteps = Input("vStep", "Steps", Unit::Count, "Values on each side of the middle")
                                    .Span(0, 10, 1)
                                    .Limit(0, 100)
                                    .Zero()
                                    .Example("3");
inline constexpr Param kStartDate =
    Input("vStartDate", "Start", Unit::Date, "Day on which it starts").Today().Example("2026-12-01");

// ---- Frequencies

inline constexpr Param kFreq =
    Input("vFreq", "Frequency", Unit::Code, "How often deposits are made and interest is credited")
        .Of(kFrequencies)
        .Example("4");

// ---- Results

inline constexpr Param kResPayment =
    Result("vResPayment", "Monthly payment", Unit::MonthlyCurrency, "Level payment a month");
inline constexpr Param kResPeriod = Result(
    "vResPeriod", "Term", Unit::Months,
    "Number of monthly payments; 1, for the whole debt, where the payment does not cover the interest");
inline constexpr Param kResIntRate =
    Result("vResIntRate", "Interest rate", Unit::AnnualPercent, "Nominal rate a year");
inline constexpr Param kTotPay =
    Result("vTotPay", "Total of payments", Unit::Currency, "All payments, and what is paid at closing");
inline constexpr Param kTotInt =
    Result("vTotInt", "Total interest", Unit::Currency, "All interest and charges");
inline constexpr Param kDetArray =
    Result("vDetArray", "Schedule", Unit::Table, "Date, payment, principal, interest, balance")
        .Of(kLoanSchedule);

// ---- Sentences

/// Of a loan whose payment came back larger than it was given: the engine's sign that it covers no interest.
constexpr SentenceInfo NeverPaidOff(std::string_view figure, std::string_view payment) {
  return {.text = "At this payment the loan is never paid off.",
          .when = SentenceInfo::When::Above,
          .figure = figure,
          .than = payment};
}

// ---- Charts of a schedule

constexpr ChartInfo BalanceChart(std::string_view table) {
  return {.title = "Balance over the years", .series = {{"Balance", table, 5}}};
}
constexpr ChartInfo PaymentsChart(std::string_view table) {
  return {.title = "Principal and interest by year",
          .kind = ChartKind::StackedColumns,
          .series = {{"Principal", table, 3}, {"Interest", table, 4}}};
}
constexpr ChartInfo GrowthChart(std::string_view table) {
  return {.title = "Deposits and interest by year",
          .kind = ChartKind::StackedColumns,
          .series = {{"Deposits", table, 2}, {"Interest", table, 3}}};
}

}  // namespace amortix2::describing
