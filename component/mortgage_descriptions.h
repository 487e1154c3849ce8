#pragma once

// The members of Calculator that work on a home's mortgage, described in the order in which they are shown.

#include "amortix2/component/loan_descriptions.h"

namespace amortix2::describing {

inline constexpr Param kCloseDate =
    Input("vCloseDate", "Closing", Unit::Date,
          "Day of closing, from which interim interest runs; without one none")
        .Nothing()
        .Example("2026-12-15");
inline constexpr Param kPayDate = Input("vPayDate", "First payment", Unit::Date,
                                        "Day of the first payment; without one the loan starts today")
                                      .Today()
                                      .Example("2027-02-01");

/// What a purchase loan answers.
inline constexpr ShortList<FindInfo, 5> kPaymentFinds{
    {.figure = "vResPayment",
     .sentences =
         {{"The mortgage of {vResPurchaseAmt} costs {vResPayment} a month for {vResPeriod}; interest "
           "and charges come to {vTotInt}."}}},
};

inline constexpr Param kNewPrincipal =
    Result("vNewPrincipal", "Largest loan", Unit::Currency, "The loan that the payment carries");
inline constexpr Param kNewPayment = kResPayment.Named("vNewPayment").Says("Payment of that loan a month");
inline constexpr Param kNewTaxes =
    Result("vNewTaxes", "Property tax", Unit::MonthlyCurrency, "Property tax a month");
inline constexpr Param kNewFees =
    Result("vNewFees", "Other charges", Unit::MonthlyCurrency, "Insurance, dues and other charges a month");
inline constexpr Param kNewDet = kDetArray.Named("vNewDet");

inline constexpr auto kMortgageMembers = std::tuple{
    method<&Calculator::FixedPayment>(
        {
            .number = 4,
            .group = Group::Mortgages,
            .title = "Fixed-rate mortgage",
            .address = "fixed",
            .help = "The payment of a fixed-rate purchase loan.",
            .finds = kPaymentFinds,
            .charts = {BalanceChart("vDetArray"), PaymentsChart("vDetArray")},
        },
        {kLoanTypeNotRead, kPurchaseAmt, kDownPayment, kPeriod, kIntRate, kCloseDate, kPayDate,
         kResPurchaseAmt, kResPayment, kResPeriod.Echoes("vPeriod"), kResIntRate.Echoes("vIntRate"), kTotPay,
         kTotInt, kDetArray}),

    method<&Calculator::AdjustablePayment>(
        {
            .number = 5,
            .group = Group::Mortgages,
            .title = "Adjustable-rate mortgage",
            .address = "adjustable",
            .help = "The first payment of an adjustable-rate purchase loan, and its schedule.",
            .finds =
                {{.figure = "vResPayment",
                  .sentences = {{"The mortgage of {vResPurchaseAmt} costs {vResPayment} a month at first; "
                                 "over {vResPeriod} interest and charges come to {vTotInt}."}}}},
            .charts = {BalanceChart("vDetArray"), PaymentsChart("vDetArray")},
        },
        {kLoanTypeNotRead, kPurchaseAmt, kDownPayment, kPeriod,
         kIntRate.Says("Nominal rate a year at the start").Example("5.5"), kCloseDate, kPayDate, kRateCap,
         kRateInc.Named("vRateInc1").Titled("First change").Says("First change of the rate").Example("2"),
         kRateInc.Named("vRateInc2").Titled("Later changes").Says("Each later change of the rate"),
         kIncDelay.Named("vIncDelay1")
             .Titled("Payment of the first change")
             .Says("Number of the payment at which the rate changes first; 0: never")
             .Example("61"),
         kIncDelay.Named("vIncDelay2"), kResPurchaseAmt, kResPayment, kResPeriod.Echoes("vPeriod"),
         kResIntRate.Says("Nominal rate a year at the start").Echoes("vIntRate"), kTotPay, kTotInt,
         kDetArray}),

    method<&Calculator::HomeAffordabilityCalculator>(
        {
            .number = 9,
            .group = Group::Mortgages,
            .title = "Home affordability",
            .address = "afford",
            .help = "The mortgage that a monthly housing budget carries.",
            .finds =
                {{.figure = "vNewPrincipal",
                  .sentences = {{.text = "The budget does not cover the home's own charges, so it carries no "
                                         "mortgage.",
                                 .when = SentenceInfo::When::Below,
                                 .figure = "vNewPrincipal",
                                 .value = 0.005},
                                {"The budget carries a mortgage of {vNewPrincipal} with a payment of "
                                 "{vNewPayment} a month."}}}},
            .charts = {BalanceChart("vNewDet"), PaymentsChart("vNewDet")},
        },
        {MonthlyMoney("vPayment", "Housing budget", "What may be spent on the home a month").Example("2000"),
         kPropertyTax, kInsurance, kDues, kDownPayment, kPeriod, kIntRate, kNewPrincipal, kNewPayment,
         kNewTaxes, kNewFees, kNewDet}),

    method<&Calculator::MortgageQualificationCalculator>(
        {
            .number = 10,
            .group = Group::Mortgages,
            .title = "Mortgage qualification",
            .address = "qualify",
            .help = "The mortgage that an income and its debts qualify for: 28 % of income, or 36 % of what "
                    "debts leave of it.",
            .finds = {{.figure = "vNewPrincipal",
                       .sentences =
                           {{.text = "The income does not cover the home's own charges, so it "
                                     "qualifies for no mortgage.",
                             .when = SentenceInfo::When::Below,
                             .figure = "vNewPrincipal",
                             .value = 0.005},
                            {"The income qualifies for a mortgage of {vNewPrincipal} with a payment of "
                             "{vNewPayment} a month."}}}},
            .charts = {BalanceChart("vNewDet"), PaymentsChart("vNewDet")},
        },
        {Money("vAnnualIncome", "Income", "Gross income a year").Example("96000"),
         MonthlyMoney("vCreditCard", "Credit cards", "Credit card payments a month").Zero().Example("100"),
         MonthlyMoney("vCarPayments", "Car loans", "Car loan payments a month").Zero().Example("300"),
         MonthlyMoney("vChildSupport", "Child support", "Child support a month").Zero().Example("0"),
         MonthlyMoney("vOtherMonthly", "Other obligations", "Other obligations a month").Zero().Example("50"),
         kPropertyTax, kInsurance, kDues, kDownPayment, kPeriod, kIntRate, kNewPrincipal, kNewPayment,
         kNewTaxes, kNewFees, kNewDet}),

    method<&Calculator::PaymentGridCalculator>(
        {
            .number = 11,
            .group = Group::Mortgages,
            .title = "Payment grid",
            .address = "grid",
            .help = "Payments for a range of rates (rows) and of down payments (columns).",
            .finds = {{.figure = "vGrid",
                       .sentences = {{"Each row of the grid is a rate, each column a down payment."}}}},
        },
        {kPurchaseAmt.Named("vPrincipal"), kDownPayment.Says("Down payment of the middle column"),
         kIntRate.Says("Rate of the middle row"), kPeriod,
         Money("vDownChange", "Step of down payments", "From column to column", 1'000'000).Example("10000"),
         kRateInc.Named("vRateChange")
             .Titled("Step of rates")
             .Says("From row to row")
             .Span(0, 5, 0.125)
             .Required()
             .Example("0.25"),
         kSteps.Named("vStepX").Titled("Rates on each side").Says("Rows on each side of the middle"),
         kSteps.Named("vStepY")
             .Titled("Down payments on each side")
             .Says("Columns on each side of the middle")
             .Example("2"),
         Result("vGrid", "Payments", Unit::Table, "Payments from row 1 and column 1 on").Of(kPaymentGrid)}),
};

}  // namespace amortix2::describing
